// A started program for the GUI tests: the game state as the program opens,
// the Qt platform unattended (messages recorded, questions answered from a
// queue), and the main window shown at a fixed size.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QPoint>
#include <memory>
#include <string>
#include <vector>

#include "main_window.h"
#include "qt_platform.h"

namespace mf::app::test {

class AppTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A file in this test's own folder.
  std::string TempPath(const std::string& name) const;
  // Lets the window process what is pending.
  void Settle();
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
