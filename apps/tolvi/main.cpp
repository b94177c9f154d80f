#include <csignal>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include <termios.h>
#include <unistd.h>

#include "apps/tolvi/commands.h"

namespace {

constexpr int Ends[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

// The terminal's settings before the question.
termios shown;

void ShowAndEnd(int signal) {
  tcsetattr(STDIN_FILENO, TCSANOW, &shown);
  std::signal(signal, SIG_DFL);
  raise(signal);
}

/// The terminal does not show what is typed. Whoever ends the program meanwhile finds the terminal as it was.
std::optional<std::string> AskSecret(const std::string& question) {
  if (tcgetattr(STDIN_FILENO, &shown) != 0) return std::nullopt;
  termios hidden = shown;
  hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  std::cerr << question << std::flush;
  void (*former[std::size(Ends)])(int);
  for (std::size_t i = 0; i < std::size(Ends); ++i) former[i] = std::signal(Ends[i], ShowAndEnd);
  if (tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden) != 0) return std::nullopt;
  std::string answer;
  const bool answered = static_cast<bool>(std::getline(std::cin, answer));
  tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
  for (std::size_t i = 0; i < std::size(Ends); ++i) std::signal(Ends[i], former[i]);
  std::cerr << std::endl;
  return answered ? std::optional(answer) : std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // A reader that goes away is told by the write that fails.
  std::signal(SIGPIPE, SIG_IGN);
  tolvi::TStreams streams{std::cin, std::cout, std::cerr, isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1};
  if (streams.CanAsk) streams.AskSecret = AskSecret;
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return tolvi::RunTolvi(arguments, streams);
}
