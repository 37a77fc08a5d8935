#include "platform/paths.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/text_case.h"

namespace fs = std::filesystem;

namespace mf {
namespace {
std::string& Dir() {
  static std::string dir = ".";
  return dir;
}

}  // namespace

void SetProgramDir(const std::string& dir) { Dir() = dir.empty() ? "." : dir; }
const std::string& ProgramDir() { return Dir(); }

std::string ResolveGamePath(const std::string& gamePath) {
  std::string p = gamePath;
  std::replace(p.begin(), p.end(), '\\', '/');
  fs::path rel(p);
  // Every look at the disk takes its error-code form: a path from a scenario
  // may be anything (far too long, a device, a loop of links), and it only
  // ever means "not found".
  std::error_code ec;
  if (rel.is_absolute() && fs::exists(rel, ec)) return rel.string();
  // Game paths are relative to the program folder even with a leading slash.
  while (!p.empty() && p.front() == '/') p.erase(p.begin());
  fs::path exact = fs::path(Dir()) / p;
  if (fs::exists(exact, ec)) return exact.string();
  // Walk part by part, matching names without regard to case.
  fs::path cur = Dir();
  for (const auto& part : fs::path(p)) {
    fs::path next = cur / part;
    if (!fs::exists(next, ec)) {
      bool found = false;
      if (fs::is_directory(cur, ec)) {
        const std::string want = Lower(part.string());
        for (fs::directory_iterator it(cur, ec), end; !ec && it != end; it.increment(ec)) {
          if (Lower(it->path().filename().string()) == want) {
            next = it->path();
            found = true;
            break;
          }
        }
      }
      if (!found) return exact.string();
    }
    cur = next;
  }
  return cur.string();
}

std::string ScenariosDir() { return ResolveGamePath("\\scenarios"); }

std::string FindProgramDir(const std::string& exeDir) {
  std::error_code ec;
  const fs::path exe = exeDir.empty() ? fs::path(".") : fs::path(exeDir);
  if (fs::is_directory(exe / "default", ec)) return exe.string();
  const fs::path installed = exe / ".." / "share" / "marrowfield";
  if (fs::is_directory(installed / "default", ec)) return fs::weakly_canonical(installed, ec).string();
  return exe.string();
}

namespace {

// $VAR when set and absolute, else $HOME/fallback, else the temporary folder.
fs::path XdgDir(const char* var, const char* fallback) {
  const char* v = std::getenv(var);
  if (v && *v && fs::path(v).is_absolute()) return fs::path(v);
  const char* home = std::getenv("HOME");
  if (home && *home) return fs::path(home) / fallback;
  std::error_code ec;
  return fs::temp_directory_path(ec);
}

std::string Made(const fs::path& dir) {
  std::error_code ec;
  fs::create_directories(dir, ec);
  return dir.string();
}

}  // namespace

std::string UserGameDir() { return Made(XdgDir("XDG_DATA_HOME", ".local/share") / "marrowfield"); }

}  // namespace mf
