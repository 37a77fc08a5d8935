#include "session.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "model/arith.h"
#include "model/engine_vars.h"
#include "model/game_state.h"
#include "model/reset.h"
#include "model/rnd.h"

namespace mf::cli {

void StartFresh(std::uint32_t seed) {
  ZeroAllTables();
  FillEngineVarLabels();
  SetEngineVarDefaults();
  SeedRnd(seed);
  UI.EditMode = 1;
  UI.HideEditor = true;
  setup();
}

bool ReadBytes(const std::string& path, std::string* bytes) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::ostringstream all;
  all << in.rdbuf();
  *bytes = all.str();
  return true;
}

bool WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (!out) return false;
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.flush();
  return static_cast<bool>(out);
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
