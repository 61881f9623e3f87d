#include "ThrowAwayServer.h"

#include <arpa/inet.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLogShown = 2000;

/// Of the newest version that is installed; empty when none is.
fs::path newestFolder() {
  fs::path newest;
  std::error_code none;
  for (const auto& version : fs::directory_iterator("/usr/lib/postgresql", none))
    newest = std::max(newest, version.path() / "bin");
  return newest;
}

std::string programFolder() {
  const fs::path newest = newestFolder();
  if (newest.empty()) throw std::runtime_error("there is no PostgreSQL here (postgresql-15)");
  return newest.string() + "/";
}

void run(const std::string& command) {
  const std::string asOther = geteuid() == 0 ? "setpriv --reuid=nobody --regid=nogroup "
                                               "--clear-groups env HOME=/tmp "
                                             : "";
  if (std::system((asOther + command + " >/dev/null 2>&1").c_str()) != 0)
    throw std::runtime_error("failed: " + command);
}

/// One that nobody has now.
int freePort() {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof place;
  const bool isBound = bind(probe, reinterpret_cast<sockaddr*>(&place), size) == 0 &&
                       getsockname(probe, reinterpret_cast<sockaddr*>(&place), &size) == 0;
  close(probe);
  if (!isBound) throw std::runtime_error("no free port");
  return ntohs(place.sin_port);
}

std::vector<pid_t> childrenOf(pid_t parent) {
  std::vector<pid_t> children;
  for (const auto& process : fs::directory_iterator("/proc")) {
    std::ifstream file(process.path() / "stat");
    std::string name, state;
    pid_t own = 0, itsParent = 0;
    if (file >> own >> name >> state >> itsParent && itsParent == parent) children.push_back(own);
  }
  return children;
}

/// Returns when a process that was told to stop does nothing any more, or is gone.
void awaitStop(pid_t process) {
  for (std::string name, state; state != "T"; std::this_thread::yield()) {
    pid_t own = 0;
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    if (!(file >> own >> name >> state)) return;
  }
}

}  // namespace

bool ThrowAwayServer::isInstalled() {
  return !newestFolder().empty();
}

ThrowAwayServer::ThrowAwayServer(Reach reach) : hasPort_(reach == Reach::kPort) {
  if (hasPort_) port_ = freePort();
  if (geteuid() == 0 && chown(folder().c_str(), 65534, 65534) != 0)
    throw std::runtime_error("cannot give the folder away");
  run(programFolder() +
      "initdb --no-sync --auth=trust --username=owner --encoding=UTF8 --locale=C.UTF-8 -D " +
      data());
  set("unix_socket_directories = '" + folder().string() + "'");
  set("port = " + std::to_string(port_));
  set(std::string("listen_addresses = '") + (hasPort_ ? "127.0.0.1'" : "'"));
  allow("local all +tills scram-sha-256");
  start();
  makeEmpty();
}

ThrowAwayServer::ThrowAwayServer(StandbyOf other) : hasPort_(false) {
  if (geteuid() == 0 && chown(folder().c_str(), 65534, 65534) != 0)
    throw std::runtime_error("cannot give the folder away");
  run(programFolder() + "pg_basebackup --checkpoint=fast --no-sync --write-recovery-conf -U owner" +
      " -h " + other.first.folder().string() + " -p " + std::to_string(other.first.port()) +
      " -D " + data());
  set("unix_socket_directories = '" + folder().string() + "'");
  start();
}

void ThrowAwayServer::reload() {
  run(programFolder() + "pg_ctl reload -D " + data());
}

void ThrowAwayServer::makeEmpty() {
  line_.reset();
  LineParameters parameters = owner();
  parameters.back().second = "postgres";
  ServerLine line(parameters);
  line.ask("drop database if exists books with (force)");
  line.close();  // of a warning that there was none
  if (!line.ask("create database books").isDone()) throw std::runtime_error("no database");
}

ThrowAwayServer::~ThrowAwayServer() {
  try {
    if (!fs::exists(data() + "/postmaster.pid")) return;  // it was killed
    run(programFolder() + "pg_ctl stop --mode=immediate --wait --timeout=60 -D " + data());
  } catch (const std::exception& failure) {
    std::fputs(failure.what(), stderr);
  }
}

LineParameters ThrowAwayServer::owner() const {
  return {{"host", folder().string()},
          {"port", std::to_string(port_)},
          {"user", "owner"},
          {"dbname", "books"}};
}

std::string ThrowAwayServer::value(const std::string& statement) {
  if (!line_) line_ = std::make_unique<ServerLine>(owner());
  ServerAnswer answer;
  for (int tries = 0; !answer.isDone() && tries < 3; ++tries)
    answer = line_->ask(statement.c_str());
  if (!answer.isDone()) throw std::runtime_error(statement + ": " + answer.text);
  return answer.rows.empty() ? "(no row)" : answer.rows[0].at(0).value_or("(null)");
}

void ThrowAwayServer::start() {
  const std::string log = folder_.file("log");
  try {
    run(programFolder() + "pg_ctl start --wait --timeout=60 -D " + data() + " -l " + log);
  } catch (const std::runtime_error& failure) {
    std::ifstream file(log);
    const std::string told(std::istreambuf_iterator<char>(file), {});
    throw std::runtime_error(failure.what() + std::string("\n") +
                             told.substr(told.size() - std::min(told.size(), kLogShown)));
  }
}

void ThrowAwayServer::stop() {
  run(programFolder() + "pg_ctl stop --mode=fast --wait --timeout=60 -D " + data());
}

// The first process leads the others; those that it left behind would hold the memory that the next
// start wants. After a power cut no process has its number.
void ThrowAwayServer::kill() {
  const std::string lock = data() + "/postmaster.pid";
  std::ifstream file(lock);
  pid_t first = 0;
  if (!(file >> first) || first <= 1) return;
  ::kill(first, SIGSTOP);
  awaitStop(first);  // from here on it starts no more
  std::vector<pid_t> all = childrenOf(first);
  all.push_back(first);
  for (const pid_t each : all) ::kill(each, SIGKILL);
  for (const pid_t each : all) {
    while (fs::exists("/proc/" + std::to_string(each) + "/exe")) std::this_thread::yield();
  }
  fs::remove(lock);
  fs::remove(folder_.file(".s.PGSQL." + std::to_string(port_) + ".lock"));
}

void ThrowAwayServer::copy() {
  fs::remove_all(data() + ".copy");
  run(programFolder() + "pg_basebackup --checkpoint=fast --no-sync -U owner -h " +
      folder().string() + " -p " + std::to_string(port_) + " -D " + data() + ".copy");
}

void ThrowAwayServer::putBack() {
  stop();
  fs::remove_all(data());
  fs::rename(data() + ".copy", data());
  start();
}

void ThrowAwayServer::allow(const std::string& line) const {
  const std::string name = data() + "/pg_hba.conf";
  std::ifstream before(name);
  const std::string rest{std::istreambuf_iterator<char>(before), {}};
  std::ofstream(name) << line << '\n' << rest;
}

void ThrowAwayServer::set(const std::string& setting) const {
  std::ofstream(data() + "/postgresql.conf", std::ios::app) << setting << '\n';
}

std::string ThrowAwayServer::write(const std::string& name, const std::string& text) const {
  std::string path = folder_.file(name);
  std::ofstream(path) << text;
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  if (geteuid() == 0 && chown(path.c_str(), 65534, 65534) != 0)
    throw std::runtime_error("cannot give the file away");
  return path;
}
