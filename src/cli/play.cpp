// `play` and `balance`: whole games with the computer on every side, and the
// report a scenario designer reads to see whether the sides are fair.
#include "play.h"

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>
#include <ostream>
#include <random>
#include <sstream>

#include "control/computer_game.h"
#include "control/new_turn_dialog.h"
#include "control/scenario_flow.h"
#include "files/scenario_file.h"
#include "model/arith.h"
#include "model/invariants.h"
#include "model/reset.h"
#include "model/rnd.h"
#include "platform/file_io.h"
#include "platform/scripted_platform.h"
#include "session.h"

namespace fs = std::filesystem;

namespace mf::cli {
namespace {

// A whole number option value; false when it is none or out of range.
bool Count(const std::string& text, long lo, long hi, long* n) {
  if (text.empty() || text.size() > 9) return false;
  for (char c : text)
    if (c < '0' || c > '9') return false;
  *n = std::stol(text);
  return *n >= lo && *n <= hi;
}

// A word of the command line that is no option's value: the file, the first
// time. False, with the reason said, for an unknown option or a second file.
bool FileWord(const char* cmd, const std::string& word, const char* usage, std::string* file, std::ostream& err) {
  if (word.size() > 1 && word[0] == '-') {
    err << cmd << ": unknown option " << word << "\n";
    return false;
  }
  if (!file->empty()) {
    err << usage;
    return false;
  }
  *file = word;
  return true;
}

// Loads a scenario or saved game as the menu's load does, from a copy, so
// that the file the user named is never touched (a load scrambles the file
// it reads).
bool LoadCopy(const std::string& path, std::string* why) {
  std::error_code ec;
  if (!fs::is_regular_file(path, ec)) {
    *why = "cannot read " + path;
    return false;
  }
  std::random_device rd;
  const fs::path copy = fs::temp_directory_path() / ("marrowfield_play_" + std::to_string(getpid()) + "_" +
                                                     std::to_string(rd()) + fs::path(path).extension().string());
  if (!fs::copy_file(path, copy, fs::copy_options::overwrite_existing, ec)) {
    *why = "cannot copy " + path;
    return false;
  }
  onlyclear();
  const bool read = ReadFile(copy.string());
  fs::remove(copy, ec);
  if (!read) {
    *why = "cannot load " + path;
    return false;
  }
  setup();
  return true;
}

// The winner's headline as the winner's New Turn dialog shows it.
std::string WinnerHeadline() {
  const Long saved = Game.CurRegime;
  Game.CurRegime = Game.GameWinner;
  NewTurnDialog dialog;
  dialog.Prepare();
  Game.CurRegime = saved;
  return dialog.headlineTitle + ": " + dialog.headlineText;
}

}  // namespace

int PlayCommand(const Args& args, std::ostream& out, std::ostream& err) {
  constexpr const char* kUsage = "usage: marrowfield-cli play FILE --turns N [--seed S] [-o OUT] [--check]\n";
  std::string file, output;
  long turns = -1, seed = 1;
  bool check = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    const bool hasValue = i + 1 < args.size();
    if (a == "--check") {
      check = true;
    } else if (a == "--turns" || a == "--seed" || a == "-o") {
      if (!hasValue) {
        err << "play: " << a << " needs a value\n";
        return 1;
      }
      const std::string& v = args[++i];
      if (a == "-o") {
        output = v;
      } else if (a == "--turns" && !Count(v, 1, 100000, &turns)) {
        err << "play: --turns wants a whole number from 1 to 100000, not \"" << v << "\"\n";
        return 1;
      } else if (a == "--seed" && !Count(v, 0, 999999999, &seed)) {
        err << "play: --seed wants a whole number from 0 to 999999999, not \"" << v << "\"\n";
        return 1;
      }
    } else if (!FileWord("play", a, kUsage, &file, err)) {
      return 1;
    }
  }
  if (file.empty() || turns < 0) {
    err << kUsage;
    return 1;
  }

  // Message boxes are printed as they appear; the computer's analysis, its
  // battles and sounds are not.
  ScriptedPlatform platform;
  bool loading = true;
  platform.printer = [&](const PlatformEvent& e) {
    const bool box = e.kind == PlatformEvent::kMessage || e.kind == PlatformEvent::kQuestion ||
                     e.kind == PlatformEvent::kPrompt;
    if (box && !loading) out << FormatEvent(e) << "\n";
  };
  platform.keepAnalysis = false;
  InstallPlatform(&platform);
  struct Uninstall {
    ~Uninstall() { InstallPlatform(nullptr); }
  } uninstall;

  StartFresh();
  std::string why;
  if (!LoadCopy(file, &why)) {
    err << "play: " << why << "\n";
    return 1;
  }
  loading = false;
  if (!StartComputerGame(&why)) {
    err << "play: " << why << "\n";
    return 1;
  }
  SeedRnd(static_cast<std::uint32_t>(seed));

  long rounds = 0;
  while (rounds < turns) {
    if (!PlayComputerRegimeTurn()) {
      out << "The game has ended.\n";
      break;
    }
    // The record of what happened would only grow; nobody reads it here.
    platform.Clear();
    if (check) {
      const std::string broken = CheckInvariants();
      if (!broken.empty()) {
        err << "play: turn " << Game.Turn << ", regime " << Game.CurRegime << ": " << broken << "\n";
        return 1;
      }
    }
    if (RoundComplete()) {
      out << RoundLine() << "\n";
      ++rounds;
    }
  }
  if (ValidRegime(Game.GameWinner)) {
    out << "Winner: " << Regime[Game.GameWinner].Name << "\n";
    out << WinnerHeadline() << "\n";
  }
  if (!output.empty() && !WriteFile(output)) {
    err << "play: cannot write " << output << "\n";
    return 1;
  }
  return 0;
}

// ---- balance ------------------------------------------------------------------

namespace {

// What one round line says of each regime.
struct Standing {
  std::string name;
  long towns = 0, formations = 0, pp = 0;
};
struct GameRecord {
  std::vector<long> turn;                       // per round line
  std::vector<std::vector<Standing>> standing;  // per round line, per regime
  std::string winner;
};

bool ParseNumberAfter(const std::string& part, const std::string& key, long* n) {
  const std::size_t at = part.rfind(key);
  if (at == std::string::npos) return false;
  *n = std::atol(part.c_str() + at + key.size());
  return true;
}

// Reads the output of one `play`.
GameRecord ParsePlay(const std::string& text) {
  GameRecord g;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (line.rfind("Winner: ", 0) == 0) {
      g.winner = line.substr(8);
      continue;
    }
    if (line.rfind("Turn ", 0) != 0) continue;
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (;;) {
      const std::size_t bar = line.find(" | ", from);
      parts.push_back(line.substr(from, bar == std::string::npos ? std::string::npos : bar - from));
      if (bar == std::string::npos) break;
      from = bar + 3;
    }
    g.turn.push_back(std::atol(parts[0].c_str() + 5));
    std::vector<Standing> round;
    for (std::size_t i = 1; i < parts.size(); ++i) {
      Standing s;
      const std::size_t colon = parts[i].rfind(": towns ");
      s.name = parts[i].substr(0, colon);
      ParseNumberAfter(parts[i], "towns ", &s.towns);
      ParseNumberAfter(parts[i], "formations ", &s.formations);
      ParseNumberAfter(parts[i], "pp ", &s.pp);
      round.push_back(s);
    }
    g.standing.push_back(std::move(round));
  }
  return g;
}

// One `play` running in its own process.
struct Child {
  pid_t pid = -1;
  int fd = -1;
  long seed = 0;
  std::string text;
};

bool Spawn(const std::string& exe, const std::vector<std::string>& argv, Child* child) {
  int pipefd[2];
  if (pipe(pipefd) != 0) return false;
  const pid_t pid = fork();
  if (pid < 0) {
    close(pipefd[0]);
    close(pipefd[1]);
    return false;
  }
  if (pid == 0) {
    dup2(pipefd[1], 1);
    close(pipefd[0]);
    close(pipefd[1]);
    std::vector<char*> cargs;
    for (const auto& a : argv) cargs.push_back(const_cast<char*>(a.c_str()));
    cargs.push_back(nullptr);
    execv(exe.c_str(), cargs.data());
    _exit(127);
  }
  close(pipefd[1]);
  child->pid = pid;
  child->fd = pipefd[0];
  return true;
}

std::string Fixed(double v, int width) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%*.1f", width, v);
  return buf;
}

std::string Padded(const std::string& s, std::size_t width) {
  return s.size() >= width ? s + " " : s + std::string(width - s.size(), ' ');
}

}  // namespace

int BalanceCommand(const Args& args, std::ostream& out, std::ostream& err) {
  constexpr const char* kUsage =
      "usage: marrowfield-cli balance FILE --games N --turns T [--jobs J] [--csv OUT.csv]\n";
  std::string file, csv;
  long games = -1, turns = -1, jobs = 1;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--games" || a == "--turns" || a == "--jobs" || a == "--csv") {
      if (i + 1 >= args.size()) {
        err << "balance: " << a << " needs a value\n";
        return 1;
      }
      const std::string& v = args[++i];
      bool ok = true;
      if (a == "--games") ok = Count(v, 1, 100000, &games);
      if (a == "--turns") ok = Count(v, 1, 100000, &turns);
      if (a == "--jobs") ok = Count(v, 1, 64, &jobs);
      if (a == "--csv") csv = v;
      if (!ok) {
        err << "balance: " << a << " wants a whole number" << (a == "--jobs" ? " from 1 to 64" : " from 1 to 100000")
            << ", not \"" << v << "\"\n";
        return 1;
      }
    } else if (!FileWord("balance", a, kUsage, &file, err)) {
      return 1;
    }
  }
  if (file.empty() || games < 0 || turns < 0) {
    err << kUsage;
    return 1;
  }
  std::error_code ec;
  if (!fs::is_regular_file(file, ec)) {
    err << "balance: cannot read " << file << "\n";
    return 1;
  }
  const std::string exe = (fs::path(ExecutableDir()) / "marrowfield-cli").string();

  // Games on seeds 1..N, J at a time; each child's output is read as it comes.
  std::vector<GameRecord> records(static_cast<std::size_t>(games));
  std::vector<Child> running;
  long next = 1;
  bool failed = false;
  while ((next <= games || !running.empty()) && !failed) {
    while (next <= games && static_cast<long>(running.size()) < jobs) {
      Child c;
      c.seed = next;
      const std::vector<std::string> argv = {exe, "play", file, "--turns", std::to_string(turns), "--seed",
                                             std::to_string(next)};
      if (!Spawn(exe, argv, &c)) {
        err << "balance: cannot start a game\n";
        failed = true;
        break;
      }
      running.push_back(c);
      ++next;
    }
    std::vector<pollfd> fds;
    for (const Child& c : running) fds.push_back({c.fd, POLLIN, 0});
    if (fds.empty()) break;
    if (poll(fds.data(), fds.size(), -1) < 0) continue;
    for (std::size_t i = running.size(); i-- > 0;) {
      if ((fds[i].revents & (POLLIN | POLLHUP | POLLERR)) == 0) continue;
      char buf[8192];
      const ssize_t n = read(running[i].fd, buf, sizeof buf);
      if (n > 0) {
        running[i].text.append(buf, static_cast<std::size_t>(n));
        continue;
      }
      close(running[i].fd);
      int status = 0;
      waitpid(running[i].pid, &status, 0);
      if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        err << "balance: the game on seed " << running[i].seed << " failed\n";
        failed = true;
      }
      records[static_cast<std::size_t>(running[i].seed - 1)] = ParsePlay(running[i].text);
      running.erase(running.begin() + static_cast<long>(i));
    }
  }
  for (Child& c : running) {
    kill(c.pid, SIGTERM);
    close(c.fd);
    waitpid(c.pid, nullptr, 0);
  }
  if (failed) return 1;

  // The regimes in the order of the first game's lines.
  std::vector<std::string> names;
  for (const GameRecord& g : records)
    if (!g.standing.empty()) {
      for (const Standing& s : g.standing.front()) names.push_back(s.name);
      break;
    }
  const std::size_t R = names.size();
  out << "Balance of " << fs::path(file).filename().string() << ": " << games << " games of " << turns
      << " turns, seeds 1.." << games << "\n";
  std::size_t width = 6;
  for (const std::string& name : names) width = std::max(width, name.size());
  width += 2;
  out << Padded("regime", width) << "won   towns     sd      pp      sd  out  out turn\n";
  for (std::size_t r = 0; r < R; ++r) {
    long won = 0, out_ = 0, turnSum = 0;
    double tSum = 0, tSq = 0, pSum = 0, pSq = 0;
    long n = 0;
    for (const GameRecord& g : records) {
      if (g.standing.empty() || g.standing.back().size() <= r) continue;
      if (g.winner == names[r]) ++won;
      const Standing& last = g.standing.back()[r];
      tSum += static_cast<double>(last.towns);
      tSq += static_cast<double>(last.towns) * static_cast<double>(last.towns);
      pSum += static_cast<double>(last.pp);
      pSq += static_cast<double>(last.pp) * static_cast<double>(last.pp);
      ++n;
      for (std::size_t k = 0; k < g.standing.size(); ++k) {
        const Standing& s = g.standing[k][r];
        if (s.towns == 0 && s.formations == 0) {
          ++out_;
          turnSum += g.turn[k];
          break;
        }
      }
    }
    const double nd = n > 0 ? static_cast<double>(n) : 1.0;
    const double tMean = tSum / nd, pMean = pSum / nd;
    const double tSd = std::sqrt(std::max(0.0, tSq / nd - tMean * tMean));
    const double pSd = std::sqrt(std::max(0.0, pSq / nd - pMean * pMean));
    out << Padded(names[r], width) << (won < 10 ? "  " : (won < 100 ? " " : "")) << won << Fixed(tMean, 8)
        << Fixed(tSd, 7) << Fixed(pMean, 8) << Fixed(pSd, 8) << "  " << (out_ < 10 ? "  " : (out_ < 100 ? " " : ""))
        << out_
        << (out_ > 0 ? Fixed(static_cast<double>(turnSum) / static_cast<double>(out_), 9) : std::string("        -"))
        << "\n";
  }

  if (!csv.empty()) {
    std::ostringstream table;
    table << "turn";
    for (const std::string& name : names) table << "," << '"' << name << '"';
    table << "\r\n";
    std::map<long, std::vector<std::pair<double, long>>> byTurn;  // turn -> per regime (sum, count)
    for (const GameRecord& g : records)
      for (std::size_t k = 0; k < g.standing.size(); ++k) {
        auto& row = byTurn[g.turn[k]];
        row.resize(R);
        for (std::size_t r = 0; r < R && r < g.standing[k].size(); ++r) {
          row[r].first += static_cast<double>(g.standing[k][r].towns);
          row[r].second += 1;
        }
      }
    for (const auto& [turn, row] : byTurn) {
      table << turn;
      for (const auto& cell : row) {
        char buf[32];
        std::snprintf(buf, sizeof buf, "%.2f", cell.second > 0 ? cell.first / static_cast<double>(cell.second) : 0.0);
        table << "," << buf;
      }
      table << "\r\n";
    }
    if (!ReplaceFileAtomically(csv, table.str())) {
      err << "balance: cannot write " << csv << "\n";
      return 1;
    }
  }
  return 0;
}

}  // namespace mf::cli
