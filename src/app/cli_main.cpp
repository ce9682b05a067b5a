#include <cstdio>
#include <string>
#include <vector>

#include "app/cli/Cli.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  return zy::cli::run(args, stdout, stderr);
}
