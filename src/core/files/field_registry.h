// Every saved field and the working fields tests need, addressed by the name
// the rules give it: "Game.Turn", "Hex[3,4].Owner", "Hex[3,4].Unit[2]",
// "Unit[7].Readiness", "Type[2].Attr[4]", "Dip[1,2].Cost",
// "Shq[1,2].StockQty[3]", "News[1,5].Text", "People[1].FirstName[3]",
// "EngineVar[533]", "UI.SelX". Used by scripts, the JSON files and editors.
#pragma once

#include <string>
#include <vector>

namespace mf {

// Reads a field as text (numbers without a leading blank). False with a
// reason for an unknown name or an index outside the table.
bool GetField(const std::string& name, std::string* value, std::string* why);
// Writes a field; numbers are taken by Val. False with a reason as above.
bool SetField(const std::string& name, const std::string& value, std::string* why);
// The record and field names known, as "Unit[].Readiness", for help texts.
std::vector<std::string> FieldPatterns();

}  // namespace mf
