#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace wire {

// A connection over the loopback network that carries texts of any bytes, each whole. Each text goes as its length in
// four bytes, the lowest first, and its bytes.
class Line {
 public:
  // Connects to a port of this machine. Fails with std::runtime_error.
  explicit Line(std::uint16_t port);
  // Takes a connection over.
  struct Accepted {
    std::intptr_t socket;
  };
  explicit Line(Accepted accepted) : socket_(accepted.socket) {}
  ~Line();
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  // Fails with std::runtime_error when the other side is gone.
  void send(const std::string& text);
  // Waits for the next text; none when the other side is gone.
  [[nodiscard]] std::optional<std::string> receive();

 private:
  [[nodiscard]] bool fill(char* into, std::size_t size);

  std::intptr_t socket_;
};

// Waits for connections at a port of this machine that it finds by itself.
class Listener {
 public:
  Listener();
  ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  [[nodiscard]] std::uint16_t port() const { return port_; }
  [[nodiscard]] Line::Accepted accept();

 private:
  std::intptr_t socket_;
  std::uint16_t port_ = 0;
};

}  // namespace wire
