#include "session.h"

#include <filesystem>


namespace mf::cli {

bool MapSizeWords(const std::string& w, const std::string& h, std::string* why) {
  auto whole = [](const std::string& s) {
    if (s.empty() || s.size() > 9) return false;
    for (char c : s)
      if (c < '0' || c > '9') return false;
    return true;
  };
  if (whole(w) && whole(h)) return true;
  *why = "\"" + w + " " + h + "\" is not a map size (two whole numbers, width and height)";
  return false;
}

std::string ExecutableDir() {
  std::error_code ec;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  if (ec) return "";
  return exe.parent_path().string();
}

}  // namespace mf::cli
