// The effects of the event types 2 to 7 with the meanings of their data, and
// the choices of a choice event.
#include "events_test_util.h"

namespace mf::test {
namespace {

using EventEffects = EventsTest;

// ---- Type 0 and 5 -----------------------------------------------------------

TEST_F(EventEffects, AStoryOrAFileChangesNothingWhenItFires) {
  const int story = AddEvent("News from the front.");
  const int file = AddEvent("On to the hills.");
  Event[file].Type = kEventLoadFile;
  Event[file].DataText[1] = "next.mf2";
  Regime[red].PP = 7;
  RunEvents();
  EXPECT_EQ(Event[story].FiredTurn, 1);
  EXPECT_EQ(Event[file].FiredTurn, 1);
  // The file is named when the event is shown, not when it fires.
  EXPECT_EQ(UI.PendingFile, "");
  EXPECT_EQ(Regime[red].PP, 7);
  EXPECT_EQ(Game.GameWinner, 0);
}

// ---- Type 2: political points --------------------------------------------------

TEST_F(EventEffects, PoliticalPointsRiseAndFall) {
  const int e = AddEvent();
  Event[e].Type = kEventPoints;
  Event[e].Data[1] = blue;  // "REGIME 2 #"
  Event[e].Data[2] = 6;     // "PP MUT 2 +/-"
  Regime[blue].PP = 10;
  Regime[red].PP = 10;
  RunEvents();
  EXPECT_EQ(Regime[blue].PP, 16);
  EXPECT_EQ(Regime[red].PP, 10);
  Event[e].Data[2] = -9;
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Regime[blue].PP, 7);
  EXPECT_EQ(Event[e].FiredTurn, 2);
}

TEST_F(EventEffects, ALossBeyondTheStockLeavesNoPoints) {
  const int e = AddEvent();
  Event[e].Type = kEventPoints;
  Event[e].Data[1] = red;
  Event[e].Data[2] = -12;
  Regime[red].PP = 5;
  RunEvents();
  EXPECT_EQ(Regime[red].PP, 0);
  // Exactly the stock leaves 0 as well.
  Regime[red].PP = 12;
  RunEvents();
  EXPECT_EQ(Regime[red].PP, 0);
}

TEST_F(EventEffects, PointsWithoutARegimeGoNowhere) {
  const int e = AddEvent();
  Event[e].Type = kEventPoints;
  Event[e].Data[1] = 0;
  Event[e].Data[2] = 6;
  Regime[red].PP = 1;
  RunEvents();
  EXPECT_EQ(Regime[red].PP, 1);
  EXPECT_EQ(Regime[0].PP, 0);
  // The event still fired: its effect simply had nobody to reach.
  EXPECT_EQ(Event[e].FiredTurn, 1);
}

// ---- Type 3: book variables ------------------------------------------------------

TEST_F(EventEffects, TwoBookVariablesRiseAndTwoAreSet) {
  const int e = AddEvent();
  Event[e].Type = kEventBookVars;
  Event[e].Data[1] = 4;   // "BOOKVAR 1 #"
  Event[e].Data[2] = 3;   // "VAR1 MUT +/-"
  Event[e].Data[3] = 5;   // "BOOKVAR 2 #"
  Event[e].Data[4] = -2;  // "VAR2 MUT +/-"
  Event[e].Data[5] = 6;   // "BOOKVAR 3 #"
  Event[e].Data[6] = 40;  // "VAR 3 OVERRIDE VALUE ="
  Event[e].Data[7] = 7;   // "BOOKVAR 4 #"
  Event[e].Data[8] = -1;  // "VAR 4 OVERRIDE VALUE ="
  Game.BookVar[4] = 10;
  Game.BookVar[5] = 1;
  Game.BookVar[6] = 99;
  Game.BookVar[7] = 99;
  RunEvents();
  EXPECT_EQ(Game.BookVar[4], 13);
  EXPECT_EQ(Game.BookVar[5], -1);
  EXPECT_EQ(Game.BookVar[6], 40);
  EXPECT_EQ(Game.BookVar[7], -1);
  // Again: the raises add up, the overrides stay.
  Game.Turn = 2;
  RunEvents();
  EXPECT_EQ(Game.BookVar[4], 16);
  EXPECT_EQ(Game.BookVar[5], -3);
  EXPECT_EQ(Game.BookVar[6], 40);
  EXPECT_EQ(Game.BookVar[7], -1);
}

TEST_F(EventEffects, TheSameBookVariableRaisedTwiceAndThenSet) {
  const int e = AddEvent();
  Event[e].Type = kEventBookVars;
  Event[e].Data[1] = 2;
  Event[e].Data[2] = 5;
  Event[e].Data[3] = 2;
  Event[e].Data[4] = 7;
  RunEvents();
  EXPECT_EQ(Game.BookVar[2], 12);
  // The overrides come after the raises, the fourth last.
  Event[e].Data[5] = 2;
  Event[e].Data[6] = 1;
  Event[e].Data[7] = 2;
  Event[e].Data[8] = 3;
  RunEvents();
  EXPECT_EQ(Game.BookVar[2], 3);
}

TEST_F(EventEffects, BookVariableNumberZeroChangesNothing) {
  const int e = AddEvent();
  Event[e].Type = kEventBookVars;
  Event[e].Data[2] = 5;  // no number before it
  Event[e].Data[6] = 8;
  RunEvents();
  for (int b = 0; b <= kBookVarCount; ++b) EXPECT_EQ(Game.BookVar[b], 0) << b;
  EXPECT_EQ(Event[e].FiredTurn, 1);
}

// ---- Type 4: choices ----------------------------------------------------------------

// A choice event for `r` whose five choices raise book variables 11..15 by
// 1..5 and variables 21..25 by 10..50.
int ChoiceEvent(int r) {
  const int e = static_cast<int>(++Game.EventCount);
  Event[e] = EventRec{};
  Event[e].Story = "Choose.";
  Event[e].Type = kEventChoice;
  Event[e].ShowReg1 = r;
  for (int c = 1; c <= 5; ++c) {
    Event[e].Data[c] = 10 + c;            // "CHOICE c BOOKVAR #"
    Event[e].Data[c + 5] = c;             // "CHOICE c MUT +/-"
    Event[e].Data[c + 10] = 20 + c;       // "CHOICE c BOOKVAR #2"
    Event[e].Data[c + 15] = 10 * c;       // "CHOICE c MUT2 +/-"
    Event[e].DataText[c] = "Answer " + std::to_string(c);
  }
  return e;
}

TEST_F(EventEffects, ApplyChoiceRaisesTheTwoVariablesOfThatChoice) {
  const int e = ChoiceEvent(red);
  ApplyChoice(e, 3);
  EXPECT_EQ(Game.BookVar[13], 3);
  EXPECT_EQ(Game.BookVar[23], 30);
  for (int b : {11, 12, 14, 15, 21, 22, 24, 25}) EXPECT_EQ(Game.BookVar[b], 0) << b;
  ApplyChoice(e, 5);
  EXPECT_EQ(Game.BookVar[15], 5);
  EXPECT_EQ(Game.BookVar[25], 50);
  ApplyChoice(e, 5);
  EXPECT_EQ(Game.BookVar[15], 10);
  EXPECT_EQ(Game.BookVar[25], 100);
}

TEST_F(EventEffects, ChoiceZeroIsChoiceOne) {
  const int e = ChoiceEvent(red);
  ApplyChoice(e, 0);
  EXPECT_EQ(Game.BookVar[11], 1);
  EXPECT_EQ(Game.BookVar[21], 10);
}

TEST_F(EventEffects, AChoiceWithoutVariableNumbersChangesNothing) {
  const int e = ChoiceEvent(red);
  Event[e].Data[2] = 0;
  Event[e].Data[12] = 0;
  ApplyChoice(e, 2);
  for (int b = 0; b <= kBookVarCount; ++b) EXPECT_EQ(Game.BookVar[b], 0) << b;
  // Only the second pair given.
  Event[e].Data[12] = 22;
  ApplyChoice(e, 2);
  EXPECT_EQ(Game.BookVar[22], 20);
  EXPECT_EQ(Game.BookVar[12], 0);
}

TEST_F(EventEffects, TheComputerChoosesAtOnceWhatData30Says) {
  const int e = ChoiceEvent(blue);
  Event[e].Data[30] = 4;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 1);
  EXPECT_EQ(Game.BookVar[14], 4);
  EXPECT_EQ(Game.BookVar[24], 40);
  EXPECT_EQ(Game.BookVar[11], 0);
}

TEST_F(EventEffects, AComputerWithData30OfZeroTakesChoiceOne) {
  const int e = ChoiceEvent(blue);
  Event[e].Data[30] = 0;
  RunEvents();
  EXPECT_EQ(Game.BookVar[11], 1);
  EXPECT_EQ(Game.BookVar[21], 10);
}

TEST_F(EventEffects, APersonChoosesInTheDialogNotWhenTheEventFires) {
  const int e = ChoiceEvent(red);
  Event[e].Data[30] = 2;
  RunEvents();
  EXPECT_EQ(Event[e].FiredTurn, 1);
  for (int b = 0; b <= kBookVarCount; ++b) EXPECT_EQ(Game.BookVar[b], 0) << b;
  // An event for nobody in particular has nobody to choose for it.
  Event[e].ShowReg1 = 0;
  Event[e].ShowAll = 1;
  RunEvents();
  for (int b = 0; b <= kBookVarCount; ++b) EXPECT_EQ(Game.BookVar[b], 0) << b;
}

// ---- Type 6: diplomacy ---------------------------------------------------------------

TEST_F(EventEffects, DiplomacyChangesBothDirections) {
  const int e = AddEvent();
  Event[e].Type = kEventDiplomacy;
  Event[e].Data[1] = red;   // "REG1"
  Event[e].Data[2] = blue;  // "REG2"
  Event[e].Data[3] = 1;     // "NEWDIPREL": peace
  Event[e].Data[4] = 250;   // "NEWCHANGCOST"
  Dip[red][blue] = DipRec{0, 999, 0, 0};
  Dip[blue][red] = DipRec{0, 40, 2, 0};
  Game.Turn = 6;
  RunEvents();
  for (const DipRec* d : {&Dip[red][blue], &Dip[blue][red]}) {
    EXPECT_EQ(d->Relation, 1);
    EXPECT_EQ(d->LastTurn, 6);
    EXPECT_EQ(d->Cost, 250);
  }
  // Back to war.
  Event[e].Data[3] = 0;
  Event[e].Data[4] = 999;
  Game.Turn = 7;
  RunEvents();
  EXPECT_EQ(Dip[blue][red].Relation, 0);
  EXPECT_EQ(Dip[red][blue].LastTurn, 7);
  EXPECT_EQ(Dip[red][blue].Cost, 999);
}

TEST_F(EventEffects, DiplomacyNeedsBothRegimes) {
  const int e = AddEvent();
  Event[e].Type = kEventDiplomacy;
  Event[e].Data[1] = red;
  Event[e].Data[2] = 0;
  Event[e].Data[3] = 1;
  Event[e].Data[4] = 5;
  RunEvents();
  EXPECT_EQ(Dip[red][blue].Relation, 0);
  EXPECT_EQ(Dip[red][0].Relation, 0);
  EXPECT_EQ(Dip[0][red].Relation, 0);
  EXPECT_EQ(Event[e].FiredTurn, 1);
}

TEST_F(EventEffects, AFreshPeaceFromAnEventIsSeenByTheNextTurnsPeaceTest) {
  const int maker = AddEvent();
  Event[maker].Type = kEventDiplomacy;
  Event[maker].Once = 1;
  Event[maker].TurnMin = 4;
  Event[maker].Data[1] = red;
  Event[maker].Data[2] = blue;
  Event[maker].Data[3] = 1;
  Event[maker].Data[4] = 100;
  const int watcherEvent = AddEvent();
  Event[watcherEvent].IfPeace = blue;
  Event[watcherEvent].ShowReg1 = red;
  Event[watcherEvent].DipLastTurn = 1;
  for (long t = 2; t <= 6; ++t) {
    Game.Turn = t;
    RunEvents();
  }
  // Peace came at turn 4: fresh at 4 and 5, stale at 6.
  EXPECT_EQ(Event[maker].FiredTurn, 4);
  EXPECT_EQ(Event[watcherEvent].FiredTurn, 5);
}

// ---- Type 7: the game's winner ---------------------------------------------------------

TEST_F(EventEffects, TheGameWinnerIsSet) {
  const int e = AddEvent();
  Event[e].Type = kEventGameWinner;
  Event[e].Data[1] = blue;  // "SET GAMEWINNER TO"
  RunEvents();
  EXPECT_EQ(Game.GameWinner, blue);
  EXPECT_EQ(Game.WinnerPop, 0);
  // It may change hands again; 0 changes nothing.
  Event[e].Data[1] = red;
  RunEvents();
  EXPECT_EQ(Game.GameWinner, red);
  Event[e].Data[1] = 0;
  RunEvents();
  EXPECT_EQ(Game.GameWinner, red);
}

TEST_F(EventEffects, AWinnerEventIsSeenByALaterEventOfTheSameTurn) {
  const int win = AddEvent();
  Event[win].Type = kEventGameWinner;
  Event[win].Data[1] = red;
  const int after = AddEvent();
  Event[after].Winner = red;
  RunEvents();
  EXPECT_EQ(Event[after].FiredTurn, 1);
}

}  // namespace
}  // namespace mf::test
