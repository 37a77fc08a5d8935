// Fixed words of the game tables that the program shows.
#pragma once

#include <span>
#include <string>

namespace mf {

// "Weight", "Carry Cap", ... for type attributes 1..20; "" outside.
const std::string& TypeAttrLabel(int n);
// "Infantry", "Trucks", ... for losses and kills classes 1..12; "" outside.
const std::string& LossClassLabel(int n);
// Losses class of a type: Class + 4 x Theater.
int LossClass(int typeClass, int theater);
// Word of a class 1..4 in a theater 0..2: "Inf", "War", "Fig", ...; "" outside.
const std::string& ClassWord(int theater, int cls);
// Label of an event field in the event editor, by field name ("TurnMin" -> "=> TURN").
std::string EventFieldLabel(const std::string& field);

// One event field and its label in the event editor; FiredTurn has none.
struct EventFieldName {
  const char* field;
  const char* label;
};
// All event fields in file order, each with its editor label.
std::span<const EventFieldName> EventFields();

}  // namespace mf
