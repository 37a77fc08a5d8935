#include "engine/event_dialog.h"

#include "engine/events.h"
#include "model/arith.h"
#include "model/game_state.h"

namespace mf {
namespace {


// "3" as a choice number 1..5, else 0.
int ChoiceNumber(const std::string& text) {
  const std::string t = Trim(text);
  if (t.size() != 1 || t[0] < '1' || t[0] > '0' + EventDialog::kChoices) return 0;
  return t[0] - '0';
}

}  // namespace

void EventDialog::Prepare(int e) {
  story.clear();
  picture = 0;
  okEnabled = true;
  for (int c = 0; c < kChoices; ++c) {
    choiceShown[c] = false;
    choiceCaption[c].clear();
  }
  event = 0;
  chosen = 0;
  open = false;
  if (e < 1 || e > kEventCap) return;
  const EventRec& ev = Event[e];
  event = e;
  story = ev.Story;
  picture = ev.Sprite >= 1 && ev.Sprite <= 100 ? kEventSpriteBase + static_cast<int>(ev.Sprite) : 0;
  bool anyChoice = false;
  if (ev.Type == kEventChoice) {
    for (int c = 0; c < kChoices; ++c) {
      choiceCaption[c] = ev.DataText[c + 1];
      choiceShown[c] = Len(choiceCaption[c]) > 1;
      anyChoice = anyChoice || choiceShown[c];
    }
  }
  // A choice event waits for an answer. One that offers no answer at all
  // keeps OK, so that the player is not held in the dialog for ever.
  okEnabled = !anyChoice;
  mainWindowEnabled = false;
  open = true;
}

bool EventDialog::OkButton(std::string* why) {
  if (!open) return false;
  if (!okEnabled) {
    *why = "the button OK is disabled: the event waits for one of its choices";
    return false;
  }
  chosen = 0;
  open = false;
  mainWindowEnabled = true;
  return true;
}

bool EventDialog::ChoiceButton(int n, std::string* why) {
  if (!open) return false;
  if (n < 1 || n > kChoices || !choiceShown[n - 1]) {
    *why = "the event offers no choice " + std::to_string(n);
    return false;
  }
  chosen = n;
  ApplyChoice(event, n);
  open = false;
  mainWindowEnabled = true;
  return true;
}

bool EventDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (action == "ok") return OkButton(why);
  // "choice" with its number, or the default's "choice=N" as one word.
  if (action == "choice" || action.rfind("choice=", 0) == 0) {
    const std::string number = action == "choice" ? value : action.substr(7);
    const int n = ChoiceNumber(number);
    if (n == 0) {
      *why = "choice takes a number 1..5, not \"" + number + "\"";
      return false;
    }
    return ChoiceButton(n, why);
  }
  *why = "no action \"" + action + "\" in the Event! dialog (ok, choice=N)";
  return false;
}

std::string EventDialog::DefaultAction() const {
  for (int c = 0; c < kChoices; ++c)
    if (!okEnabled && choiceShown[c]) return "choice=" + std::to_string(c + 1);
  return "ok";
}

}  // namespace mf
