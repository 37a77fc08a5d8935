// A scenario with something in every section of the file, made in code.
#include "files_test_util.h"
#include "support/core_test.h"

namespace mf::test {

void BuildRichScenario() {
  world::NewMap(20, 15);
  Game.BookVarCount = kBookVarCount;
  Game.FogOfWar = 1;
  Game.FogOfExploration = 1;
  Game.UsePasswords = 1;
  Game.GameEndPop = 12000;
  Game.CurPop = 3400;
  Game.Turn = 3;
  Game.CurRegime = 2;
  Game.SpareScalar2 = -7;
  Game.GraphicsDirty = 1;
  Game.PBEM = 0;
  Game.ShowAIMoves = kTrue;
  Game.AIAnalysis = kFalse;
  Game.SpareFlag = kTrue;
  Game.AIProdBonus = 1;
  Game.ScenarioStory = "The rivers rise.\r\nTwo armies wait.\r\n\r\nWho crosses first?";

  const int red = world::AddRegime("Red Coalition");
  const int blue = world::AddRegime("Ærø Union");
  const int green = world::AddRegime("Zoë Brontë League");
  Regime[red].AI = 0;
  Regime[blue].AI = 1;
  Regime[green].AI = 1;
  Regime[red].Password = "secret";
  Regime[red].PP = 120;
  Regime[blue].PP = -5;
  Regime[red].Email = "red@example.org";
  Regime[red].HexSprite = 3;
  Regime[blue].HexSprite = 4;
  Regime[green].OwnPeople = 2;
  Regime[red].OwnPeople = 1;
  Regime[red].Research[7] = 1;
  Regime[blue].Research[200] = 1;
  Regime[red].Losses[3] = 40;
  Regime[blue].Kills[12] = 2;
  Regime[green].PortraitSet = 2;
  Regime[red].Intro = "Hold the fords.\r\nDo not lose the capital.";
  Dip[red][blue].Relation = 0;
  Dip[red][blue].Cost = 150;
  Dip[red][blue].LastTurn = 2;
  Dip[blue][green].Relation = 1;
  Dip[blue][green].Spare = 9;

  // Peoples, one of them with a name outside Windows-1252 (the Ł and the ź).
  Game.PeopleCount = 2;
  People[1].Name = "Zoë Brontë";
  People[1].FirstName[1] = "Ærø";
  People[1].LastName[1] = "Brontë";
  People[1].FirstName[300] = "Last";
  People[1].LastName[300] = "Of All";
  People[1].Overrule = 2;
  People[2].Name = "Łódź";
  People[2].FirstName[2] = "Jürgen";
  People[2].LastName[2] = "Smith";

  const int inf = world::AddType("Rifles", kLandTheater, 1);
  const int art = world::AddType("Guns", kLandTheater, 3);
  const int ship = world::AddType("Cruiser", kSeaTheater, 1);
  const int plane = world::AddType("Bomber", kAirTheater, 3);
  Type[inf].Attr[kFrontsize] = 1;
  Type[inf].Attr[kSoftAttack] = 12;
  Type[inf].Attr[kWeight] = 100;
  Type[art].Attr[kFrontsize] = 10;
  Type[art].Attr[kArtilleryRange] = 2;
  Type[ship].Attr[kHitPoints] = 400;
  Type[plane].Attr[kStrategicBombing] = 33;
  Type[inf].Text = "Plain foot soldiers";
  Type[inf].Cost = 10;
  Type[inf].Sprite = 101;
  Type[inf].Living[1] = 1;
  Type[inf].Owning[2] = 1;
  Type[plane].Research = 7;
  Type[ship].Override = 55;

  // Units: an SHQ with a stock, a THQ, two formations and a free slot between.
  const int shq = world::AddUnit(red, 2, 3, "1st Army HQ");
  Unit[shq].Shq = 1;
  Unit[shq].SupplyPct = 2500;
  Shq[red][1].Unit = shq;
  Shq[red][1].StockType[1] = inf;
  Shq[red][1].StockQty[1] = 30;
  Shq[red][1].StockType[4] = plane;
  Shq[red][1].StockQty[4] = 2;
  Shq[red][1].Carry = 600;
  const int thq = world::AddUnit(red, 2, 3, "II Corps");
  Unit[thq].Thq = 1;
  Unit[thq].Boss = shq;
  Unit[thq].ThqBadge = 2;
  Regime[red].ThqBadgeUnit[2] = thq;
  const int doomed = world::AddUnit(green, 9, 9, "Lost Brigade");
  const int rifles = world::AddUnit(blue, 5, 6, "3rd Rifles", inf, 9);
  Unit[rifles].Boss = thq;
  Unit[rifles].ArtType = art;
  Unit[rifles].ArtQty = 2;
  Unit[rifles].MP = 4;
  Unit[rifles].Readiness = 77;
  Unit[rifles].Disruption = 25;
  Unit[rifles].FromX = 4;
  Unit[rifles].FromY = 6;
  Unit[rifles].GenSupply = 12;
  Unit[rifles].Front = 2;
  Unit[rifles].AIX = 9;
  Unit[rifles].AIY = 10;
  Unit[rifles].Officer = 2;
  const int cruiser = world::AddUnit(blue, 5, 6, "Cruiser Squadron");
  Unit[cruiser].Theater = kSeaTheater;
  Unit[cruiser].InfType = ship;
  Unit[cruiser].InfQty = 3;
  // Marines carried by the cruiser stand in no hex.
  const int marines = NewUnitNumber();
  Unit[marines].Name = "Marines";
  Unit[marines].Regime = blue;
  Unit[marines].InfType = inf;
  Unit[marines].InfQty = 4;
  Unit[cruiser].Cargo = marines;
  // The lost brigade was destroyed: its slot stays free below Game.UnitCount.
  Unit[doomed] = UnitRec{};
  Hex[9][9].Unit[1] = 0;

  Game.OfficerCount = 3;
  Officer[1] = OfficerRec{4, "Gen. Zoë", red, 1, 5, 2, 1, 3, 40, 0};
  Officer[2] = OfficerRec{7, "Adm. Ærø", blue, 0, 2, 8, 3, 11, 95, 0};
  Officer[3] = OfficerRec{};  // a free officer slot

  // Map: towns, rivers, roads, sight.
  Hex[2][3].Pop = 2500;
  Hex[2][3].Land = kUrban;
  Hex[2][3].People = 1;
  Hex[2][3].UrbanName = "Ærøskøbing";
  Hex[2][3].Owner = red;
  Hex[2][3].Prod = inf;
  Hex[2][3].ProdPts = 17;
  Hex[2][3].ProdSHQ = shq;
  Hex[2][3].Damage = 20;
  Hex[5][6].Owner = blue;
  Hex[5][6].Prod = -1;
  Hex[7][1].Land = kSea;
  Hex[20][15].Land = kMountain;
  Hex[20][15].Road = 1;
  Hex[3][3].River[2] = 1;
  Hex[3][3].Entrench[5] = 3;
  Hex[2][3].Vis = 3;
  Hex[2][3].Seen[red] = 1;
  Hex[5][6].Seen[blue] = 1;
  Hex[20][15].Seen[green] = 1;

  // Events with stories over several lines.
  Game.EventCount = 2;
  Event[1].TurnMin = 2;
  Event[1].TurnMax = 5;
  Event[1].HexX = 2;
  Event[1].HexY = 3;
  Event[1].HexOwner = red;
  Event[1].Type = 1;
  Event[1].Story = "Reinforcements arrive.\r\nThey are tired.";
  Event[1].Data[1] = 2;
  Event[1].Data[30] = -4;
  Event[1].DataText[1] = "Relief Column";
  Event[1].DataText[5] = "Zoë";
  Event[1].ShowReg1 = red;
  Event[1].IfAI = blue;
  Event[1].IfWar = blue;
  Event[1].DipLastTurn = 1;
  Event[2].Type = 5;
  Event[2].Story = "Next chapter.";
  Event[2].DataText[1] = "scenarios\\part2.mf2";
  Event[2].FiredTurn = 1;
  Game.BookVar[1] = 5;
  Game.BookVar[200] = -1;

  // News of the regimes.
  News[red][1] = NewsRec{1, "3rd Rifles lost", 0, 0, 0};
  News[red][2] = NewsRec{3, "Battle", 5, 6, 2};
  News[red][1000] = NewsRec{101, "Last line", 0, 0, 0};
  News[blue][1] = NewsRec{991, "Green has surrendered", 0, 0, 0};

  // Research.
  Research[1].Name = "Engines";
  Research[1].Cost = 50;
  Research[1].Text = "Faster trucks.\r\nMore supply.";
  Research[7].Name = "Bombers";
  Research[7].Need1 = 1;
  Research[7].Need2 = 2;
  Research[200].Name = "Last";

  EngineVar[533].Value = 4;
  EngineVar[999].Value = -12;
}

}  // namespace mf::test
