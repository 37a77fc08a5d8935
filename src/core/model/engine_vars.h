// The engine variables: every tunable rule is one long in a table of 1000
// that a scenario carries with it. Descriptions and categories are fixed
// labels filled at start; only the values are saved.
#pragma once

#include <string>
#include <vector>

namespace mf {

// Fills the descriptions and categories of the rows that have them.
void FillEngineVarLabels();
// Writes the start default of every row of the rules table; no other row is touched.
void SetEngineVarDefaults();
// The start default of a row; 0 for rows without one.
long EngineVarDefault(int index);

// Repairs after a load: rows a file from an older version holds as 0 get
// their repair values (row 123 -> 30, unlike its start default 40; row 235 ->
// 4000, or 2000 for an import), and a file older than 111 has row 538 doubled.
// fileVersion is the version of the file just read.
void RepairEngineVarsAfterLoad(long fileVersion, bool forImport);

// One line of the editing list. index is 0 for heading lines.
struct EngineVarLine {
  std::string text;
  int index = 0;
};
// For each category 1..15 a heading "-------------------" + Str(category) +
// "-------------------" (so "------------------- 1-------------------"),
// then in index order the rows of that category whose description is longer
// than one character: the value without a leading blank, left-aligned and
// padded with blanks to width 5, one blank, the description ("0     AI
// Forbidden. ..."). A value wider than five characters is followed by just
// the one blank ("123456 Minimal ...").
std::vector<EngineVarLine> EngineVarList();
// Changes a row through the "Give New Value" prompt (the row's description
// as text, the present value without a leading blank as default); false, with
// no prompt, for heading lines (index 0), rows outside 1..1000 and rows that no
// list line shows (description of one character or none, such as row 234).
// The entered text is taken by Val and truncated into a long; a cancelled
// (empty) prompt gives 0, as typed.
bool ChangeEngineVar(int index);

}  // namespace mf
