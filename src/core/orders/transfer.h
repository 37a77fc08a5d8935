// Transfer of troops and supply between formations of one regime and the
// stock of an SHQ, paid in transport over the source's supply reach.
#pragma once

#include <string>
#include <vector>

#include "model/game_state.h"
#include "platform/platform.h"

namespace mf {

// A cost that no transport can pay: out of reach, overseas without a port,
// or more than the destination can hold.
constexpr long kTransferImpossible = 99999999;
// No slider goes beyond this many pieces.
constexpr long kTransferRowMax = 32000;
// Sound slot of a transfer ("transfer.wav").
constexpr int kTransferSound = 31;

// What the computer player asks a transfer to move: for each class 1..4
// (infantry, mobile, artillery, armour) a type and a quantity, and supply
// points. The computer fills it and calls RunTransfer(true).
struct TransferRequestRec {
  Long Type[5] = {};
  Long Qty[5] = {};
  Long Supply = 0;
};
extern TransferRequestRec TransferRequest;

// One class row of the dialog.
struct TransferRow {
  Long type = 0;       // 0: the row is empty
  Long chosen = 0;     // what the slider says
  Long available = 0;  // at most kTransferRowMax
};

// The Transfer dialog and its working record. The source S stands at
// UI.OrdX, UI.OrdY, UI.OrdSlot, the destination D at UI.SelX, UI.SelY,
// UI.SelSlot; the supply flood from S lies in Hex.Mark and the route planes.
class TransferDialog : public HumbleDialog {
 public:
  static constexpr const char* kCaption = "TRANSFER";
  static constexpr const char* kTransfer = "Transfer";
  static constexpr const char* kCancel = "Cancel";
  static constexpr const char* kAdd = "Add";
  static constexpr const char* kNotAvailable = "N/A";
  static constexpr const char* kTooMuch = "You selected too much for transfer!";
  // Words of the four class rows, 1..4.
  static const char* RowWord(int cls);

  // Prepares the record for S and D; for the user it then waits for the
  // dialog, for the computer the quantities come from TransferRequest.
  // Leaves the dialog closed when S or D is missing.
  void Prepare(bool aiMode);

  // Weight and cost of what is chosen: fills LandCost, SeaCost, MessageText.
  void WorkOutCost();
  // The cost labels ("N/A" for a cost beyond its capacity) and the capacities.
  void FillLabels();
  // Mixes experience, readiness and disruption of what comes into D.
  void MixIncomingFigures();
  // Carries the transfer out (after MixIncomingFigures), in the user's or the
  // computer's way.
  void CarryOut();

  // ---- The record -----------------------------------------------------------
  int source = 0, dest = 0;
  bool sourceShq = false, destShq = false;
  TransferRow rows[5];  // [1..4]
  bool supplyShown = false;
  Long supplyChosen = 0, supplyAvailable = 0;
  long LandCap = 0, SeaCap = 0;
  long LandCost = 0, SeaCost = 0;
  std::string MessageText;
  bool AIMode = false;
  long distance = 0;  // Hex.Mark of the flood at D

  // ---- Outputs ------------------------------------------------------------
  bool listShown = false;               // the stock list of an SHQ source
  std::vector<std::string> stockRows;   // "12x Rifles"
  std::vector<int> stockTypeOfRow;      // the type of each row
  int stockRow = -1;                    // the selected row, -1 none
  std::string rowText[5];               // type name of each class row, "" when empty
  std::string landCapText, seaCapText;
  std::string landCostText, seaCostText;
  bool transferDone = false;            // the transfer was carried out

  bool open = false;

  // ---- The player's actions -------------------------------------------------
  bool SelectStock(int row, std::string* why);
  // The add button: the selected stock type into the row of its class.
  bool Add(std::string* why);
  // A slider: the chosen quantity of class row 1..4, or of supply.
  bool SetChosen(int cls, long n, std::string* why);
  bool SetSupply(long n, std::string* why);
  // "Transfer": refused without a word while a cost is beyond its capacity.
  bool Transfer(std::string* why);
  bool Cancel(std::string* why);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: add=T (stock type T into its row), inf=N, mob=N, art=N,
  // arm=N, supply=N, transfer, cancel.
  std::string DialogName() const override { return "transfer"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "cancel"; }

 private:
  void FromRequest();
  void Refresh();
};

// The do button of a transfer ("DO TRANSFER FROM ..."), with the source at
// UI.OrdX, UI.OrdY, UI.OrdSlot and the selected formation as destination:
// checks the chain of command between the two, floods supply from the
// source and opens the Transfer dialog.
void TransferBetween();

// Prepares and (for the user) shows the Transfer dialog between the unit at
// UI.OrdX, UI.OrdY, UI.OrdSlot and the one selected; the caller has flooded
// supply from the source. With aiMode the dialog is not shown: the
// quantities of TransferRequest go over at once, whatever the capacities,
// and no sound plays. True when something was carried out.
bool RunTransfer(bool aiMode);

// Ends the transfer order: the flag off, the flood forgotten, the selection
// back on the source, both hexes redrawn and the buttons refreshed.
void EndTransferOrder();

}  // namespace mf
