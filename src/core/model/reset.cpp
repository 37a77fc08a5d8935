#include "model/reset.h"

#include "model/arith.h"
#include "model/bounds.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "model/rnd.h"

namespace mf {
namespace {

// A map size field of the dialog as a number of hexes: its leading number,
// rounded as any number stored into a whole field, held to 10..100.
int MapSizeFromText(const std::string& text) {
  const std::int64_t n = CInt(Val(text));
  if (n < kMapMin) return kMapMin;
  if (n > kMapCap) return kMapCap;
  return static_cast<int>(n);
}

}  // namespace

void StartFresh(std::uint32_t seed) {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  SeedRnd(seed);
  UI.EditMode = 1;
  UI.HideEditor = true;
  setup();
}

void setup() {
  UI.PictureW = MapPictureW();
  UI.PictureH = MapPictureH();

  UI.ScrollMaxX = UI.PictureW - UI.ViewW;
  if (UI.ScrollMaxX < 0) UI.ScrollMaxX = 0;
  UI.ScrollMaxY = UI.PictureH - UI.ViewH;
  if (UI.ScrollMaxY < 0) UI.ScrollMaxY = 0;
  UI.ShowScrollX = UI.ScrollMaxX > 0;
  UI.ShowScrollY = UI.ScrollMaxY > 0;
  UI.ScrollLargeX = static_cast<Long>(300 + Int(UI.ScrollMaxX / 10.0));
  UI.ScrollLargeY = static_cast<Long>(300 + Int(UI.ScrollMaxY / 10.0));
  UI.ScrollSmall = 100;
  // A scroll bar cannot stand beyond its new end after a smaller map comes in.
  if (UI.ScrollX > UI.ScrollMaxX) UI.ScrollX = UI.ScrollMaxX;
  if (UI.ScrollX < 0) UI.ScrollX = 0;
  if (UI.ScrollY > UI.ScrollMaxY) UI.ScrollY = UI.ScrollMaxY;
  if (UI.ScrollY < 0) UI.ScrollY = 0;

  UI.ShowEditorPanel = !(UI.HideEditor || UI.WindowWidth < 820);
}

void MakeItSo(bool resetRules, const std::string& widthText, const std::string& heightText) {
  // 1. Whatever the player had selected or ordered, and the game's switches.
  UI.SelX = UI.SelY = UI.SelSlot = UI.SelCount = 0;
  UI.PrevSelX = UI.PrevSelY = 0;
  UI.OrdX = UI.OrdY = UI.OrdSlot = 0;
  UI.Order = OrderFlags{};
  UI.AttackerCount = 0;
  for (int n = 1; n <= kAttackerCap; ++n) UI.AttackerX[n] = UI.AttackerY[n] = UI.AttackerSlot[n] = 0;
  // A game that is cleared has nothing left to resume or to leave.
  UI.ResumeTurn = false;
  UI.ExitAfterTurnForm = false;
  Game.FogOfWar = 0;
  Game.FogOfExploration = 0;
  Game.UsePasswords = 0;
  Game.PBEM = 0;
  Game.AIProdBonus = 0;
  Game.GameEndPop = 0;
  Game.GameWinner = 0;
  Game.WinnerPop = 0;
  Game.CurPop = 0;
  Game.SpareScalar1 = Game.SpareScalar2 = Game.SpareScalar3 = 0;
  Game.ShowAIMoves = kFalse;
  Game.AIAnalysis = kFalse;
  Game.SpareFlag = kFalse;
  Game.ScenarioStory.clear();
  UI.EditMode = 0;

  // 2. The default graphics and sounds, and no game under way.
  Game.DirSound = "\\default\\sound";
  Game.DirColorCode = "\\default\\colorcode";
  Game.DirType = "\\default\\type";
  Game.DirMap = "\\default\\map";
  Game.DirOfficer = "\\default\\officer";
  Game.GraphicsDirty = 0;
  Game.PBEM = 0;
  Game.Turn = 0;
  Game.CurRegime = 0;
  Game.EventCount = 0;

  // 3. The events the editor can reach and the book variables they use. The
  // book always has 200 variables, so a file written after a clear does too.
  for (int e = 1; e <= kEventsCleared; ++e) Event[e] = EventRec{};
  for (int b = 1; b <= kBookVarCount; ++b) Game.BookVar[b] = 0;
  Game.BookVarCount = kBookVarCount;

  // 4. The hexes of the map as it was; hexes beyond it keep what they hold.
  const int oldW = MapW();
  const int oldH = MapH();
  for (int x = 1; x <= oldW; ++x) {
    for (int y = 1; y <= oldH; ++y) {
      Hex[x][y] = HexRec{};
      Hex[x][y].Land = kGrass;
    }
  }

  // 5. Every regime slot, with its relations, SHQ pools, news and badges.
  for (int r = 1; r <= kRegimeCap; ++r) {
    Regime[r] = RegimeRec{};
    for (int b = 1; b <= kRegimeCap; ++b) Dip[r][b] = DipRec{};
    for (int s = 1; s <= kShqCap; ++s) Shq[r][s] = ShqRec{};
    for (int n = 1; n <= kNewsCap; ++n) News[r][n] = NewsRec{};
  }
  Game.RegimeCount = 0;
  EngineVar[616].Value = 0;

  // 6. Units and officers.
  for (int u = 1; u <= kUnitCap; ++u) Unit[u] = UnitRec{};
  Game.UnitCount = 0;
  const int officers = Held(Game.OfficerCount, kOfficerCap);
  for (int o = 1; o <= officers; ++o) Officer[o] = OfficerRec{};
  Game.OfficerCount = 0;

  // 7. A new scenario also starts from the default rules, types, peoples and
  // research fields. Of a research field only the long text survives.
  if (resetRules) {
    SetEngineVarDefaults();
    for (int t = 1; t <= kTypeCap; ++t) Type[t] = TypeRec{};
    Game.TypeCount = 0;
    Game.PeopleCount = 0;
    for (int p = 1; p <= kPeopleCap; ++p) People[p] = PeopleRec{};
    for (int f = 1; f <= kResearchCap; ++f) {
      Research[f].Name.clear();
      Research[f].Cost = 0;
      Research[f].Need1 = 0;
      Research[f].Need2 = 0;
    }
  }

  // 8. Once more the fields that say a game is in play.
  Game.FogOfWar = 0;
  Game.UsePasswords = 0;
  Game.GameEndPop = 0;
  Game.GameWinner = 0;
  Game.WinnerPop = 0;
  Game.CurPop = 0;
  Game.Turn = 0;
  Game.CurRegime = 0;
  Game.RegimeCount = 0;

  // 9. The new map size; every hex of the new map is grass, including hexes
  // beyond the old size that step 4 left alone.
  Game.MapW = MapSizeFromText(widthText);
  Game.MapH = MapSizeFromText(heightText);
  for (int x = 1; x <= Game.MapW; ++x)
    for (int y = 1; y <= Game.MapH; ++y) Hex[x][y].Land = kGrass;
}

void onlyclear() { MakeItSo(true, "0", "0"); }

void AfterClearCommand(bool newScenario) {
  Game.FogOfWar = 0;
  UI.EditMode = 1;
  // The painting tools of the editor start unselected.
  UI.Order.RegimePaint = 0;
  UI.Order.LandscapePaint = 0;
  setup();
  if (newScenario) UI.RegimeLabel = "Editing";
}

void SetNewRegimeDefaults(int r) {
  if (!ValidRegime(r)) return;
  Regime[r].FormationName = "Bataljon";
  Regime[r].TextColor = "&Hffffff";
  Regime[r].UnitSerial = 0;
}

}  // namespace mf
