// Officers: how one is drawn, the pool a regime buys them into, and the
// Officerpool dialog that hands them to formations.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

// Portraits of officers are sprites from here on: portrait n is 1800 + n.
constexpr int kPortraitSpriteBase = 1800;
// A pool holds at most this many officers; buying needs a place below it.
constexpr int kPoolLimit = 50;

// Draws a new officer. Unit 0 puts him into the pool of Game.CurRegime;
// otherwise he takes command of that unit (and serves the unit's regime).
// The generator is seeded from the platform's clock first. Returns the
// officer's row, or 0 after one of the three messages (no portrait of the
// people's set, no free row, no names) or when there is no regime to serve.
int MakeOfficer(int unit);

// One rating from the ladder of engine variables 471..476 for a d100 draw
// 0..99; `further` is the second draw that splits 9 from 8 (above 0.8 is 9)
// and 3 from 2 (above 0.5 is 3).
int OfficerSkill(int d100, float further);

// Officers of regime r waiting in its pool.
int PoolCount(int r);

// What the dialog shows of one officer: the portrait sprite and the lines
// name, "LAND: ", "SEA: ", "AIR: ", "FAME: ", "RETREAT: " with the figures.
struct OfficerView {
  int picture = 0;                 // 1800 + Officer.Pic, 0 for none
  std::vector<std::string> lines;  // the six lines, or the one line of "nobody"
};
// The view of officer o; for no officer, `none` as the only line.
OfficerView ViewOfOfficer(int o, const std::string& none);

class OfficerPoolDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "Officerpool";
  static constexpr const char* kNoOfficer = "No officer attached to unit.";
  static constexpr const char* kAssign = "Assign";
  static constexpr const char* kBuy = "Buy officer (1pp)";
  static constexpr const char* kFire = "Fire";
  static constexpr const char* kClose = "Close";
  // The editor's buttons.
  static constexpr const char* kNew = "New officer";
  static constexpr const char* kPortrait = "Set portrait";
  static constexpr const char* kEdit = "Edit officer";
  static constexpr const char* kDelete = "Delete officer";
  static constexpr const char* kReset = "Reset unit's officer";

  // Fills every output for Game.CurRegime and the formation selected on the
  // map (UI.SelX, UI.SelY, UI.SelSlot) and opens the dialog. editing shows
  // the editor's buttons.
  void Prepare(bool editing);

  // ---- Outputs ------------------------------------------------------------
  std::string ppText;                  // "(" + points + "pp available)"
  std::vector<std::string> poolRows;   // names of the pool's officers, in number order
  std::vector<int> officerOfRow;       // officer number of each row
  int poolRow = -1;                    // the selected row, -1 none
  OfficerView unitView;                // the selected formation's own officer
  OfficerView poolView;                // the selected pool officer (empty lines when none)
  bool fireEnabled = false;            // a pool officer is selected
  bool editButtonsShown = false;

  // ---- State --------------------------------------------------------------
  int regime = 0;
  int unit = 0;  // the formation selected on the map, 0 for none
  bool open = false;

  // ---- The player's actions -------------------------------------------------
  bool SelectRow(int row, std::string* why);
  bool Assign(std::string* why);
  bool Buy(std::string* why);
  bool Fire(std::string* why);
  bool Close(std::string* why);
  // The editor's: a free new officer, the portrait and the six figures of
  // the officer in view (the selected pool officer, else the formation's
  // own), deleting the selected pool officer, and resetting the
  // formation's own officer to land, sea, air 5 and retreat 50.
  bool MakeNew(std::string* why);
  bool SetPortrait(std::string* why);
  bool Edit(std::string* why);
  bool Delete(std::string* why);
  bool ResetUnitOfficer(std::string* why);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: officer=N (the row of officer number N), assign, buy,
  // fire, close, and the editor's new, portrait, edit, delete, reset.
  std::string DialogName() const override { return "officerpool"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }

 private:
  void Fill();
  // The officer that the editor's portrait and figure prompts change.
  int OfficerInView() const;
};

// Opens the Officerpool dialog for Game.CurRegime ("[O]fficerpool"). In the
// editor the regime is first taken from the selected formation (or the
// hex's owner), the editor's buttons are shown, and closing leaves
// Game.CurRegime at 0 again.
void OpenOfficerPoolDialog();

}  // namespace mf
