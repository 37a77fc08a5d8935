// Which class of unit type may have which ability. The Types dialog refuses
// an attribute that breaks these rules, and combat and production count on
// every type obeying them, so the shipped rule set is checked against them too.
#pragma once

#include <string>
#include <vector>

namespace mf {

// The refusal the Types dialog gives when attribute attr (1..20) of a type
// of that theater (0 land, 1 sea, 2 air) and class is set to value; "" when
// the entry is allowed. A value of 0 always passes. The rules are tested in
// the dialog's order and the first that refuses gives its message, so a type
// without a valid class gets the engineer message for attribute 12 before the
// class message. An attribute outside 1..20 gives "Not known typedata".
std::string TypeAttrRefusal(int theater, int cls, int attr, long value);

// One attribute of a type that the dialog would refuse as it stands.
struct BrokenTypeRule {
  int attr = 0;
  std::string message;
};

// Every attribute 1..20 of type t whose value the dialog would refuse, in
// attribute order; empty when the type obeys all rules (or t is outside 1..500).
std::vector<BrokenTypeRule> BrokenTypeRules(int t);

}  // namespace mf
