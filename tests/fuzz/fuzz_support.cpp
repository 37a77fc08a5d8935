#include "fuzz_support.h"

#include <filesystem>
#include <fstream>
#include <random>

#include "platform/scripted_platform.h"
#include "model/reset.h"

namespace fs = std::filesystem;

namespace mf::fuzz {

void FreshGame() {
  static ScriptedPlatform platform;
  // The record of every box would grow without end over millions of inputs.
  platform.Clear();
  InstallPlatform(&platform);
  StartFresh();
}

std::string AsText(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

namespace {
// The scratch folder goes with the process that made it (a crash leaves it
// behind, next to the input that caused it).
struct Scratch {
  std::string path;
  Scratch() {
    std::random_device rd;
    const fs::path p = fs::temp_directory_path() / ("mffuzz_" + std::to_string(rd()) + std::to_string(rd()));
    fs::create_directories(p);
    path = p.string();
  }
  ~Scratch() {
    std::error_code ec;
    fs::remove_all(path, ec);
  }
};
}  // namespace

const std::string& ScratchDir() {
  static const Scratch scratch;
  return scratch.path;
}

std::string WriteScratch(const std::string& name, const std::string& bytes) {
  const std::string path = (fs::path(ScratchDir()) / name).string();
  std::ofstream f(path, std::ios::binary | std::ios::trunc);
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path;
}

}  // namespace mf::fuzz
