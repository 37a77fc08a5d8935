// marrowfield-cli: the headless program.
#include <iostream>

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: marrowfield-cli COMMAND ...\n";
    return 1;
  }
  std::cerr << "unknown command: " << argv[1] << "\n";
  return 1;
}
