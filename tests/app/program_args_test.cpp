// The command line of the program.
#include <gtest/gtest.h>

#include "program.h"
#include "platform/platform.h"
#include "qt_platform.h"

namespace mf::app {
namespace {

TEST(ProgramArgs, AFileAndTheOptions) {
  ProgramOptions o;
  QString error;
  ASSERT_TRUE(ParseProgramArguments({"game.mf1", "--screenshot", "out.png", "--program-dir", "/opt/mf"}, &o, &error));
  EXPECT_EQ(o.file, "game.mf1");
  EXPECT_EQ(o.screenshot, "out.png");
  EXPECT_EQ(o.programDir, "/opt/mf");
  EXPECT_FALSE(o.smokeTest);
  EXPECT_FALSE(o.noSplash);
}

TEST(ProgramArgs, SwitchesWithoutValues) {
  ProgramOptions o;
  QString error;
  ASSERT_TRUE(ParseProgramArguments({"--smoke-test", "--no-splash"}, &o, &error));
  EXPECT_TRUE(o.smokeTest);
  EXPECT_TRUE(o.noSplash);
  EXPECT_TRUE(o.file.isEmpty());
}

TEST(ProgramArgs, MistakesAreRefusedWithAReason) {
  ProgramOptions o;
  QString error;
  EXPECT_FALSE(ParseProgramArguments({"--screenshot"}, &o, &error));
  EXPECT_EQ(error, "--screenshot needs a value");
  EXPECT_FALSE(ParseProgramArguments({"--fast"}, &o, &error));
  EXPECT_EQ(error, "unknown option --fast");
  ProgramOptions two;
  EXPECT_FALSE(ParseProgramArguments({"a.mf1", "b.mf1"}, &two, &error));
  EXPECT_EQ(error, "only one file can be opened: b.mf1");
}

TEST(ProgramStart, AScreenLowerThan768PixelsIsRefused) {
  QtPlatform platform;
  platform.SetUnattended(true);
  mf::InstallPlatform(&platform);
  EXPECT_TRUE(ScreenCheck(768));
  EXPECT_TRUE(ScreenCheck(1080));
  EXPECT_TRUE(platform.Messages().empty());
  EXPECT_FALSE(ScreenCheck(767));
  ASSERT_EQ(platform.Messages().size(), 1u);
  EXPECT_EQ(platform.Messages()[0],
            "Error. You must have at least sceen resolution 1024x768 to run MF. Press OK to Quit.");
  mf::InstallPlatform(nullptr);
}

TEST(ProgramArgs, FileFiltersInQtsWords) {
  EXPECT_EQ(QtFileFilter("Marrowfield (.mf1) files|*.mf1"), "Marrowfield (.mf1) files (*.mf1)");
  EXPECT_EQ(QtFileFilter("Marrowfield (.mf1) files|*.mf1|Hidden Campaign Files|*.mf2"),
            "Marrowfield (.mf1) files (*.mf1);;Hidden Campaign Files (*.mf2)");
  EXPECT_EQ(QtFileFilter("Marrowfield (.mf1) files|*.mf1;*.ico"), "Marrowfield (.mf1) files (*.mf1 *.ico)");
}

}  // namespace
}  // namespace mf::app
