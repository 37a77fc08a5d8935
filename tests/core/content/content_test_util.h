// Where the scenarios compiled by the build are, and how a test reads one
// without touching the shipped file.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace mf::test {

// Every file the build compiles into the scenarios folder.
inline const std::vector<std::string>& ShippedScenarios() {
  static const std::vector<std::string> kFiles = {
      "2PL_Two_Rivers.mf1", "scenario1.mf1", "scenario2.mf1", "scenario3.mf1",
      "scenario4.mf1",      "ashfall2.mf2",  "ashfall3.mf2",
  };
  return kFiles;
}

// The folder of the compiled scenarios, from MF_CONTENT_DIR (set by ctest).
inline std::string ContentDir() {
  const char* dir = std::getenv("MF_CONTENT_DIR");
  return dir == nullptr ? std::string() : std::string(dir);
}

inline std::string FileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream all;
  all << in.rdbuf();
  return all.str();
}

// Copies a shipped scenario into the test's own program folder (its
// "scenarios" folder): a load rewrites the file it reads, and tests may run
// side by side. The copy's path, or "" with a failure when it is missing.
inline std::string CopyShipped(const std::string& name, const std::string& programDir) {
  namespace fs = std::filesystem;
  const std::string dir = ContentDir();
  if (dir.empty()) {
    ADD_FAILURE() << "MF_CONTENT_DIR is not set; run the suite through ctest";
    return "";
  }
  const fs::path from = fs::path(dir) / name;
  if (!fs::exists(from)) {
    ADD_FAILURE() << "the build did not make " << from.string();
    return "";
  }
  const fs::path to = fs::path(programDir) / "scenarios" / name;
  fs::create_directories(to.parent_path());
  fs::copy_file(from, to, fs::copy_options::overwrite_existing);
  // The program's graphics, when the build has made them, for the sprite load.
  const fs::path art = fs::path(dir).parent_path() / "default";
  const fs::path link = fs::path(programDir) / "default";
  std::error_code ec;
  if (fs::exists(art) && !fs::exists(link)) fs::create_directory_symlink(art, link, ec);
  return to.string();
}

}  // namespace mf::test
