#include "session.h"

#include <filesystem>
#include <iterator>

#include "model/arith.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/file_io.h"

namespace mf::cli {

void StartFresh(std::uint32_t seed) {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  SeedRnd(seed);
  UI.EditMode = 1;
  UI.HideEditor = true;
  LayOutMapWindow();
}

bool ReadBytes(const std::string& path, std::string* bytes, std::string* why) {
  std::string scratch;
  return ReadWholeFile(path, bytes, why != nullptr ? why : &scratch);
}

bool WriteBytes(const std::string& path, const std::string& bytes, std::string* why) {
  return ReplaceFileAtomically(path, bytes, why);
}

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

bool LooksScrambled(const std::string& bytes) {
  // The first field ends at a blank after the number, a comma or the line end.
  std::size_t end = 0;
  while (end < bytes.size() && bytes[end] != '\r' && bytes[end] != '\n' && bytes[end] != ',') ++end;
  return ValLong(bytes.substr(0, end)) == 0;
}

std::string FlipBytes(std::string bytes) {
  for (char& c : bytes) c = static_cast<char>(static_cast<unsigned char>(c) ^ 0x80u);
  return bytes;
}

std::string ExecutableDir() {
  std::error_code ec;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  if (ec) return "";
  return exe.parent_path().string();
}

}  // namespace mf::cli
