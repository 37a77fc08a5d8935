#include "fuzz_support.h"

#include <filesystem>
#include <fstream>
#include <random>

#include "platform/scripted_platform.h"
#include "session.h"

namespace fs = std::filesystem;

namespace mf::fuzz {

void FreshGame() {
  static ScriptedPlatform platform;
  // The record of every box would grow without end over millions of inputs.
  platform.Clear();
  InstallPlatform(&platform);
  cli::StartFresh();
}

std::string AsText(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

const std::string& ScratchDir() {
  static const std::string dir = [] {
    std::random_device rd;
    const fs::path p = fs::temp_directory_path() / ("mffuzz_" + std::to_string(rd()) + std::to_string(rd()));
    fs::create_directories(p);
    return p.string();
  }();
  return dir;
}

std::string WriteScratch(const std::string& name, const std::string& bytes) {
  const std::string path = (fs::path(ScratchDir()) / name).string();
  std::ofstream f(path, std::ios::binary | std::ios::trunc);
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path;
}

}  // namespace mf::fuzz
