// Fixture of the tests that run script text in-process through the CLI's
// script runner, from the test's own folder, keeping what it printed.
#pragma once

#include <sstream>
#include <string>

#include "script_runner.h"
#include "support/core_test.h"

namespace mf::cli {

class ScriptTest : public test::CoreTest {
 protected:
  int Run(const std::string& text) {
    out.str("");
    err.str("");
    return RunScriptText(text, "t.mfs", tempDir, out, err);
  }
  std::ostringstream out;
  std::ostringstream err;
};

}  // namespace mf::cli
