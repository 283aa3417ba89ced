#include "wire/line.h"

#include <array>
#include <stdexcept>

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace wire {
namespace {

#ifdef _WIN32
using Socket = SOCKET;
using Size = int;
constexpr int kNoSignal = 0;

void close(Socket socket) { closesocket(socket); }

void prepare() {
  static const bool ready = [] {
    WSADATA about;
    return WSAStartup(MAKEWORD(2, 2), &about) == 0;
  }();
  if (!ready) throw std::runtime_error("no network");
}
#else
using Socket = int;
using Size = std::size_t;
constexpr int kNoSignal = MSG_NOSIGNAL;

void close(Socket socket) { ::close(socket); }

void prepare() {}
#endif

constexpr std::size_t kLengthBytes = 4;

Socket native(std::intptr_t socket) { return static_cast<Socket>(socket); }

sockaddr_in loopback(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(port);
  return address;
}

const sockaddr* generic(const sockaddr_in& address) { return reinterpret_cast<const sockaddr*>(&address); }

// Short texts go back and forth: none waits for a longer packet.
void sendAtOnce(Socket socket) {
  const int yes = 1;
  setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&yes), sizeof yes);
}

std::intptr_t newSocket() {
  prepare();
  const auto socket = ::socket(AF_INET, SOCK_STREAM, 0);
  if (static_cast<std::intptr_t>(socket) < 0) throw std::runtime_error("no socket");
  return static_cast<std::intptr_t>(socket);
}

}  // namespace

Line::Line(std::uint16_t port) : socket_(newSocket()) {
  const sockaddr_in address = loopback(port);
  if (connect(native(socket_), generic(address), sizeof address) != 0) {
    close(native(socket_));
    throw std::runtime_error("nobody listens at port " + std::to_string(port));
  }
  sendAtOnce(native(socket_));
}

Line::~Line() { close(native(socket_)); }

void Line::send(const std::string& text) {
  std::string bytes;
  for (std::size_t i = 0; i < kLengthBytes; ++i) bytes.push_back(static_cast<char>(text.size() >> (8 * i)));
  bytes += text;
  for (std::size_t sent = 0; sent < bytes.size();) {
    const auto more = ::send(native(socket_), bytes.data() + sent, static_cast<Size>(bytes.size() - sent), kNoSignal);
    if (more <= 0) throw std::runtime_error("the other side is gone");
    sent += static_cast<std::size_t>(more);
  }
}

bool Line::fill(char* into, std::size_t size) {
  for (std::size_t filled = 0; filled < size;) {
    const auto more = recv(native(socket_), into + filled, static_cast<Size>(size - filled), 0);
    if (more <= 0) return false;
    filled += static_cast<std::size_t>(more);
  }
  return true;
}

std::optional<std::string> Line::receive() {
  std::array<char, kLengthBytes> length{};
  if (!fill(length.data(), length.size())) return std::nullopt;
  std::size_t size = 0;
  for (std::size_t i = 0; i < kLengthBytes; ++i) {
    size |= static_cast<std::size_t>(static_cast<unsigned char>(length[i])) << (8 * i);
  }
  std::string text(size, '\0');
  if (!fill(text.data(), text.size())) return std::nullopt;
  return text;
}

Listener::Listener() : socket_(newSocket()) {
  const sockaddr_in any = loopback(0);
  sockaddr_in bound{};
  socklen_t size = sizeof bound;
  if (bind(native(socket_), generic(any), sizeof any) != 0 || listen(native(socket_), SOMAXCONN) != 0 ||
      getsockname(native(socket_), reinterpret_cast<sockaddr*>(&bound), &size) != 0) {
    close(native(socket_));
    throw std::runtime_error("cannot listen");
  }
  port_ = ntohs(bound.sin_port);
}

Listener::~Listener() { close(native(socket_)); }

Line::Accepted Listener::accept() {
  const auto socket = ::accept(native(socket_), nullptr, nullptr);
  if (static_cast<std::intptr_t>(socket) < 0) throw std::runtime_error("nobody came");
  sendAtOnce(socket);
  return {static_cast<std::intptr_t>(socket)};
}

}  // namespace wire
