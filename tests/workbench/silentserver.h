#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tolvi {

/// Takes connections and says nothing.
class TSilentServer final {
 public:
  TSilentServer() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(FSocket, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(listen(FSocket, 5), 0);
    getsockname(FSocket, reinterpret_cast<sockaddr*>(&address), &size);
    Port = ntohs(address.sin_port);
  }
  ~TSilentServer() { close(FSocket); }
  TSilentServer(const TSilentServer&) = delete;
  TSilentServer& operator=(const TSilentServer&) = delete;

  int Port = 0;
  int Socket() const { return FSocket; }

 private:
  const int FSocket = socket(AF_INET, SOCK_STREAM, 0);
};

}  // namespace tolvi
