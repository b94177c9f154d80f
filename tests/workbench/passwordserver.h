#pragma once

#include <array>
#include <atomic>
#include <string>
#include <thread>

#include "tests/workbench/silentserver.h"

namespace tolvi {

/// A PostgreSQL server that asks for the password "right", and has no database for who knows it.
class TPasswordServer final {
 public:
  TPasswordServer() : FThread([this] { Serve(); }) {}
  ~TPasswordServer() {
    FIsOver = true;
    shutdown(FListener.Socket(), SHUT_RDWR);
    FThread.join();
  }
  TPasswordServer(const TPasswordServer&) = delete;
  TPasswordServer& operator=(const TPasswordServer&) = delete;

  int Port() const { return FListener.Port; }

 private:
  static std::string Number(std::size_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>((value >> shift) & 0xFF);
    return bytes;
  }
  static std::string Message(char type, const std::string& body) { return type + Number(body.size() + 4) + body; }
  static void Send(int client, const std::string& bytes) {
    (void)send(client, bytes.data(), bytes.size(), MSG_NOSIGNAL);
  }
  static std::string Receive(int client) {
    std::array<char, 1024> bytes;
    const ssize_t size = recv(client, bytes.data(), bytes.size(), 0);
    return size <= 0 ? std::string() : std::string(bytes.data(), static_cast<std::size_t>(size));
  }

  void Serve() {
    while (!FIsOver) {
      const int client = accept(FListener.Socket(), nullptr, nullptr);
      if (client < 0) continue;
      Answer(client);
      close(client);
    }
  }

  void Answer(int client) {
    constexpr std::size_t RequestSize = 8;  // for a cipher, of which it has none
    constexpr std::size_t PasswordAt = 5;
    std::string request = Receive(client);
    while (request.size() == RequestSize) {
      Send(client, "N");
      request = Receive(client);
    }
    Send(client, Message('R', Number(3)));
    request = Receive(client);
    if (request.size() <= PasswordAt) return;  // it has none
    const bool isRight = request.substr(PasswordAt) == std::string("right") + '\0';
    const std::string code = isRight ? "3D000" : "28P01";
    const std::string words =
        isRight ? "database \"shop\" does not exist" : "Passwort-Authentifizierung fehlgeschlagen";
    const char end = '\0';
    Send(client, Message('E', "SFATAL" + (end + ("C" + code)) + end + "M" + words + end + end));
  }

  TSilentServer FListener;
  std::atomic<bool> FIsOver{false};
  std::thread FThread;
};

}  // namespace tolvi
