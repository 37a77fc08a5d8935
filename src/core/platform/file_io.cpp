#include "platform/file_io.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace fs = std::filesystem;

namespace mf {
namespace {

bool Fail(std::string* why, const std::string& reason) {
  if (why != nullptr) *why = reason;
  return false;
}

std::string SizeText(std::size_t bytes) {
  if (bytes >= (std::size_t{1} << 20) && bytes % (std::size_t{1} << 20) == 0)
    return std::to_string(bytes >> 20) + " MB";
  return std::to_string(bytes) + " bytes";
}

// What stands at path, through links; false with the reason when it is not
// a regular file.
bool IsRegular(const std::string& path, std::string* why) {
  if (path.empty()) return Fail(why, "no file was named");
  std::error_code ec;
  const fs::file_status st = fs::status(path, ec);
  if (st.type() == fs::file_type::not_found) {
    // A link whose target is gone, or nothing at all.
    if (fs::is_symlink(fs::symlink_status(path, ec))) return Fail(why, "it is a link to a file that does not exist");
    return Fail(why, "it does not exist");
  }
  if (ec) return Fail(why, "it cannot be looked at: " + ec.message());
  if (st.type() == fs::file_type::directory) return Fail(why, "it is a folder");
  if (st.type() != fs::file_type::regular) return Fail(why, "it is not a regular file");
  return true;
}

// A name beside target that no other file has: the target's own name with
// a random tail, hidden.
std::string UniqueTempBeside(const fs::path& target) {
  static std::atomic<unsigned> counter{0};
  std::random_device rd;
  const fs::path dir = target.parent_path();
  for (int attempt = 0; attempt < 100; ++attempt) {
    const std::string tail = std::to_string(rd()) + "-" + std::to_string(counter.fetch_add(1));
    fs::path temp = dir / ("." + target.filename().string() + ".tmp-" + tail);
    std::error_code ec;
    if (!fs::exists(fs::symlink_status(temp, ec))) return temp.string();
  }
  return {};
}

// The file a write must replace: the target of a link (followed to the end
// of a chain), else path itself.
fs::path WriteTarget(const std::string& path) {
  fs::path p(path);
  std::error_code ec;
  for (int hops = 0; hops < 40 && fs::is_symlink(fs::symlink_status(p, ec)); ++hops) {
    const fs::path next = fs::read_symlink(p, ec);
    if (ec) break;
    p = next.is_absolute() ? next : p.parent_path() / next;
  }
  return p.lexically_normal();
}

}  // namespace

bool CanReadFile(const std::string& path, std::string* why) {
  if (!IsRegular(path, why)) return false;
  errno = 0;
  std::ifstream f(path, std::ios::binary);
  if (!f) return Fail(why, std::string("it cannot be opened: ") + (errno != 0 ? std::strerror(errno) : "unknown"));
  return true;
}

bool ReadWholeFile(const std::string& path, std::string* bytes, std::string* why, std::size_t maxBytes) {
  bytes->clear();
  if (!IsRegular(path, why)) return false;
  errno = 0;
  std::ifstream f(path, std::ios::binary);
  if (!f) return Fail(why, std::string("it cannot be opened: ") + (errno != 0 ? std::strerror(errno) : "unknown"));
  // Read in pieces and stop one byte past the limit: a file that grows while
  // it is read, or lies about its size, is held to the limit all the same.
  std::string all;
  char buf[1 << 16];
  while (f) {
    f.read(buf, sizeof buf);
    const auto got = static_cast<std::size_t>(f.gcount());
    if (all.size() + got > maxBytes) return Fail(why, "it is larger than " + SizeText(maxBytes));
    all.append(buf, got);
  }
  if (f.bad()) return Fail(why, "it cannot be read to the end");
  *bytes = std::move(all);
  return true;
}

bool ReplaceFileAtomically(const std::string& path, const std::string& bytes, std::string* why) {
  if (path.empty()) return Fail(why, "no file was named");
  const fs::path target = WriteTarget(path);
  std::error_code ec;
  const fs::file_status old = fs::status(target, ec);
  const bool exists = old.type() != fs::file_type::not_found && !ec;
  if (exists && old.type() == fs::file_type::directory) return Fail(why, "it is a folder");
  if (exists && old.type() != fs::file_type::regular) return Fail(why, "it is not a regular file");

  const std::string temp = UniqueTempBeside(target);
  if (temp.empty()) return Fail(why, "no temporary file can be made beside it");
  auto dropTemp = [&temp] {
    std::error_code ignored;
    fs::remove(temp, ignored);
  };
  {
    errno = 0;
    std::ofstream f(temp, std::ios::binary | std::ios::trunc);
    if (!f) {
      const std::string reason = errno != 0 ? std::strerror(errno) : "unknown";
      dropTemp();
      return Fail(why, "it cannot be written: " + reason);
    }
    f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    f.flush();
    f.close();
    if (f.fail()) {
      dropTemp();
      return Fail(why, "it cannot be written in full (is the disk full?)");
    }
  }
  // The new file keeps what the old one allowed (a file with passwords in
  // it stays private).
  if (exists) {
    fs::permissions(temp, old.permissions(), fs::perm_options::replace, ec);
    if (ec) {
      dropTemp();
      return Fail(why, "its permissions cannot be kept: " + ec.message());
    }
  }
  fs::rename(temp, target, ec);
  if (ec) {
    dropTemp();
    return Fail(why, "it cannot be replaced: " + ec.message());
  }
  return true;
}

}  // namespace mf
