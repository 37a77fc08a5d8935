#include "engine/urban_production_dialog.h"

#include <algorithm>

#include "engine/production.h"
#include "engine/research.h"
#include "engine/type_info_dialog.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"

namespace mf {
namespace {

// In the editor no regime is moving: the lists and the delivery are those
// of the town's owner while they are worked out.
class OwnerAsCurrent {
 public:
  explicit OwnerAsCurrent(int owner) : saved_(Game.CurRegime), active_(UI.EditMode == 1) {
    if (active_) Game.CurRegime = owner;
  }
  ~OwnerAsCurrent() {
    if (active_) Game.CurRegime = saved_;
  }
  OwnerAsCurrent(const OwnerAsCurrent&) = delete;
  OwnerAsCurrent& operator=(const OwnerAsCurrent&) = delete;

 private:
  Long saved_;
  bool active_;
};

bool BesideSea(int x, int y) {
  for (int dir = 1; dir <= kHexSides; ++dir) {
    const HexXY n = Neighbour(x, y, dir);
    if (n.x >= 1 && n.y >= 1 && Hex[n.x][n.y].Land == kSea) return true;
  }
  return false;
}

// Whether the current regime may make the type in this town: the research
// is done, the town's people can make it, the regime's people may own it, a
// ship needs the sea next door, and it has a price.
bool CanMake(int t, int x, int y) {
  const TypeRec& type = Type[t];
  const int r = CurrentRegime();
  if (!TypeResearchKnown(r, t)) return false;
  const Long people = Hex[x][y].People;
  if (people < 0 || people > kPeopleCap || type.Living[people] != 1) return false;
  const Long own = Regime[r].OwnPeople;
  if (own < 0 || own > kPeopleCap || type.Owning[own] != 1) return false;
  if (type.Theater == kSeaTheater && !BesideSea(x, y)) return false;
  return type.Cost > 0;
}

std::string TypeRow(int t) {
  std::string name = Type[t].Name;
  if (static_cast<int>(name.size()) < UrbanProductionDialog::kNameWidth)
    name.append(UrbanProductionDialog::kNameWidth - name.size(), ' ');
  return name + NumText(Type[t].Cost);
}

bool Closed(bool open, std::string* why) {
  if (open) return false;
  *why = "the dialog is closed";
  return true;
}

}  // namespace

std::string ProductionEstimate(int type, long pop) {
  if (!ValidType(type) || pop <= 0) return "";
  const long perTurn = ProducedCount(type, pop);
  if (perTurn > 0) return NumText(perTurn);
  const long cost = Type[type].Cost;
  long turns = cost / pop;
  if (cost % pop != 0) ++turns;
  return NumText(turns) + " turns";
}

void UrbanProductionDialog::Prepare(int x, int y) {
  hexX = x;
  hexY = y;
  open = ValidHex(x, y);
  typeRows.clear();
  typeOfRow.clear();
  shqRows.clear();
  shqNumberOfRow.clear();
  shqUnitOfRow.clear();
  typeRow = shqRow = -1;
  selectedType.clear();
  selectedShq.clear();
  estimate.clear();
  changeProdEnabled = changeShqEnabled = infoEnabled = false;
  if (!open) return;

  const HexRec& h = Hex[x][y];
  townText = h.UrbanName;
  ShowProd();
  ShowShq();
  {
    OwnerAsCurrent owner(h.Owner);
    const int types = LastType();
    for (int t = 1; t <= types; ++t) {
      if (!CanMake(t, x, y)) continue;
      typeRows.push_back(TypeRow(t));
      typeOfRow.push_back(t);
    }
    const int r = CurrentRegime();
    for (int s = 1; s <= kShqCap; ++s) {
      const Long u = Shq[r][s].Unit;
      if (u == 0) continue;
      shqRows.push_back(Unit[ValidUnit(u) ? u : 0].Name);
      shqNumberOfRow.push_back(s);
      shqUnitOfRow.push_back(u);
    }
  }
  // The first rows stand highlighted; the change buttons wait for a click.
  if (!typeRows.empty()) typeRow = 0;
  if (!shqRows.empty()) shqRow = 0;
  infoEnabled = typeRow >= 0;
}

void UrbanProductionDialog::ShowProd() {
  const Long prod = Hex[hexX][hexY].Prod;
  if (prod == 0) {
    prodText = "Political Points";
  } else if (prod == -1) {
    prodText = "Extra Supply";
  } else {
    prodText = Type[ValidType(prod) ? prod : 0].Name;
  }
}

void UrbanProductionDialog::ShowShq() {
  const Long u = Hex[hexX][hexY].ProdSHQ;
  shqText = u > 0 ? Unit[ValidUnit(u) ? u : 0].Name : "None";
}

bool UrbanProductionDialog::ClickTypeRow(int row, std::string* why) {
  if (Closed(open, why)) return false;
  if (row < 0 || row >= static_cast<int>(typeRows.size())) {
    *why = "no such row in the production list";
    return false;
  }
  typeRow = row;
  const int t = typeOfRow[row];
  selectedType = Type[t].Name;
  estimate = ProductionEstimate(t, Hex[hexX][hexY].Pop);
  changeProdEnabled = true;
  infoEnabled = true;
  return true;
}

bool UrbanProductionDialog::ClickShqRow(int row, std::string* why) {
  if (Closed(open, why)) return false;
  if (row < 0 || row >= static_cast<int>(shqRows.size())) {
    *why = "no such row in the SHQ list";
    return false;
  }
  shqRow = row;
  selectedShq = shqRows[row];
  changeShqEnabled = true;
  return true;
}

bool UrbanProductionDialog::ChangeProduction(std::string* why) {
  if (Closed(open, why)) return false;
  if (!changeProdEnabled || typeRow < 0) {
    *why = std::string("\"") + kChangeProd + "\" is off until a type is clicked";
    return false;
  }
  // The points gathered so far stay with the town for the new type.
  Hex[hexX][hexY].Prod = typeOfRow[typeRow];
  ShowProd();
  return true;
}

bool UrbanProductionDialog::ChangeDelivery(std::string* why) {
  if (Closed(open, why)) return false;
  if (!changeShqEnabled || shqRow < 0) {
    *why = std::string("\"") + kChangeShq + "\" is off until an SHQ is clicked";
    return false;
  }
  HexRec& h = Hex[hexX][hexY];
  {
    OwnerAsCurrent owner(h.Owner);
    h.ProdSHQ = Shq[CurrentRegime()][shqNumberOfRow[shqRow]].Unit;
  }
  ShowShq();
  return true;
}

bool UrbanProductionDialog::ProducePP(std::string* why) {
  if (Closed(open, why)) return false;
  Hex[hexX][hexY].Prod = 0;
  ShowProd();
  return true;
}

bool UrbanProductionDialog::ProduceSupply(std::string* why) {
  if (Closed(open, why)) return false;
  Hex[hexX][hexY].Prod = -1;
  // Once chosen here, the extra supply reads as points.
  prodText = "Supply Points";
  return true;
}

bool UrbanProductionDialog::ShowInfo(std::string* why) {
  if (Closed(open, why)) return false;
  if (!infoEnabled || typeRow < 0) {
    *why = "no unit type is selected";
    return false;
  }
  OpenTypeInfoDialog(typeOfRow[typeRow]);
  return true;
}

bool UrbanProductionDialog::Close(std::string* why) {
  if (Closed(open, why)) return false;
  // A town is not left without delivery while its regime has an SHQ: it
  // goes to the first entry of the SHQ table, even when that entry is free
  // and so leaves it at 0.
  HexRec& h = Hex[hexX][hexY];
  if (!shqRows.empty() && h.ProdSHQ == 0) h.ProdSHQ = Shq[CurrentRegime()][1].Unit;
  open = false;
  return true;
}

bool UrbanProductionDialog::Act(const std::string& action, const std::string& value, std::string* why) {
  if (action == "type") {
    const long t = ValLong(value);
    for (std::size_t row = 0; row < typeOfRow.size(); ++row)
      if (typeOfRow[row] == t) return ClickTypeRow(static_cast<int>(row), why);
    *why = "unit type " + value + " is not in the production list";
    return false;
  }
  if (action == "shq") {
    const long u = ValLong(value);
    for (std::size_t row = 0; row < shqUnitOfRow.size(); ++row)
      if (shqUnitOfRow[row] == u) return ClickShqRow(static_cast<int>(row), why);
    *why = "unit " + value + " is not in the SHQ list";
    return false;
  }
  if (action == "changeprod") return ChangeProduction(why);
  if (action == "changeshq") return ChangeDelivery(why);
  if (action == "pp") return ProducePP(why);
  if (action == "supply") return ProduceSupply(why);
  if (action == "info") return ShowInfo(why);
  if (action == "close") return Close(why);
  *why = "no action \"" + action +
         "\" in the Urban Production dialog (type=N, changeprod, shq=U, changeshq, pp, supply, info, close)";
  return false;
}

}  // namespace mf
