// A started program for the GUI tests: the game state as the program opens,
// the Qt platform unattended (messages recorded, questions answered from a
// queue), and the main window shown at a fixed size.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QPoint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "main_window.h"
#include "qt_platform.h"

namespace mf::app::test {

// A game of Red, a person, against Blue, the computer, on a map `width`
// hexes wide and 10 high: Red holds the columns up to `border`, Blue the
// rest. Each has a town of 400 on row 5 with its SHQ in it (Red's at column
// 2, Blue's at `blueTown`) and a formation of rifles (soft attack 10, moves
// 3): "Red Rifles" of 20 at 4,5 and "Blue Rifles" of `blueMen` at
// `blueAt`,5. Nothing else is set: each test adds what it looks at.
struct WatchedGame {
  int width = 16, border = 8, blueTown = 15, blueAt = 15, blueMen = 20;
  long hitPoints = 20;  // of a rifle
  // Filled in by MakeWatchedGame.
  int red = 0, blue = 0, rifles = 0, redUnit = 0, blueUnit = 0;
};
void MakeWatchedGame(WatchedGame* game);

class AppTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A file in this test's own folder.
  std::string TempPath(const std::string& name) const;
  // Lets the window process what is pending.
  void Settle();
  // Runs the window's timer until `done` holds (ten seconds at the most), as
  // the game goes on between a person's commands; the timer is stopped
  // again after. False when `done` never came.
  bool RunTimerUntil(const std::function<bool()>& done);
  // A press of a mouse button on a point of the map view.
  void PressMap(QPoint at, Qt::MouseButton button = Qt::LeftButton);
  // A key pressed in the main window.
  void PressKey(int qtKey);
  // The map view as the player sees it now.
  QImage GrabMap();
  // The colour the layers of sprites give at point (px, py) of a hex picture:
  // the last layer that is not see-through there wins.
  static QColor LayeredColour(const std::vector<int>& sprites, int px, int py);

  QtPlatform platform;
  std::unique_ptr<MainWindow> window;
  std::string tempDir;
};

}  // namespace mf::app::test
