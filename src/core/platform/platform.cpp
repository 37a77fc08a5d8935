#include "platform/platform.h"

#include "platform/scripted_platform.h"

namespace mf {
namespace {
Platform* g_installed = nullptr;
ScriptedPlatform& Fallback() {
  static ScriptedPlatform fallback;
  return fallback;
}
}  // namespace

Platform& Plat() { return g_installed ? *g_installed : Fallback(); }

void InstallPlatform(Platform* platform) { g_installed = platform; }

}  // namespace mf
