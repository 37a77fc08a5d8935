#include "compile_command.h"

#include <ostream>

#include "compile_content.h"
#include "files/scenario_file.h"
#include "model/reset.h"
#include "platform/scripted_platform.h"

namespace mf::cli {

int CompileCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::string source, output;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "-o" && i + 1 < args.size()) {
      output = args[++i];
    } else if (source.empty() && !args[i].empty() && args[i][0] != '-') {
      source = args[i];
    } else {
      source.clear();
      break;
    }
  }
  if (source.empty() || output.empty()) {
    err << "usage: marrowfield-cli compile SOURCE -o FILE\n";
    return 1;
  }
  // Any message box a game routine shows while the tables are built is a fault of the source.
  Platform& previous = Plat();
  ScriptedPlatform platform;
  InstallPlatform(&platform);
  std::vector<std::string> errors;
  const bool ok = content::CompileContent(source, &errors);
  for (const std::string& m : platform.Messages()) errors.push_back(source + ": the game said: " + m);
  InstallPlatform(&previous);
  if (!ok || !errors.empty()) {
    for (const std::string& e : errors) err << e << "\n";
    err << "compile: " << source << ": " << errors.size() << " fault" << (errors.size() == 1 ? "" : "s") << "\n";
    return 1;
  }
  // What is written must read back to the very same bytes.
  const std::string plain = SerializeScenario();
  if (!WriteFile(output)) {
    err << "compile: cannot write " << output << "\n";
    return 1;
  }
  StartFresh();
  ParseScenario(plain);
  if (SerializeScenario() != plain) {
    err << "compile: " << output << " does not read back as written\n";
    return 1;
  }
  out << "compiled " << source << " -> " << output << "\n";
  return 0;
}

}  // namespace mf::cli
