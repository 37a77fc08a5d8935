// The Start Game dialog: the scenario's story, the game options, and who
// plays each regime (the computer or a human, and his e-mail address).
// Every box writes straight into the game, as the player clicks it.
#pragma once

#include <string>

#include "engine/start_choices.h"
#include "model/capacity.h"

namespace mf {

// Rows the dialog has: one per regime, up to the real regime limit.
constexpr int kStartRows = kSightRegimes;

class StartGameDialog : public StartChoices {
 public:
  // Fills the outputs from the stored values and opens the dialog.
  void Prepare();

  // ---- Outputs ------------------------------------------------------------
  std::string caption = "Start Game";
  std::string story;
  std::string gameOptionsTitle = "GAME OPTIONS";
  std::string fogOptionsTitle = "FOG OF WAR OPTIONS";
  std::string fogLabel = "Fog of War";
  std::string explorationLabel = "Fog of Exploration";
  std::string pbemLabel = "Play By Email";
  std::string passwordsLabel = "Use Passwords";
  std::string aiBonusLabel = "AI gets production bonus";
  std::string regimeColumn = "Regime";
  std::string playerColumn = "AI / Human";
  std::string emailColumn = "E-mail";
  std::string humanLabel = "Human";
  std::string startCaption = "Start";
  std::string cancelCaption = "Cancel";
  RegimeRow rows[kStartRows + 1];  // 1-based; rows above Game.RegimeCount are hidden

  // ---- State --------------------------------------------------------------
  bool open = false;
  bool started = false;     // closed by Start with every check passed
  bool refused = false;     // the last press of Start, or a setting, was refused
  std::string refusal;      // its message

  // ---- The player's actions -------------------------------------------------
  // The switches are StartChoices'. The "Human" choice of a row; a scenario
  // that forbids the computer (engine variable 701 at 1) keeps every row
  // human. False for a hidden row.
  bool SetHuman(int row, bool human, std::string* why) override;
  bool SetEmail(int row, const std::string& email, std::string* why) override;
  // Runs the four checks; the message of the last one that fails is shown and
  // the dialog stays open. When all pass, Game.SpareFlag is cleared and the
  // dialog closes with `started`.
  bool StartButton(std::string* why);
  void CancelButton();

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: fog=0/1, exploration=0/1, pbem=0/1, passwords=0/1,
  // aibonus=0/1, ai=1,0,.. (one entry per regime from 1, 1 = the computer),
  // email=a,b,.. (one entry per regime from 1), start, cancel.
  std::string DialogName() const override { return "startgame"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  // Start; after a refused start, cancel.
  std::string DefaultAction() const override { return refused ? "cancel" : "start"; }

 private:
  bool Apply(const std::string& action, const std::string& value, std::string* why);
  void Mirror() override;
};

}  // namespace mf
