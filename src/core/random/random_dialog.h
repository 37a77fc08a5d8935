// The Random Scenario dialog: a new game on a newly made map, its regimes,
// who plays them and the game's options, in one dialog.
#pragma once

#include <string>
#include <vector>

#include "engine/start_choices.h"
#include "model/capacity.h"
#include "platform/platform.h"
#include "platform/scripted_platform.h"

namespace mf {

// Rows of the dialog: one per regime of the default table.
constexpr int kRandomRows = 10;
// The base scenario whose rules, unit types, research and peoples a random
// game plays with; it lies in the program's scenarios folder.
constexpr const char* kRandomBaseFile = "2PL_Two_Rivers.mf1";

// The ten regimes a random game can have: names, colours, peoples, 20
// political points and "Bataljon" formations. Game.RegimeCount becomes 10;
// regime 1 is played by a human, the others by the computer.
void MakeRandomRegimes();

class RandomScenarioDialog : public StartChoices {
 public:
  static constexpr const char* kCaption = "Random Scenario";
  static constexpr const char* kMapSizeLabel = "MAPSIZE:";
  static constexpr const char* kLandLabel = "Approx LAND %:";
  static constexpr const char* kRegimesLabel = "Regimes:";
  static constexpr const char* kGameOptions = "GAME OPTIONS";
  static constexpr const char* kFogOptions = "FOG OF WAR OPTIONS";
  static constexpr const char* kAIOptions = "AI OPTIONS";
  static constexpr const char* kFogLabel = "Fog of War";
  static constexpr const char* kExplorationLabel = "Fog of Exploration";
  static constexpr const char* kPbemLabel = "Play By Email";
  static constexpr const char* kPasswordsLabel = "Use Passwords";
  static constexpr const char* kAIBonusLabel = "AI gets production bonus";
  static constexpr const char* kAlliedLabel = "All AI's are allied";
  static constexpr const char* kOverrideLabel = "Random Override:";
  static constexpr const char* kRealStartLabel = "But real random for start towns";
  static constexpr const char* kHumanLabel = "Human";
  static constexpr const char* kStartCaption = "Start Random Game";
  static constexpr const char* kCancelCaption = "Cancel";
  // E-mail addresses are kept only below this length.
  static constexpr int kEmailLimit = 40;

  // Mirrors the regimes and the game's switches into the dialog and opens
  // it, with the defaults of the texts and of the number of regimes.
  void Prepare();

  // ---- Fields (what the player sees and types) -----------------------------
  std::string mapSizeText = "40";
  std::string landText = "50";
  int regimes = 4;               // the option button 1..10
  std::string overrideText = "0";
  // The switches of fog, play by e-mail, passwords and the computer's
  // production bonus are StartChoices'.
  bool allied = false;
  bool realStart = false;
  RegimeRow rows[kRandomRows + 1];  // 1-based; rows above the chosen number of regimes are hidden

  // ---- State --------------------------------------------------------------
  bool open = false;
  bool made = false;       // closed by Start Random Game with a map made
  bool refused = false;    // the last press of Start Random Game was refused
  std::string refusal;     // its message

  // ---- The player's actions -------------------------------------------------
  void SetMapSize(const std::string& text) { mapSizeText = text; }
  void SetLand(const std::string& text) { landText = text; }
  void SetOverride(const std::string& text) { overrideText = text; }
  // One of the ten option buttons; rows above it are hidden.
  bool SetRegimes(int n, std::string* why);
  // "Human": Regime.AI 0 when set, 1 when cleared; a scenario that forbids
  // the computer (engine variable 701 at any value but 0) says so and keeps
  // the regime human.
  bool SetHuman(int row, bool human, std::string* why) override;
  // The address is kept when shorter than 40 characters.
  bool SetEmail(int row, const std::string& email, std::string* why) override;
  void SetAllied(bool on) { allied = on; }
  void SetRealStart(bool on) { realStart = on; }
  // "Start Random Game": the checks, and with all passed the map is made
  // and the dialog closes. A refusal shows its message and keeps it open.
  bool StartButton(std::string* why);
  void CancelButton();

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: size=N, land=L, regimes=R, humans=1,0,.. (one entry per
  // regime from 1, 1 = human), email=a,b,.., seed=S, realstart=0/1,
  // fog=0/1, exploration=0/1, pbem=0/1, passwords=0/1, aibonus=0/1,
  // allied=0/1, start, cancel.
  std::string DialogName() const override { return "random"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return refused ? "cancel" : "start"; }

 private:
  void Mirror() override;
  bool Refuse(const std::string& message, std::string* why);
};

// The dialog's settings of a script or command line as its actions:
// "key=value" words with the keys size, land, regimes, humans, email, seed,
// realstart, fog, exploration, pbem, passwords, aibonus, allied. The number
// of regimes comes first, so that the rows it shows can be set; the others
// keep their order. False, with a reason, for a word of another kind.
bool RandomDialogActions(const std::vector<std::string>& words, std::vector<DialogAction>* actions,
                         std::string* why);

// The program's base scenario of random games.
std::string RandomBasePath();

// Every regime of the ten gets a portrait set for its officers' faces: the
// set of its people's number when the pictures have one, else the first set
// the pictures have.
void GivePortraitSets();

}  // namespace mf
