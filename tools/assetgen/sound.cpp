// The default sounds, synthesised: 22050 Hz, 16-bit mono wave files.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

#include "art.h"

namespace art {
namespace {

constexpr int kRate = 22050;
constexpr double kPi = 3.14159265358979323846;

using Buffer = std::vector<float>;

Buffer Make(double seconds) { return Buffer(static_cast<std::size_t>(seconds * kRate), 0.0f); }

// A repeatable noise source, so every build writes the same files.
struct Noise {
  std::uint32_t state;
  explicit Noise(std::uint32_t seed) : state(seed * 2654435761u + 1) {}
  float Next() {
    state = state * 1664525u + 1013904223u;
    return static_cast<float>(state >> 8) / 8388608.0f - 1.0f;
  }
};

// Attack, then exponential decay with time constant tau (seconds).
double Env(double t, double attack, double tau) {
  if (t < 0) return 0;
  if (t < attack) return t / attack;
  return std::exp(-(t - attack) / tau);
}

// A tone of harmonics with amplitudes falling as 1/k^roll, frequency f(t).
template <class F>
void Tone(Buffer& b, double t0, double dur, F freq, int harmonics, double roll, double gain, double attack, double release,
          double vibrato = 0) {
  double phase = 0;
  const std::size_t i0 = static_cast<std::size_t>(t0 * kRate);
  const std::size_t n = static_cast<std::size_t>(dur * kRate);
  for (std::size_t i = 0; i < n && i0 + i < b.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    double f = freq(t);
    if (vibrato > 0 && t > 0.12) f *= 1 + vibrato * std::sin(2 * kPi * 5.5 * t);
    phase += 2 * kPi * f / kRate;
    double v = 0;
    for (int k = 1; k <= harmonics; ++k) {
      if (f * k > kRate / 2.2) break;
      v += std::sin(phase * k) / std::pow(k, roll);
    }
    double env = std::min(1.0, t / attack);
    if (t > dur - release) env *= std::max(0.0, (dur - t) / release);
    b[i0 + i] += static_cast<float>(v * env * gain);
  }
}

void Brass(Buffer& b, double t0, double dur, double f, double gain) {
  Tone(b, t0, dur, [f](double) { return f; }, 10, 1.2, gain, 0.035, 0.08, 0.006);
}

// Filtered noise with an envelope: low-pass at lo Hz, then with hi > 0 the
// part above hi only.
void Hiss(Buffer& b, double t0, double dur, double lo, double hi, double attack, double tau, double gain, std::uint32_t seed) {
  Noise rnd(seed);
  const double a = std::exp(-2 * kPi * lo / kRate);
  const double ah = hi > 0 ? std::exp(-2 * kPi * hi / kRate) : 0;
  double low = 0, low2 = 0;
  const std::size_t i0 = static_cast<std::size_t>(t0 * kRate);
  const std::size_t n = static_cast<std::size_t>(dur * kRate);
  for (std::size_t i = 0; i < n && i0 + i < b.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    low = a * low + (1 - a) * rnd.Next();
    double v = low;
    if (hi > 0) {
      low2 = ah * low2 + (1 - ah) * low;
      v = low - low2;
    }
    const double tail = t > dur - 0.02 ? std::max(0.0, (dur - t) / 0.02) : 1.0;
    b[i0 + i] += static_cast<float>(v * Env(t, attack, tau) * gain * tail);
  }
}

// A drum hit: a sine falling in pitch.
void Thump(Buffer& b, double t0, double f0, double f1, double tau, double gain) {
  double phase = 0;
  const std::size_t i0 = static_cast<std::size_t>(t0 * kRate);
  const std::size_t n = static_cast<std::size_t>(tau * 6 * kRate);
  for (std::size_t i = 0; i < n && i0 + i < b.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    const double f = f1 + (f0 - f1) * std::exp(-t / (tau * 0.5));
    phase += 2 * kPi * f / kRate;
    b[i0 + i] += static_cast<float>(std::sin(phase) * Env(t, 0.003, tau) * gain);
  }
}

void Bell(Buffer& b, double t0, double f, double gain) {
  for (const auto& [ratio, amp, tau] : {std::tuple{1.0, 1.0, 0.5}, {2.76, 0.4, 0.2}, {5.4, 0.2, 0.08}, {2.0, 0.3, 0.35}}) {
    Tone(b, t0, tau * 5, [=](double) { return f * ratio; }, 1, 1, gain * amp, 0.003, tau * 2);
  }
}

// A shot: a crack over a dull body, with an echo.
void Shot(Buffer& b, double t0, double gain, std::uint32_t seed) {
  Hiss(b, t0, 0.03, 9000, 1500, 0.0005, 0.006, gain * 1.6, seed);
  Hiss(b, t0, 0.35, 900, 0, 0.001, 0.06, gain * 2.2, seed + 1);
  Hiss(b, t0 + 0.11, 0.4, 700, 0, 0.01, 0.1, gain * 0.5, seed + 2);
}

void Cannon(Buffer& b, double t0, double gain, double depth, std::uint32_t seed) {
  Thump(b, t0, 90 * depth, 38 * depth, 0.18, gain * 0.9);
  Hiss(b, t0, 1.3, 500 * depth, 0, 0.003, 0.28, gain * 2.6, seed);
  Hiss(b, t0, 0.05, 8000, 2000, 0.0005, 0.01, gain * 0.8, seed + 1);
}

void Normalise(Buffer& b, float peak) {
  float m = 0;
  for (float v : b) m = std::max(m, std::fabs(v));
  if (m <= 0) return;
  for (float& v : b) v *= peak / m;
  // Soft ends so nothing clicks.
  const std::size_t fade = std::min<std::size_t>(b.size() / 2, kRate / 200);
  for (std::size_t i = 0; i < fade; ++i) {
    b[i] *= static_cast<float>(i) / fade;
    b[b.size() - 1 - i] *= static_cast<float>(i) / fade;
  }
}

bool WriteWav(const std::string& path, Buffer b, float peak) {
  Normalise(b, peak);
  std::vector<std::uint8_t> out(44 + b.size() * 2);
  auto put = [&](std::size_t at, std::uint32_t v, int bytes) {
    for (int i = 0; i < bytes; ++i) out[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
  };
  const std::uint32_t data = static_cast<std::uint32_t>(b.size() * 2);
  std::copy_n("RIFF", 4, out.begin());
  put(4, 36 + data, 4);
  std::copy_n("WAVEfmt ", 8, out.begin() + 8);
  put(16, 16, 4);
  put(20, 1, 2);  // PCM
  put(22, 1, 2);  // mono
  put(24, kRate, 4);
  put(28, kRate * 2, 4);
  put(32, 2, 2);
  put(34, 16, 2);
  std::copy_n("data", 4, out.begin() + 36);
  put(40, data, 4);
  for (std::size_t i = 0; i < b.size(); ++i) {
    const long s = std::lround(std::clamp(b[i], -1.0f, 1.0f) * 32767.0f);
    put(44 + i * 2, static_cast<std::uint32_t>(static_cast<std::int16_t>(s)) & 0xFFFF, 2);
  }
  std::ofstream f(path, std::ios::binary);
  f.write(reinterpret_cast<const char*>(out.data()), static_cast<std::streamsize>(out.size()));
  return static_cast<bool>(f);
}

// Note frequencies by semitone from A4.
double Note(int semitone) { return 440.0 * std::pow(2.0, semitone / 12.0); }
constexpr int C4 = -9, E4 = -5, G4 = -2, C5 = 3, D5 = 5, E5 = 7, G5 = 10, A5 = 12, C6 = 15;

Buffer Click() {
  Buffer b = Make(0.06);
  Hiss(b, 0, 0.02, 8000, 2500, 0.0003, 0.003, 0.8, 1);
  Tone(b, 0, 0.05, [](double) { return 2300.0; }, 1, 1, 0.35, 0.001, 0.045);
  return b;
}

Buffer Intro() {
  Buffer b = Make(3.0);
  // A short call of trumpets over a roll of drums.
  const struct {
    double t, d;
    int note;
  } tune[] = {{0.0, 0.16, G4}, {0.18, 0.16, G4}, {0.36, 0.34, C5}, {0.72, 0.16, E5},
              {0.9, 0.5, G5},  {1.42, 0.18, E5}, {1.62, 1.2, G5}};
  for (const auto& n : tune) {
    Brass(b, n.t, n.d, Note(n.note), 0.30);
    Brass(b, n.t, n.d, Note(n.note - (n.note == G5 ? 3 : 4)), 0.16);
  }
  Brass(b, 1.62, 1.2, Note(C5), 0.14);
  for (double t = 0; t < 1.6; t += 0.045) Hiss(b, t, 0.05, 6000, 800, 0.001, 0.015, 0.25 * (0.4 + t / 2.0), 10 + static_cast<int>(t * 100));
  Thump(b, 0.0, 140, 70, 0.2, 0.6);
  Thump(b, 0.9, 140, 70, 0.2, 0.6);
  Thump(b, 1.62, 120, 60, 0.35, 0.8);
  Hiss(b, 1.62, 1.3, 9000, 3000, 0.002, 0.5, 0.5, 77);
  return b;
}

Buffer MarchInfantry() {
  Buffer b = Make(1.5);
  for (int s = 0; s < 4; ++s) {
    const double t = 0.05 + s * 0.34 + (s % 2) * 0.015;
    Hiss(b, t, 0.2, 260, 0, 0.002, 0.035, 2.4, 20 + s);
    Hiss(b, t, 0.08, 3500, 900, 0.001, 0.02, 0.5, 30 + s);
    Hiss(b, t + 0.02, 0.05, 9000, 5000, 0.001, 0.01, 0.15, 40 + s);
  }
  return b;
}

Buffer MoveArmour() {
  Buffer b = Make(1.7);
  // The engine: a low growl that swells and fades.
  Tone(b, 0, 1.7, [](double t) { return 36 + 6 * t; }, 14, 0.9, 0.35, 0.25, 0.4);
  Hiss(b, 0, 1.7, 300, 0, 0.3, 5.0, 1.4, 50);
  // The tracks: a steady clatter of links.
  for (double t = 0.1; t < 1.55; t += 0.085) {
    Tone(b, t, 0.03, [](double) { return 1700.0; }, 2, 1, 0.05, 0.001, 0.025);
    Hiss(b, t, 0.03, 5000, 1200, 0.001, 0.008, 0.25, static_cast<std::uint32_t>(t * 1000));
  }
  return b;
}

Buffer FighterAttack() {
  Buffer b = Make(1.6);
  // An engine passing overhead, its pitch falling as it goes by.
  Tone(b, 0, 1.6, [](double t) { return 118 - 30 / (1 + std::exp(-(t - 0.8) * 6)); }, 16, 0.8, 0.22, 0.35, 0.45);
  Hiss(b, 0, 1.6, 1200, 200, 0.4, 5.0, 0.4, 60);
  // Bursts of its guns.
  for (int i = 0; i < 9; ++i) {
    const double t = 0.45 + i * 0.065 + (i >= 5 ? 0.12 : 0);
    Hiss(b, t, 0.05, 6000, 700, 0.0005, 0.012, 0.9, 61 + i);
    Thump(b, t, 220, 120, 0.012, 0.3);
  }
  return b;
}

Buffer BombAttack() {
  Buffer b = Make(2.3);
  // The whistle of a falling bomb, then the blast.
  Tone(b, 0, 1.0, [](double t) { return 1500 - 900 * t; }, 2, 2, 0.12, 0.3, 0.05);
  Thump(b, 1.0, 80, 35, 0.3, 0.9);
  Hiss(b, 1.0, 1.3, 600, 0, 0.004, 0.35, 3.2, 70);
  Hiss(b, 1.0, 0.6, 6000, 1500, 0.001, 0.08, 0.6, 71);
  return b;
}

Buffer ShipMove() {
  Buffer b = Make(2.0);
  // A ship's horn: two deep reeds a third apart.
  for (double f : {98.0, 123.5}) Tone(b, 0.02, 1.5, [f](double) { return f; }, 18, 1.0, 0.18, 0.12, 0.35);
  Hiss(b, 0, 2.0, 400, 0, 0.5, 4.0, 0.7, 80);
  return b;
}

Buffer InfantryAttack() {
  Buffer b = Make(1.4);
  const double times[6] = {0.02, 0.21, 0.33, 0.62, 0.74, 0.98};
  for (int i = 0; i < 6; ++i) Shot(b, times[i], 0.5 + 0.1 * (i % 3), 90 + i * 3);
  return b;
}

Buffer ArtilleryAttack() {
  Buffer b = Make(2.0);
  Cannon(b, 0.02, 0.9, 1.0, 100);
  Cannon(b, 0.7, 0.7, 1.1, 104);
  return b;
}

Buffer ShipAttack() {
  Buffer b = Make(2.4);
  // A broadside that rolls back from the sea.
  Cannon(b, 0.02, 1.0, 0.75, 110);
  Cannon(b, 0.12, 0.8, 0.8, 114);
  Cannon(b, 0.5, 0.3, 0.7, 118);
  Cannon(b, 0.95, 0.15, 0.7, 122);
  return b;
}

Buffer Transfer() {
  Buffer b = Make(1.0);
  Hiss(b, 0, 0.5, 2500, 300, 0.2, 0.1, 0.25, 130);
  Bell(b, 0.05, Note(E5), 0.4);
  Bell(b, 0.22, Note(A5), 0.4);
  return b;
}

Buffer Victory() {
  Buffer b = Make(3.4);
  const struct {
    double t, d;
    int note;
  } tune[] = {{0.0, 0.2, C5}, {0.22, 0.2, E5}, {0.44, 0.2, G5}, {0.66, 0.3, C6}, {1.0, 0.16, A5}, {1.18, 1.9, C6}};
  for (const auto& n : tune) Brass(b, n.t, n.d, Note(n.note), 0.28);
  // The closing chord under the last note.
  for (int note : {C4, E4, G4, C5, E5}) Brass(b, 1.18, 1.9, Note(note), 0.12);
  Brass(b, 0.0, 1.0, Note(C4), 0.1);
  Brass(b, 1.0, 0.16, Note(D5 - 12), 0.08);
  for (double t = 0.66; t < 1.18; t += 0.04) Thump(b, t, 110, 80, 0.04, 0.25);
  Thump(b, 1.18, 110, 55, 0.4, 0.9);
  Hiss(b, 1.18, 2.2, 10000, 3500, 0.002, 0.7, 0.7, 140);
  return b;
}

}  // namespace

bool WriteSounds(const std::string& dir) {
  const std::filesystem::path d(dir);
  bool ok = true;
  ok &= WriteWav((d / "click.wav").string(), Click(), 0.5f);
  ok &= WriteWav((d / "intro.wav").string(), Intro(), 0.7f);
  ok &= WriteWav((d / "mov_inf.wav").string(), MarchInfantry(), 0.8f);
  ok &= WriteWav((d / "mov_arm.wav").string(), MoveArmour(), 0.6f);
  ok &= WriteWav((d / "att_fighter.wav").string(), FighterAttack(), 0.6f);
  ok &= WriteWav((d / "att_bomb.wav").string(), BombAttack(), 0.7f);
  ok &= WriteWav((d / "mov_ship.wav").string(), ShipMove(), 0.6f);
  ok &= WriteWav((d / "att_inf.wav").string(), InfantryAttack(), 0.8f);
  ok &= WriteWav((d / "att_art.wav").string(), ArtilleryAttack(), 0.7f);
  ok &= WriteWav((d / "att_ship.wav").string(), ShipAttack(), 0.7f);
  ok &= WriteWav((d / "transfer.wav").string(), Transfer(), 0.5f);
  ok &= WriteWav((d / "victory.wav").string(), Victory(), 0.7f);
  return ok;
}

}  // namespace art
