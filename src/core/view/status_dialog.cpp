#include "view/status_dialog.h"

#include <algorithm>
#include <cstdint>

#include "engine/production.h"
#include "engine/supply_flood.h"
#include "engine/type_info_dialog.h"
#include "model/arith.h"
#include "model/bounds.h"
#include "model/game_state.h"

namespace mf {
namespace {

const std::string& TypeName(Long t) { return Type[ValidType(t) ? t : 0].Name; }

// The unit of SHQ number s of regime r, 0 when that number is free or its
// unit has gone to another regime.
int ShqUnit(int r, int s) {
  const Long u = Shq[r][s].Unit;
  if (!ValidUnit(u) || Unit[u].Regime != r || Unit[u].Shq != s) return 0;
  return static_cast<int>(u);
}

// The SHQ planes hold the last turn start of the moving regime; before the
// first turn nothing has been served and they mean nothing.
bool Served(int r) { return Game.Turn > 0 && r == Game.CurRegime; }

// Supply a town sends its SHQ, as the turn start counts it.
std::int64_t TownSupplyFor(int r, int x, int y) {
  std::int64_t v = TownSupply(x, y);
  if (Regime[r].AI == 1 && Game.AIProdBonus == 1) v *= 2;
  if (Hex[x][y].Prod == -1) v *= EV(237);
  return v;
}

// A formation answers to the SHQ when its boss is the SHQ or its boss's boss is.
bool UnderShq(int u, int shq) {
  if (Unit[u].Shq > 0 || Unit[u].Boss == 0) return false;
  const Long boss = Unit[u].Boss;
  return boss == shq || (ValidUnit(boss) && Unit[boss].Boss == shq);
}

// What one town makes in a turn, in words.
std::string TownOutputText(int r, const HexRec& h, int x, int y) {
  const bool bonus = Regime[r].AI == 1 && Game.AIProdBonus == 1;
  // H x Pop: the working population, less the damaged part.
  std::int64_t worked = static_cast<std::int64_t>(100 - h.Damage) * h.Pop;
  if (bonus) worked *= 2;
  if (h.Prod == 0) {
    const std::int64_t per = 100 * static_cast<std::int64_t>(EV(231));
    const std::int64_t pp = per > 0 ? worked / per : 0;
    return NumText(pp) + " Political Point(s)";
  }
  if (h.Prod == -1) return NumText(TownSupplyFor(r, x, y)) + " Extra Supply Points";
  const Long cost = Type[ValidType(h.Prod) ? h.Prod : 0].Cost;
  const std::int64_t pieces = cost > 0 ? worked / (100 * static_cast<std::int64_t>(cost)) : 0;
  return NumText(pieces) + "x " + TypeName(h.Prod);
}

}  // namespace

int StatusRegime() {
  if (Game.Turn > 0 && UI.EditMode != 1) return CurrentRegime();
  if (!ValidHex(UI.SelX, UI.SelY)) return 0;
  const Long owner = Hex[UI.SelX][UI.SelY].Owner;
  return ValidRegime(owner) ? static_cast<int>(owner) : 0;
}

std::vector<std::string> HexStatusReport() {
  std::vector<std::string> out;
  if (!ValidHex(UI.SelX, UI.SelY)) {
    Plat().ShowMessage("No hex selected before going to status report.", "");
    return out;
  }
  const int x = UI.SelX, y = UI.SelY;
  out.push_back("HEX STATUS " + NumText(x) + "," + NumText(y));
  const int r = StatusRegime();
  if (r == 0 || !Served(r)) return out;
  const HexRec& h = Hex[x][y];
  for (int s = 1; s <= kShqCap; ++s) {
    const int u = ShqUnit(r, s);
    if (u == 0 || h.ShqDist[s] > EV(230)) continue;
    out.push_back("Hex is supplied by " + Unit[u].Name);
    out.push_back("   -distance: " + NumText(h.ShqDist[s]));
    // A route that never crossed the sea has no port to tell of.
    const int px = h.ShqPrev3[s], py = h.ShqPrev4[s];
    if (px == -1) {
      out.push_back("   -supply did not enter through port (50% penalty)");
    } else if (ValidHex(px, py)) {
      const std::string& port = Hex[px][py].UrbanName;
      out.push_back("   -supply entered through port: " +
                    (port.empty() ? NumText(px) + "," + NumText(py) : port));
    }
  }
  return out;
}

std::vector<std::string> OrderOfBattleReport() {
  std::vector<std::string> out;
  out.push_back("YOUR ORDER OF BATTLE: (OOB)");
  const int r = StatusRegime();
  if (r == 0) return out;
  const int n = LastUnit();
  std::vector<bool> listed(static_cast<std::size_t>(n) + 1, false);
  auto mine = [r](int u) { return Unit[u].Regime == r && Unit[u].Shq == 0; };
  // A THQ with the formations under it.
  auto thq = [&](int t) {
    out.push_back("......THQ: " + Unit[t].Name);
    listed[t] = true;
    for (int u = 1; u <= n; ++u) {
      if (listed[u] || !mine(u) || Unit[u].Boss != t) continue;
      out.push_back("............: " + Unit[u].Name);
      listed[u] = true;
    }
  };
  const int width = std::clamp<int>(EV(616), 0, kStockCap);
  for (int s = 1; s <= kShqCap; ++s) {
    const int shq = ShqUnit(r, s);
    if (shq == 0) continue;
    out.push_back("SHQ: " + Unit[shq].Name);
    for (int k = 1; k <= width; ++k) {
      const ShqRec& pool = Shq[r][s];
      if (pool.StockType[k] == 0 || pool.StockQty[k] == 0) continue;
      out.push_back(NumText(pool.StockQty[k]) + "x " + TypeName(pool.StockType[k]));
    }
    for (int u = 1; u <= n; ++u)
      if (!listed[u] && mine(u) && Unit[u].Thq > 0 && Unit[u].Boss == shq) thq(u);
    // Formations that report to the SHQ itself, without a THQ between.
    for (int u = 1; u <= n; ++u) {
      if (listed[u] || !mine(u) || Unit[u].Boss != shq) continue;
      out.push_back("......: " + Unit[u].Name);
      listed[u] = true;
    }
  }
  bool dots = false;
  auto dotLine = [&] {
    if (!dots) out.push_back("........................................");
    dots = true;
  };
  for (int u = 1; u <= n; ++u) {
    if (listed[u] || !mine(u) || Unit[u].Thq == 0) continue;
    dotLine();
    thq(u);
  }
  for (int u = 1; u <= n; ++u) {
    if (listed[u] || !mine(u)) continue;
    dotLine();
    out.push_back("......: " + Unit[u].Name);
    listed[u] = true;
  }
  return out;
}

std::vector<std::string> SupplySystemReport() {
  std::vector<std::string> out;
  out.push_back("CURRENT PRODUCTION:");
  const int r = StatusRegime();
  if (r != 0) {
    for (int x = 1; x <= MapW(); ++x) {
      for (int y = 1; y <= MapH(); ++y) {
        const HexRec& h = Hex[x][y];
        if (h.Owner != r || h.Pop <= 0) continue;
        out.push_back(h.UrbanName + " produces " + TownOutputText(r, h, x, y));
      }
    }
  }
  out.push_back("");
  out.push_back("YOUR SUPPLY SYSTEM:");
  if (r == 0) return out;
  const bool served = Served(r);
  const long range = EV(230);
  for (int s = 1; s <= kShqCap; ++s) {
    const int shq = ShqUnit(r, s);
    if (shq == 0) continue;
    out.push_back("SHQ: " + Unit[shq].Name);
    std::int64_t in = 0, given = 0;
    out.push_back("IS SUPPLIED BY THE FOLLOWING TOWNS: ");
    for (int x = 1; served && x <= MapW(); ++x) {
      for (int y = 1; y <= MapH(); ++y) {
        const HexRec& h = Hex[x][y];
        // The towns the turn start counted: reached, and not over open shore.
        if (h.Owner != r || h.Pop <= 0 || h.ProdSHQ != shq || h.ShqDist[s] > range || h.ShqPrev3[s] == -1) continue;
        const std::int64_t v = TownSupplyFor(r, x, y);
        in += v;
        out.push_back("... " + h.UrbanName + " SUPPLY POINTS by the town: " + NumText(v));
      }
    }
    out.push_back("HAS SUPPLIED THE FOLLOWING UNITS THIS TURN: ");
    for (int x = 1; served && x <= MapW(); ++x) {
      for (int y = 1; y <= MapH(); ++y) {
        if (Hex[x][y].ShqDist[s] > range) continue;
        for (int slot = 1; slot <= kStackSlots; ++slot) {
          const Long u = Hex[x][y].Unit[slot];
          if (!ValidUnit(u) || Unit[u].Regime != r || !UnderShq(static_cast<int>(u), shq)) continue;
          given += Unit[u].GenSupply;
          out.push_back("... " + NumText(Unit[u].GenSupply) +
                        (Unit[u].Thq > 0 ? " SUPPLY POINTS FOR THQ: " : " SUPPLY POINTS FOR: ") + Unit[u].Name);
        }
      }
    }
    out.push_back("SHQ INPUT = " + NumText(in) + "     SHQ OUTPUT = " + NumText(given));
  }
  return out;
}

void StatusDialog::Prepare() {
  open = true;
  // The window opens on the report chosen last, the hex report the first time.
  Show(UI.StatusReport >= 1 && UI.StatusReport <= 3 ? static_cast<int>(UI.StatusReport) : 1);
}

void StatusDialog::Show(int which) {
  report = std::clamp(which, 1, 3);
  UI.StatusReport = report;
  if (report == 1) lines = HexStatusReport();
  if (report == 2) lines = OrderOfBattleReport();
  if (report == 3) lines = SupplySystemReport();
  Plat().ShowReport(lines);
}

std::string StatusDialog::Text() const { return JoinLines(lines); }

bool StatusDialog::Act(const std::string& action, const std::string&, std::string* why) {
  if (!open) {
    *why = "the dialog is closed";
    return false;
  }
  if (action == "hex") {
    HexButton();
  } else if (action == "oob") {
    OobButton();
  } else if (action == "supply") {
    SupplyButton();
  } else if (action == "exit" || action == "close") {
    ExitButton();
  } else {
    *why = "no action \"" + action + "\" in the Status dialog (hex, oob, supply, exit)";
    return false;
  }
  return true;
}

void DoStatus() {
  StatusDialog dialog;
  dialog.Prepare();
  Plat().RunDialog(dialog);
}

}  // namespace mf
