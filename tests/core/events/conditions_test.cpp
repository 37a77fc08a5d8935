// The conditions of an event, each passing and failing, in the order the
// game works them out, with the random draw taken whatever came before.
#include "events_test_util.h"

namespace mf::test {
namespace {

using EventConditions = EventsTest;

TEST_F(EventConditions, AnEventWithoutConditionFiresAndIsMarkedWithTheTurn) {
  const int e = AddEvent("The cantons rise.");
  Game.Turn = 4;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 4);
  // Without "ONLY ONCE?" it fires again every game turn.
  Game.Turn = 5;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 5);
}

TEST_F(EventConditions, AStoryOfOneCharacterOrLessMeansNoEvent) {
  const int none = AddEvent("");
  const int one = AddEvent("x");
  const int two = AddEvent("ab");
  // An event that does not exist takes no effect either.
  Event[one].Type = kEventGameWinner;
  Event[one].Data[1] = 2;
  RunEvents();
  EXPECT_EQ(Event[none].FiredTurn, 0);
  EXPECT_EQ(Event[one].FiredTurn, 0);
  EXPECT_EQ(Game.GameWinner, 0);
  EXPECT_EQ(Event[two].FiredTurn, 1);
}

TEST_F(EventConditions, OnlyEventsUpToTheCountAreTested) {
  const int e = AddEvent();
  Event[e + 1].Story = "Beyond the count";
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 1);
  EXPECT_EQ(Event[e + 1].FiredTurn, 0);
}

// ---- War test ----------------------------------------------------------------

TEST_F(EventConditions, WarTestWithoutLastTurnAsksForWar) {
  const int e = AddEvent();
  Event[e].IfWar = blue;
  Event[e].ShowReg1 = red;
  Dip[red][blue].Relation = 0;
  EXPECT_TRUE(FiresAt(e, 3));
  Dip[red][blue].Relation = 1;
  EXPECT_FALSE(FiresAt(e, 3));
  // The relation asked about is the event regime's towards the other.
  Dip[red][blue].Relation = 0;
  Dip[blue][red].Relation = 1;
  EXPECT_TRUE(FiresAt(e, 3));
  // A negative "DIPLASTTURN" counts as none.
  Event[e].DipLastTurn = -1;
  EXPECT_TRUE(FiresAt(e, 3));
}

TEST_F(EventConditions, WarTestFailsWithoutTheEventsRegime) {
  const int e = AddEvent();
  Event[e].IfWar = blue;
  Event[e].ShowReg1 = 0;
  Dip[red][blue].Relation = 0;
  EXPECT_FALSE(FiresAt(e, 3));
  Event[e].ShowAll = 1;  // shown to all, but still nobody's war
  EXPECT_FALSE(FiresAt(e, 3));
}

TEST_F(EventConditions, WarTestWithLastTurnAsksForAFreshWar) {
  const int e = AddEvent();
  Event[e].IfWar = blue;
  Event[e].ShowReg1 = red;
  Event[e].DipLastTurn = 1;
  Dip[red][blue].Relation = 0;
  // Declared last turn (5 - 1) or this turn.
  Dip[red][blue].LastTurn = 4;
  EXPECT_TRUE(FiresAt(e, 5));
  Dip[red][blue].LastTurn = 5;
  EXPECT_TRUE(FiresAt(e, 5));
  // Two turns ago is no longer fresh.
  Dip[red][blue].LastTurn = 3;
  EXPECT_FALSE(FiresAt(e, 5));
  // 0: the relation never changed, which counts as fresh for war.
  Dip[red][blue].LastTurn = 0;
  EXPECT_TRUE(FiresAt(e, 5));
  // 1 is an ordinary turn here, long ago at turn 5.
  Dip[red][blue].LastTurn = 1;
  EXPECT_FALSE(FiresAt(e, 5));
  // At peace it fails, however fresh.
  Dip[red][blue].LastTurn = 5;
  Dip[red][blue].Relation = 1;
  EXPECT_FALSE(FiresAt(e, 5));
}

TEST_F(EventConditions, AFreshWarNeverFiresInTurnOne) {
  const int e = AddEvent();
  Event[e].IfWar = blue;
  Event[e].ShowReg1 = red;
  Event[e].DipLastTurn = 1;
  Dip[red][blue].Relation = 0;
  Dip[red][blue].LastTurn = 0;
  EXPECT_FALSE(FiresAt(e, 1));
  Dip[red][blue].LastTurn = 1;
  EXPECT_FALSE(FiresAt(e, 1));
  EXPECT_TRUE(FiresAt(e, 2));
}

// ---- Peace test ----------------------------------------------------------------

TEST_F(EventConditions, PeaceTestWithoutLastTurnAsksForPeace) {
  const int e = AddEvent();
  Event[e].IfPeace = blue;
  Event[e].ShowReg1 = red;
  Dip[red][blue].Relation = 1;
  EXPECT_TRUE(FiresAt(e, 3));
  Dip[red][blue].Relation = 0;
  EXPECT_FALSE(FiresAt(e, 3));
  // Only 1 is peace.
  Dip[red][blue].Relation = 2;
  EXPECT_FALSE(FiresAt(e, 3));
}

TEST_F(EventConditions, PeaceTestFailsWithoutTheEventsRegime) {
  const int e = AddEvent();
  Event[e].IfPeace = blue;
  Dip[red][blue].Relation = 1;
  EXPECT_FALSE(FiresAt(e, 3));
}

TEST_F(EventConditions, PeaceTestWithLastTurnAsksForAFreshPeace) {
  const int e = AddEvent();
  Event[e].IfPeace = blue;
  Event[e].ShowReg1 = red;
  Event[e].DipLastTurn = 1;
  Dip[red][blue].Relation = 1;
  Dip[red][blue].LastTurn = 6;
  EXPECT_TRUE(FiresAt(e, 7));
  Dip[red][blue].LastTurn = 7;
  EXPECT_TRUE(FiresAt(e, 7));
  Dip[red][blue].LastTurn = 5;
  EXPECT_FALSE(FiresAt(e, 7));
  // For peace the value of a relation never changed is 1, not 0.
  Dip[red][blue].LastTurn = 1;
  EXPECT_TRUE(FiresAt(e, 7));
  Dip[red][blue].LastTurn = 0;
  EXPECT_FALSE(FiresAt(e, 7));
  // At war it fails.
  Dip[red][blue].LastTurn = 7;
  Dip[red][blue].Relation = 0;
  EXPECT_FALSE(FiresAt(e, 7));
  // And never in turn 1.
  Dip[red][blue].Relation = 1;
  Dip[red][blue].LastTurn = 1;
  EXPECT_FALSE(FiresAt(e, 1));
}

// ---- Computer regime, book variable, turns, winners, once, hex ------------------

TEST_F(EventConditions, ComputerRegimeTest) {
  const int e = AddEvent();
  Event[e].IfAI = blue;
  EXPECT_TRUE(FiresAt(e, 2));
  Regime[blue].AI = 0;
  EXPECT_FALSE(FiresAt(e, 2));
  Event[e].IfAI = red;
  EXPECT_FALSE(FiresAt(e, 2));
  Regime[red].AI = 1;
  EXPECT_TRUE(FiresAt(e, 2));
  // A regime that is not in the game is nobody's computer.
  Event[e].IfAI = 3;
  Regime[3].AI = 1;
  EXPECT_FALSE(FiresAt(e, 2));
}

TEST_F(EventConditions, BookVariableBetweenItsBounds) {
  const int e = AddEvent();
  Event[e].BookVar = 7;
  Event[e].BookMin = 5;
  Event[e].BookMax = 9;
  Game.BookVar[7] = 4;
  EXPECT_FALSE(FiresAt(e, 2));
  Game.BookVar[7] = 5;
  EXPECT_TRUE(FiresAt(e, 2));
  Game.BookVar[7] = 9;
  EXPECT_TRUE(FiresAt(e, 2));
  Game.BookVar[7] = 10;
  EXPECT_FALSE(FiresAt(e, 2));
}

TEST_F(EventConditions, ABoundOfZeroOrBelowIsNoBound) {
  const int e = AddEvent();
  Event[e].BookVar = 7;
  Game.BookVar[7] = -40;
  EXPECT_TRUE(FiresAt(e, 2));
  Event[e].BookMax = -1;
  Game.BookVar[7] = 5000;
  EXPECT_TRUE(FiresAt(e, 2));
  // A minimum of 0 lets a negative value through, a minimum of 1 does not.
  Event[e].BookMin = 1;
  Game.BookVar[7] = 0;
  EXPECT_FALSE(FiresAt(e, 2));
  // Without a book variable number the bounds mean nothing.
  Event[e].BookVar = 0;
  EXPECT_TRUE(FiresAt(e, 2));
}

TEST_F(EventConditions, Turns) {
  const int e = AddEvent();
  Event[e].TurnMin = 3;
  Event[e].TurnMax = 5;
  EXPECT_FALSE(FiresAt(e, 2));
  EXPECT_TRUE(FiresAt(e, 3));
  EXPECT_TRUE(FiresAt(e, 5));
  EXPECT_FALSE(FiresAt(e, 6));
  Event[e].TurnMin = 0;
  Event[e].TurnMax = -2;
  EXPECT_TRUE(FiresAt(e, 1));
  EXPECT_TRUE(FiresAt(e, 99));
}

TEST_F(EventConditions, GameWinner) {
  const int e = AddEvent();
  Event[e].Winner = blue;
  EXPECT_FALSE(FiresAt(e, 2));  // no winner yet
  Game.GameWinner = red;
  EXPECT_FALSE(FiresAt(e, 2));
  Game.GameWinner = blue;
  EXPECT_TRUE(FiresAt(e, 2));
}

TEST_F(EventConditions, NotGameWinner) {
  const int e = AddEvent();
  Event[e].NotWinner = blue;
  EXPECT_TRUE(FiresAt(e, 2));  // no winner at all
  Game.GameWinner = red;
  EXPECT_TRUE(FiresAt(e, 2));
  Game.GameWinner = blue;
  EXPECT_FALSE(FiresAt(e, 2));
}

TEST_F(EventConditions, OnlyOnce) {
  const int e = AddEvent();
  Event[e].Once = 1;
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 2);
  Game.Turn = 3;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 2);
  // A file that says it never fired lets it fire.
  Event[e].FiredTurn = 0;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 3);
}

TEST_F(EventConditions, OwnerOfAHex) {
  const int e = AddEvent();
  Event[e].HexX = 4;
  Event[e].HexY = 6;
  Event[e].HexOwner = blue;
  EXPECT_FALSE(FiresAt(e, 2));
  Hex[4][6].Owner = blue;
  EXPECT_TRUE(FiresAt(e, 2));
  // Owner 0 asks for neutral ground.
  Event[e].HexOwner = 0;
  EXPECT_FALSE(FiresAt(e, 2));
  Hex[4][6].Owner = 0;
  EXPECT_TRUE(FiresAt(e, 2));
  // Without both coordinates there is no hex to ask about.
  Event[e].HexOwner = blue;
  Event[e].HexY = 0;
  EXPECT_TRUE(FiresAt(e, 2));
  // A hex off the map has no owner to compare.
  Event[e].HexX = 13;
  Event[e].HexY = 6;
  Event[e].HexOwner = 0;
  EXPECT_FALSE(FiresAt(e, 2));
}

// ---- Random -----------------------------------------------------------------

// The first draws after seeding with 99, as whole percents.
std::vector<long> PercentDraws(int n) {
  SeedRnd(99);
  std::vector<long> d;
  for (int i = 0; i < n; ++i) d.push_back(static_cast<long>(static_cast<double>(Rnd()) * 100.0));
  return d;
}

TEST_F(EventConditions, RandomPassesWhenTheDrawInPercentIsAtMostTheValue) {
  const std::vector<long> d = PercentDraws(1);
  ASSERT_GE(d[0], 1) << "pick another seed: the first draw must leave room below it";
  const int e = AddEvent();
  Event[e].Random = d[0];
  SeedRnd(99);
  EXPECT_TRUE(FiresAt(e, 2));
  Event[e].Random = d[0] - 1;
  SeedRnd(99);
  EXPECT_FALSE(FiresAt(e, 2));
  // 100 always passes: a draw is below 1.
  Event[e].Random = 100;
  SeedRnd(99);
  EXPECT_TRUE(FiresAt(e, 2));
}

TEST_F(EventConditions, TheDrawIsTakenWhateverTheOtherConditionsGave) {
  const std::vector<long> d = PercentDraws(3);
  const int failing = AddEvent();
  Event[failing].TurnMin = 50;  // fails first
  Event[failing].Random = 100;
  const int passing = AddEvent();
  Event[passing].Random = d[1];  // passes only on the second draw
  SeedRnd(99);
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Event[failing].FiredTurn, 0);
  EXPECT_EQ(Event[passing].FiredTurn, 2);
  // Two draws were taken, one for each event.
  EXPECT_EQ(static_cast<long>(static_cast<double>(Rnd()) * 100.0), d[2]);
}

TEST_F(EventConditions, AnEventWithoutChanceTakesNoDraw) {
  const std::vector<long> d = PercentDraws(1);
  AddEvent();
  const int skipped = AddEvent("");
  Event[skipped].Random = 50;  // no story: not even its draw is taken
  SeedRnd(99);
  RunEvents();
  EXPECT_EQ(static_cast<long>(static_cast<double>(Rnd()) * 100.0), d[0]);
}

TEST_F(EventConditions, AllConditionsMustHold) {
  const int e = AddEvent();
  Event[e].IfWar = blue;
  Event[e].IfAI = blue;
  Event[e].ShowReg1 = red;
  Event[e].BookVar = 1;
  Event[e].BookMin = 2;
  Event[e].TurnMin = 2;
  Event[e].NotWinner = blue;
  Event[e].HexX = 3;
  Event[e].HexY = 3;
  Event[e].HexOwner = red;
  Game.BookVar[1] = 2;
  EXPECT_TRUE(FiresAt(e, 2));
  Game.BookVar[1] = 1;
  EXPECT_FALSE(FiresAt(e, 2));
  Game.BookVar[1] = 2;
  Hex[3][3].Owner = blue;
  EXPECT_FALSE(FiresAt(e, 2));
  Hex[3][3].Owner = red;
  Dip[red][blue].Relation = 1;
  EXPECT_FALSE(FiresAt(e, 2));
}

TEST_F(EventConditions, LaterEventsSeeTheEffectsOfEarlierOnes) {
  const int setter = AddEvent();
  Event[setter].Type = kEventBookVars;
  Event[setter].Data[5] = 9;
  Event[setter].Data[6] = 3;
  const int reader = AddEvent();
  Event[reader].BookVar = 9;
  Event[reader].BookMin = 3;
  RunEvents();
  EXPECT_EQ(Event[reader].FiredTurn, 1);
  // In the other order the reader comes first and misses it.
  Game.BookVar[9] = 0;
  const EventRec first = Event[reader];
  const EventRec second = Event[setter];
  Event[1] = first;
  Event[2] = second;
  Event[1].FiredTurn = Event[2].FiredTurn = 0;
  RunEvents();
  EXPECT_EQ(Event[1].FiredTurn, 0);
  EXPECT_EQ(Event[2].FiredTurn, 1);
}

}  // namespace
}  // namespace mf::test
