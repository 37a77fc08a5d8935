#include "subcommands.h"

#include <filesystem>
#include <ostream>

#include "compile_command.h"
#include "files/json_io.h"
#include "files/scenario_file.h"
#include "files/scenario_schema.h"
#include "platform/file_io.h"
#include "model/reset.h"
#include "play.h"
#include "platform/scripted_platform.h"
#include "control/random_flow.h"
#include "random/random_dialog.h"
#include "script_runner.h"
#include "session.h"

namespace fs = std::filesystem;

namespace mf::cli {
namespace {

constexpr const char* kUsage =
    "usage: marrowfield-cli COMMAND ...\n"
    "  new W H -o FILE              a new W x H scenario, saved to FILE\n"
    "  dump FILE [--json]           every saved field of FILE, in file order\n"
    "  export FILE -o OUT.json      FILE as JSON\n"
    "  import FILE.json -o OUT.mf1  a JSON scenario as a scenario file\n"
    "  scramble FILE                scrambles a plain scenario file in place\n"
    "  unscramble FILE              makes a scrambled scenario file plain in place\n"
    "  run SCRIPT                   runs a script (see docs/cli.md)\n"
    "  play FILE --turns N [--seed S] [-o OUT] [--check]\n"
    "                               plays N rounds with the computer on every side\n"
    "  balance FILE --games N --turns T [--jobs J] [--csv OUT.csv]\n"
    "                               how each regime fares over N computer games\n"
    "  random [--size N] [--land L] [--regimes R] [--humans 1,0,..] [--email a,b,..] [--seed S]\n"
    "         [--real-start] [--fog 0/1] [--exploration 0/1] [--pbem 0/1] [--passwords 0/1]\n"
    "         [--aibonus] [--allied] -o FILE   a random scenario, saved before its first turn\n"
    "  compile SOURCE -o FILE       a scenario from its readable source (see docs/content-format.md)\n";

// Splits the words into positional ones and "-o FILE"; false with a reason
// for an option it does not know or a missing value.
bool SplitArgs(const std::string& cmd, const Args& args, std::vector<std::string>* positional, std::string* output,
               bool* json, std::string* why) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "-o") {
      if (i + 1 >= args.size()) {
        *why = cmd + ": -o needs a file name";
        return false;
      }
      *output = args[++i];
    } else if (args[i] == "--json" && json) {
      *json = true;
    } else if (args[i].size() > 1 && args[i][0] == '-') {
      *why = cmd + ": unknown option " + args[i];
      return false;
    } else {
      positional->push_back(args[i]);
    }
  }
  return true;
}

// Every CLI command prints the message boxes the game would show.
struct Printing {
  ScriptedPlatform platform;
  explicit Printing(std::ostream& out) {
    platform.printer = [&out](const PlatformEvent& e) { out << FormatEvent(e) << "\n"; };
    InstallPlatform(&platform);
  }
  ~Printing() { InstallPlatform(nullptr); }
};

// Reads a scenario file into freshly cleared tables exactly as it stands:
// no repairs, and the file on disk is left as it was.
bool LoadForListing(const std::string& path, std::string* why) {
  std::string bytes, reason;
  bool scrambled = false;
  if (!ReadPlainBytes(path, &bytes, &scrambled, &reason)) {
    *why = "cannot read " + path + ": " + reason;
    return false;
  }
  StartFresh();
  onlyclear();
  const long version = ParseScenario(bytes);
  if (version > kFileVersion) {
    *why = path + " is of file version " + std::to_string(version) + ", newer than " + std::to_string(kFileVersion);
    return false;
  }
  return true;
}

// Long texts hold line breaks; a listing shows them as the file does.
std::string OneLine(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
      out += "//x//";
      ++i;
    } else {
      out += text[i];
    }
  }
  return out;
}

}  // namespace

int NewCommand(const Args& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> pos;
  std::string output, why;
  if (!SplitArgs("new", args, &pos, &output, nullptr, &why)) {
    err << why << "\n";
    return 1;
  }
  if (pos.size() != 2 || output.empty()) {
    err << "usage: marrowfield-cli new W H -o FILE\n";
    return 1;
  }
  if (!MapSizeWords(pos[0], pos[1], &why)) {
    err << "new: " << why << "\n";
    return 1;
  }
  Printing printing(out);
  StartFresh();
  MakeItSo(true, pos[0], pos[1]);
  AfterClearCommand(true);
  if (!WriteFile(output)) {
    err << "new: cannot write " << output << "\n";
    return 1;
  }
  return 0;
}

int DumpCommand(const Args& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> pos;
  std::string output, why;
  bool json = false;
  if (!SplitArgs("dump", args, &pos, &output, &json, &why)) {
    err << why << "\n";
    return 1;
  }
  if (pos.size() != 1 || !output.empty()) {
    err << "usage: marrowfield-cli dump FILE [--json]\n";
    return 1;
  }
  Printing printing(out);
  if (!LoadForListing(pos[0], &why)) {
    err << "dump: " << why << "\n";
    return 1;
  }
  if (json) {
    out << ExportJson();
    return 0;
  }
  for (const auto& f : ListScenarioFields())
    out << f.name << (f.repeat ? " (again)" : "") << " = " << OneLine(f.value) << "\n";
  return 0;
}

int ExportCommand(const Args& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> pos;
  std::string output, why;
  if (!SplitArgs("export", args, &pos, &output, nullptr, &why)) {
    err << why << "\n";
    return 1;
  }
  if (pos.size() != 1 || output.empty()) {
    err << "usage: marrowfield-cli export FILE -o OUT.json\n";
    return 1;
  }
  Printing printing(out);
  if (!LoadForListing(pos[0], &why)) {
    err << "export: " << why << "\n";
    return 1;
  }
  if (!ReplaceFileAtomically(output, ExportJson(), &why)) {
    err << "export: cannot write " << output << ": " << why << "\n";
    return 1;
  }
  return 0;
}

int ImportJsonCommand(const Args& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> pos;
  std::string output, why;
  if (!SplitArgs("import", args, &pos, &output, nullptr, &why)) {
    err << why << "\n";
    return 1;
  }
  if (pos.size() != 1 || output.empty()) {
    err << "usage: marrowfield-cli import FILE.json -o OUT.mf1\n";
    return 1;
  }
  std::string json;
  if (!ReadWholeFile(pos[0], &json, &why)) {
    err << "import: cannot read " << pos[0] << ": " << why << "\n";
    return 1;
  }
  Printing printing(out);
  StartFresh();
  onlyclear();
  if (!ImportJson(json, &why)) {
    err << "import: " << pos[0] << ": " << why << "\n";
    return 1;
  }
  if (!WriteFile(output)) {
    err << "import: cannot write " << output << "\n";
    return 1;
  }
  return 0;
}

int ScrambleCommand(const Args& args, bool scramble, std::ostream& out, std::ostream& err) {
  const char* cmd = scramble ? "scramble" : "unscramble";
  if (args.size() != 1) {
    err << "usage: marrowfield-cli " << cmd << " FILE\n";
    return 1;
  }
  const std::string& path = args[0];
  std::string bytes, why;
  // The state is decided as a load decides it, by the first number.
  bool scrambled = false;
  if (!ReadPlainBytes(path, &bytes, &scrambled, &why)) {
    err << cmd << ": cannot read " << path << ": " << why << "\n";
    return 1;
  }
  if (scramble && scrambled) {
    err << "scramble: " << path << " is already scrambled\n";
    return 1;
  }
  if (!scramble && !scrambled) {
    err << "unscramble: " << path << " is not scrambled\n";
    return 1;
  }
  Printing printing(out);
  if (!Transform(path)) {
    err << cmd << ": the transform of " << path << " failed\n";
    return 1;
  }
  return 0;
}

int RunCommand(const Args& args, std::ostream& out, std::ostream& err) {
  if (args.size() != 1) {
    err << "usage: marrowfield-cli run SCRIPT\n";
    return 1;
  }
  return RunScriptFile(args[0], out, err);
}

int RandomCommand(const Args& args, std::ostream& out, std::ostream& err) {
  // Options with a value, as the dialog's keys; the three switches need none.
  static const std::pair<const char*, const char*> kValued[] = {
      {"--size", "size"},   {"--land", "land"},           {"--regimes", "regimes"}, {"--humans", "humans"},
      {"--email", "email"}, {"--seed", "seed"},           {"--fog", "fog"},         {"--exploration", "exploration"},
      {"--pbem", "pbem"},   {"--passwords", "passwords"}};
  static const std::pair<const char*, const char*> kSwitches[] = {
      {"--real-start", "realstart=1"}, {"--aibonus", "aibonus=1"}, {"--allied", "allied=1"}};
  std::vector<std::string> words;
  std::string output;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    const char* key = a == "-o" ? "-o" : nullptr;
    for (const auto& [opt, k] : kValued)
      if (a == opt) key = k;
    const char* word = nullptr;
    for (const auto& [opt, w] : kSwitches)
      if (a == opt) word = w;
    if (word != nullptr) {
      words.push_back(word);
      continue;
    }
    if (key == nullptr) {
      err << "random: unknown option " << a << "\n";
      return 1;
    }
    if (i + 1 >= args.size()) {
      err << "random: " << a << " needs a value\n";
      return 1;
    }
    const std::string& value = args[++i];
    if (a == "-o") {
      output = value;
    } else {
      words.push_back(std::string(key) + "=" + value);
    }
  }
  if (output.empty()) {
    err << "usage: marrowfield-cli random [options] -o FILE\n";
    return 1;
  }
  std::vector<DialogAction> actions;
  std::string why;
  if (!RandomDialogActions(words, &actions, &why)) {
    err << "random: " << why << "\n";
    return 1;
  }
  actions.push_back({"start", ""});
  Printing printing(out);
  StartFresh();
  printing.platform.QueueDialog("random", std::move(actions));
  std::string refusal;
  if (!MakeRandomScenario(&refusal)) {
    err << (refusal.empty() ? std::string("random: no map was made") : refusal) << "\n";
    return 1;
  }
  if (!printing.platform.lastError.empty()) {
    err << "random: " << printing.platform.lastError << "\n";
    return 1;
  }
  setup();
  if (!WriteFile(output)) {
    err << "random: cannot write " << output << "\n";
    return 1;
  }
  return 0;
}

int CliMain(const Args& argv, std::ostream& out, std::ostream& err) {
  if (argv.empty()) {
    err << kUsage;
    return 1;
  }
  const std::string& cmd = argv[0];
  const Args args(argv.begin() + 1, argv.end());
  if (cmd == "new") return NewCommand(args, out, err);
  if (cmd == "dump") return DumpCommand(args, out, err);
  if (cmd == "export") return ExportCommand(args, out, err);
  if (cmd == "import") return ImportJsonCommand(args, out, err);
  if (cmd == "scramble") return ScrambleCommand(args, true, out, err);
  if (cmd == "unscramble") return ScrambleCommand(args, false, out, err);
  if (cmd == "run") return RunCommand(args, out, err);
  if (cmd == "play") return PlayCommand(args, out, err);
  if (cmd == "balance") return BalanceCommand(args, out, err);
  if (cmd == "random") return RandomCommand(args, out, err);
  if (cmd == "compile") return CompileCommand(args, out, err);
  if (cmd == "help" || cmd == "--help" || cmd == "-h") {
    out << kUsage;
    return 0;
  }
  err << "unknown command: " << cmd << "\n";
  return 1;
}

}  // namespace mf::cli
