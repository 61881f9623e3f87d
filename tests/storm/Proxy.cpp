#include "storm/Proxy.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <list>
#include <stdexcept>
#include <utility>

namespace {

constexpr int kLookMs = 20;

int unixSocket(const std::string& path, bool listens) {
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  path.copy(place.sun_path, sizeof place.sun_path - 1);
  const int made = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const auto* address = reinterpret_cast<const sockaddr*>(&place);
  const int code =
      listens ? bind(made, address, sizeof place) : connect(made, address, sizeof place);
  if (code == 0 && (!listens || listen(made, 64) == 0)) return made;
  close(made);
  return -1;
}

}  // namespace

Proxy::Proxy(const std::string& folder, int port, std::string to)
    : to_(std::move(to)),
      listener_(unixSocket(folder + "/.s.PGSQL." + std::to_string(port), true)) {
  if (listener_ < 0) throw std::runtime_error("no socket for the proxy");
  thread_ = std::jthread([this](const std::stop_token& over) { serve(over); });
}

Proxy::~Proxy() {
  thread_.request_stop();
  thread_.join();
  close(listener_);
}

// A thread that has ended keeps its memory until it is joined.
void Proxy::serve(const std::stop_token& over) {
  struct Line {
    std::atomic<bool> hasEnded = false;
    std::jthread thread;
  };
  std::list<Line> lines;
  while (!over.stop_requested()) {
    lines.remove_if([](const Line& line) { return line.hasEnded.load(); });
    pollfd ready{listener_, POLLIN, 0};
    if (poll(&ready, 1, kLookMs) <= 0) continue;
    const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) continue;
    Line& line = lines.emplace_back();
    line.thread = std::jthread([this, client, &line](const std::stop_token& ended) {
      carry(client, ended);
      line.hasEnded = true;
    });
  }
}

void Proxy::carry(int client, const std::stop_token& over) {
  const int server = weather_ == Weather::kCut ? -1 : unixSocket(to_, false);
  while (server >= 0 && !over.stop_requested() && weather_ != Weather::kCut) {
    std::array<pollfd, 2> ends{pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
    if (poll(ends.data(), ends.size(), kLookMs) <= 0) continue;
    if (ends[0].revents != 0 && !pass(client, server, false)) break;
    if (ends[1].revents != 0 && !pass(server, client, true)) break;
  }
  if (server >= 0) close(server);
  close(client);
}

/// False when the line has ended.
bool Proxy::pass(int from, int to, bool isAnswer) {
  std::array<char, 65536> bytes{};
  const ssize_t count = read(from, bytes.data(), bytes.size());
  if (count <= 0) return false;
  const Weather weather = weather_;
  if (weather == Weather::kSwallow) return true;
  if (weather == Weather::kLoseAnswer && isAnswer) return false;
  if (weather == Weather::kSlow) poll(nullptr, 0, kLookMs);
  return send(to, bytes.data(), static_cast<std::size_t>(count), MSG_NOSIGNAL) == count;
}
