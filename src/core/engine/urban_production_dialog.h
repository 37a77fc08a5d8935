// The Urban Production dialog: what a town makes (political points, extra
// supply or a unit type) and to which SHQ it delivers.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

class UrbanProductionDialog : public HumbleDialog {
 public:
  // Fixed words of the dialog.
  static constexpr const char* kCaption = "Urban Production";
  static constexpr const char* kTownLabel = "TOWN:";
  static constexpr const char* kProdLabel = "PROD:";
  static constexpr const char* kShqLabel = "SHQ:";
  static constexpr const char* kTypesTitle = "Production options:";
  static constexpr const char* kShqsTitle = "Strategic HQ: options:";
  static constexpr const char* kSelectedLabel = "Selected:";
  static constexpr const char* kEstimateLabel = "Estimated production:";
  static constexpr const char* kChangeProd = "Change Production to selection";
  static constexpr const char* kChangeShq = "Change delivery to selected SHQ";
  static constexpr const char* kProducePP = "Produce PP instead";
  static constexpr const char* kProduceSupply = "Produce Supply";
  static constexpr const char* kShowInfo = "Show Info on selected unit type";
  static constexpr const char* kClose = "Close";
  // Width the type's name is padded to in a row of the production list.
  static constexpr int kNameWidth = 20;

  // Fills every output for the town at (x, y) and opens the dialog.
  void Prepare(int x, int y);

  // ---- Outputs ------------------------------------------------------------
  std::string townText;  // Hex.UrbanName
  std::string prodText;  // type name, "Political Points", "Extra Supply" or "Supply Points"
  std::string shqText;   // unit name of Hex.ProdSHQ, or "None"

  // The production list: name padded to 20, then the cost, for a fixed-pitch font.
  std::vector<std::string> typeRows;
  std::vector<int> typeOfRow;  // unit type number of each row
  // The SHQ list: unit names of the regime's SHQs.
  std::vector<std::string> shqRows;
  std::vector<int> shqNumberOfRow;  // SHQ number 1..50 of each row
  std::vector<int> shqUnitOfRow;    // its unit number

  int typeRow = -1;  // highlighted row of each list, -1 none
  int shqRow = -1;
  std::string selectedType;  // shown after "Selected:" under each list
  std::string selectedShq;
  std::string estimate;      // pieces per turn, or "N turns"

  bool changeProdEnabled = false;
  bool changeShqEnabled = false;
  bool infoEnabled = false;

  // ---- State --------------------------------------------------------------
  int hexX = 0, hexY = 0;
  bool open = false;

  // ---- The player's actions -------------------------------------------------
  // A click on a row of the production list / of the SHQ list.
  bool ClickTypeRow(int row, std::string* why);
  bool ClickShqRow(int row, std::string* why);
  // The buttons.
  bool ChangeProduction(std::string* why);
  bool ChangeDelivery(std::string* why);
  bool ProducePP(std::string* why);
  bool ProduceSupply(std::string* why);
  bool ShowInfo(std::string* why);
  // Closes the dialog; a town without an SHQ is given the regime's first.
  bool Close(std::string* why);

  // ---- HumbleDialog -------------------------------------------------------
  // Script actions: type=N (the row of unit type N), changeprod, shq=U (the
  // row of SHQ unit U), changeshq, pp, supply, info, close.
  std::string DialogName() const override { return "production"; }
  bool IsOpen() const override { return open; }
  bool Act(const std::string& action, const std::string& value, std::string* why) override;
  std::string DefaultAction() const override { return "close"; }

 private:
  void ShowProd();
  void ShowShq();
};

// The estimate for a type in a town of that population: the pieces one turn
// makes, or when that is none, "N turns" for one piece. "" without population.
std::string ProductionEstimate(int type, long pop);

}  // namespace mf
