// Golden results: what a routine produced on a fixed set of worlds, written
// once to a file under tests/data and compared line by line afterwards, so
// that a faster version of the routine is held to the very same results.
//
// A line holds a name and a 64-bit digest (FNV-1a) of everything the
// routine wrote: whole planes of the map, whole saved games. Setting
// MF_RECORD_GOLDEN to a folder writes the files there instead of comparing;
// that is only done when the results are meant to change.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace mf::test {

// FNV-1a over 64 bits, fed with whole numbers and texts.
class Digest {
 public:
  void Add(std::int64_t v) {
    for (int i = 0; i < 8; ++i) Byte(static_cast<unsigned char>((static_cast<std::uint64_t>(v) >> (8 * i)) & 0xffu));
  }
  void Add(const std::string& text) {
    Add(static_cast<std::int64_t>(text.size()));
    for (char c : text) Byte(static_cast<unsigned char>(c));
  }
  std::string Hex() const {
    std::ostringstream out;
    out << std::hex;
    out.width(16);
    out.fill('0');
    out << h_;
    return out.str();
  }

 private:
  void Byte(unsigned char b) {
    h_ ^= b;
    h_ *= 1099511628211ull;
  }
  std::uint64_t h_ = 14695981039346656037ull;
};

// The lines of one golden file, in the order they were made.
class GoldenFile {
 public:
  explicit GoldenFile(std::string name) : name_(std::move(name)) {}

  void Put(const std::string& key, const std::string& digest) {
    keys_.push_back(key);
    lines_[key] = digest;
  }
  std::size_t size() const { return keys_.size(); }

  // Compares with the recorded file (or records it). Every line must match,
  // and the recorded file may hold no line that was not made.
  void Check() const {
    if (const char* dir = std::getenv("MF_RECORD_GOLDEN")) {
      std::ofstream out(std::string(dir) + "/" + name_, std::ios::binary);
      for (const auto& k : keys_) out << k << ' ' << lines_.at(k) << '\n';
      ASSERT_TRUE(out.good()) << "could not record " << name_;
      return;
    }
    const char* data = std::getenv("MF_TEST_DATA");
    ASSERT_NE(data, nullptr) << "MF_TEST_DATA is not set; run the suite through ctest";
    std::ifstream in(std::string(data) + "/" + name_, std::ios::binary);
    ASSERT_TRUE(in.good()) << "no golden file " << name_;
    std::map<std::string, std::string> recorded;
    std::string line;
    while (std::getline(in, line)) {
      const auto blank = line.rfind(' ');
      if (blank == std::string::npos) continue;
      recorded[line.substr(0, blank)] = line.substr(blank + 1);
    }
    EXPECT_EQ(recorded.size(), keys_.size()) << name_ << ": the number of results changed";
    int wrong = 0;
    for (const auto& k : keys_) {
      auto it = recorded.find(k);
      if (it == recorded.end()) {
        ADD_FAILURE() << name_ << ": no recorded result for " << k;
      } else if (it->second != lines_.at(k)) {
        if (++wrong <= 20) ADD_FAILURE() << name_ << ": " << k << " gave " << lines_.at(k) << ", recorded " << it->second;
      }
    }
    EXPECT_EQ(wrong, 0) << name_ << ": results that differ from the recorded ones";
  }

 private:
  std::string name_;
  std::vector<std::string> keys_;
  std::map<std::string, std::string> lines_;
};

}  // namespace mf::test
