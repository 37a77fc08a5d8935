// The events of a scenario, checked for what each type of event needs.
#include "content_compiler.h"


namespace mf::content {

void Compiler::Events() {
  const auto events = Numbered("event", kEventsCleared - 1);
  SetNum("Game.EventCount", static_cast<long long>(events.size()), "events");
  for (const auto& [n, b] : events) {
    const std::string prefix = "Event[" + std::to_string(n) + "].";
    for (const Entry& e : b->entries) SetGeneric("Event", prefix, e);
    const EventRec& ev = Event[n];
    if (ev.Story.size() < 2) Error(b->where, "an event needs its Story");
    if (ev.Type < 0 || ev.Type > 7) Error(b->where, "an event's Type is 0..7");
    if (ev.Type == 5 && ev.DataText[1].size() < 2)
      Error(b->where, "an event of type 5 names the file to load in DataText[1]");
    if (ev.Type == 4) {
      int choices = 0;
      for (int k = 1; k <= kEventDataText; ++k) choices += ev.DataText[k].size() > 1 ? 1 : 0;
      if (choices == 0) Error(b->where, "an event of type 4 needs the words of its choices, DataText[1..5]");
    }
  }
}

}  // namespace mf::content
