#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include <unistd.h>

#include "apps/tolvi/commands.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // A reader that goes away is told by the write that fails.
  std::signal(SIGPIPE, SIG_IGN);
  tolvi::TStreams streams{std::cin, std::cout, std::cerr, isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1};
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return tolvi::RunTolvi(arguments, streams);
}
