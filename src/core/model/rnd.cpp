#include "model/rnd.h"

#include <chrono>
#include <random>

namespace mf {
namespace {
std::mt19937& Engine() {
  static std::mt19937 engine(5489u);
  return engine;
}
}  // namespace

void SeedRnd(std::uint32_t seed) { Engine().seed(seed); }

void SeedRndFromClock() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  SeedRnd(static_cast<std::uint32_t>(now ^ (now >> 32)));
}

float Rnd() {
  // 24 random bits fill a float mantissa exactly, so the result is below 1.
  return static_cast<float>(Engine()() >> 8) * (1.0f / 16777216.0f);
}

}  // namespace mf
