// Helpers of the random-scenario suite: the base scenario copied into the
// test's own program folder, and the dialog opened on it as the menu does.
#pragma once

#include <string>

#include "core/content/content_test_util.h"
#include "model/game_state.h"
#include "control/random_flow.h"
#include "random/random_dialog.h"
#include "support/core_test.h"

namespace mf::test {

class RandomTest : public CoreTest {
 protected:
  // Copies the base scenario (and links the pictures) into the program folder.
  bool CopyBase() { return !CopyShipped(kRandomBaseFile, tempDir).empty(); }

  // Opens the dialog as the menu would, with `actions` queued for it, and
  // returns whether a map was made. The dialog's own state is lost with it;
  // tests of the dialog drive a RandomScenarioDialog of their own.
  bool Generate(std::vector<DialogAction> actions) {
    platform.QueueDialog("random", std::move(actions));
    return MakeRandomScenario();
  }

  // A dialog on the opened base as the menu leaves it: cleared game, base
  // rules, the ten regimes.
  void OpenLikeTheMenu(RandomScenarioDialog& d) {
    platform.QueueDialog("random", {{"cancel", ""}});
    MakeRandomScenario();
    d.Prepare();
  }

  std::string Press(RandomScenarioDialog& d) {
    std::string why;
    d.StartButton(&why);
    return why;
  }
};

}  // namespace mf::test
