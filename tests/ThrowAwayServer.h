#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "TemporaryFolder.h"
#include "link/ServerLine.h"

/// A real PostgreSQL with an empty database, which is gone with its owner: reached by a socket in
/// its folder, and by a port of this machine if `withPort`. The server refuses to be run by root,
/// who lets `nobody` do it.
class ThrowAwayServer {
 public:
  enum class Reach { kSocket, kPort };

  /// Whether there is one on this machine.
  static bool isInstalled();
  /// Throws std::runtime_error when there is none or it does not start.
  explicit ThrowAwayServer(Reach reach = Reach::kSocket);
  /// One that repeats what the other writes, from now on; that one sends it everything.
  struct StandbyOf {
    const ThrowAwayServer& first;
  };
  explicit ThrowAwayServer(StandbyOf other);
  ~ThrowAwayServer();
  ThrowAwayServer(const ThrowAwayServer&) = delete;
  ThrowAwayServer& operator=(const ThrowAwayServer&) = delete;

  const std::filesystem::path& folder() const { return folder_.path(); }
  int port() const { return port_; }
  /// What its owner logs in with.
  LineParameters owner() const;
  /// The first value of the first row of what that statement gives, by the owner.
  std::string value(const std::string& statement);

  /// Its database, without anything in it.
  void makeEmpty();
  void start();
  /// Reads its settings anew.
  void reload();
  void stop();
  /// Ends all of its processes at once, as a power cut does.
  void kill();
  /// Keeps a copy of all that it has on the disk while it runs, and has that be its disk.
  void copy();
  void putBack();
  /// A line of its access file (pg_hba.conf) before all others, and a setting; for the next start.
  void allow(const std::string& line) const;
  void set(const std::string& setting) const;
  /// Writes a file that the server may read.
  std::string write(const std::string& name, const std::string& text) const;

 private:
  std::string data() const { return folder_.file("data"); }

  TemporaryFolder folder_;
  int port_ = 5432;
  bool hasPort_;
  std::unique_ptr<ServerLine> line_;
};
