#include "platform/scripted_platform.h"

#include <cctype>

namespace mf {
namespace {
std::string Shown(const std::string& title) { return title.empty() ? kProgramTitle : title; }
}  // namespace

void ScriptedPlatform::Record(PlatformEvent e) {
  if (printer) printer(e);
  events_.push_back(std::move(e));
}

void ScriptedPlatform::ShowMessage(const std::string& text, const std::string& title) {
  // An OK box takes a queued "ok" if one is waiting, and needs none.
  if (!answers_.empty() && answers_.front() == "ok") answers_.pop_front();
  Record({PlatformEvent::kMessage, Shown(title), text, ""});
}

bool ScriptedPlatform::AskYesNo(const std::string& text, const std::string& title) {
  std::string answer = "no";
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  const bool yes = answer == "yes" || answer == "ok";
  Record({PlatformEvent::kQuestion, Shown(title), text, yes ? "yes" : "no"});
  return yes;
}

std::string ScriptedPlatform::InputPrompt(const std::string& text, const std::string& title,
                                          const std::string& defaultText) {
  std::string answer = defaultText;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
    if (answer == "cancel") answer.clear();
  }
  Record({PlatformEvent::kPrompt, Shown(title), text, answer});
  return answer;
}

void ScriptedPlatform::PlaySound(int slot) { sounds_.push_back(slot); }

void ScriptedPlatform::ShowReport(const std::vector<std::string>& lines) {
  for (const auto& line : lines) Record({PlatformEvent::kReport, "", line, ""});
}

bool ScriptedPlatform::PickColor(long* rgb) {
  std::string answer;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  std::string digits = answer;
  if (!digits.empty() && digits[0] == '#') digits.erase(0, 1);
  bool ok = digits.size() == 6;
  for (char c : digits) ok = ok && std::isxdigit(static_cast<unsigned char>(c));
  Record({PlatformEvent::kColor, "", "colour", ok ? "#" + digits : "cancel"});
  if (!ok) return false;
  *rgb = std::stol(digits, nullptr, 16);
  return true;
}

// Analysis lines are printed but not kept among the events: a long game
// writes thousands of them, and the message cursor of a script has no use
// for them.
void ScriptedPlatform::AnalysisLine(const std::string& line) {
  if (printer) printer({PlatformEvent::kAnalysis, "", line, ""});
  if (keepAnalysis) analysis_.push_back(line);
}

std::string ScriptedPlatform::OpenFileDialog(const std::string& title, const std::string&,
                                             const std::string&) {
  std::string path;
  if (!files_.empty()) {
    path = files_.front();
    files_.pop_front();
  }
  Record({PlatformEvent::kFileDialog, Shown(title), "open", path});
  return path;
}

std::string ScriptedPlatform::SaveFileDialog(const std::string& title, const std::string&,
                                             const std::string&) {
  std::string path;
  if (!files_.empty()) {
    path = files_.front();
    files_.pop_front();
  }
  Record({PlatformEvent::kFileDialog, Shown(title), "save", path});
  return path;
}

void ScriptedPlatform::RunDialog(HumbleDialog& dialog) {
  const std::string name = dialog.DialogName();
  std::vector<DialogAction> actions;
  auto it = dialogs_.find(name);
  if (it != dialogs_.end() && !it->second.empty()) {
    actions = std::move(it->second.front());
    it->second.pop_front();
  }
  for (const auto& a : actions) {
    if (!dialog.IsOpen()) break;
    std::string why;
    Record({PlatformEvent::kDialogAction, name, a.value.empty() ? a.action : a.action + "=" + a.value, ""});
    if (!dialog.Act(a.action, a.value, &why)) {
      lastError = "dialog " + name + ": " + a.action + ": " + why;
    }
  }
  // Whatever was queued, a dialog left open takes its default action until it
  // closes; a default that does not close it would loop, so stop after a few.
  for (int guard = 0; dialog.IsOpen() && guard < 16; ++guard) {
    const std::string def = dialog.DefaultAction();
    Record({PlatformEvent::kDialogAction, name, def + " (default)", ""});
    std::string why;
    if (!dialog.Act(def, "", &why)) {
      lastError = "dialog " + name + ": default " + def + ": " + why;
      break;
    }
  }
}

std::vector<std::string> ScriptedPlatform::Messages() const {
  std::vector<std::string> out;
  for (const auto& e : events_)
    if (e.kind == PlatformEvent::kMessage || e.kind == PlatformEvent::kQuestion) out.push_back(e.text);
  return out;
}

void ScriptedPlatform::Clear() {
  answers_.clear();
  files_.clear();
  dialogs_.clear();
  events_.clear();
  sounds_.clear();
  analysis_.clear();
  lastError.clear();
}

std::string FormatEvent(const PlatformEvent& e) {
  switch (e.kind) {
    case PlatformEvent::kMessage:
      return "MSG [" + e.title + "] " + e.text;
    case PlatformEvent::kQuestion:
    case PlatformEvent::kPrompt:
      return "ASK [" + e.title + "] " + e.text + " -> " + e.answer;
    case PlatformEvent::kFileDialog:
      return "FILE [" + e.title + "] " + e.text + " -> " + e.answer;
    case PlatformEvent::kDialogAction:
      return "DIALOG [" + e.title + "] " + e.text;
    case PlatformEvent::kSound:
      return "SOUND " + e.text;
    case PlatformEvent::kAnalysis:
      return "AI " + e.text;
    case PlatformEvent::kReport:
      return "REPORT " + e.text;
    case PlatformEvent::kColor:
      return "COLOUR -> " + e.answer;
  }
  return "";
}

}  // namespace mf
