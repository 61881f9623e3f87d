#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

/// Where the data files of the measurements lie: set once from the command line, because a memory
/// disk would make every durable write free.
inline std::filesystem::path benchRoot = std::filesystem::current_path();

/// An empty folder below benchRoot that goes with its owner.
class BenchFolder {
 public:
  BenchFolder() {
    std::string name = (benchRoot / "bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      throw std::runtime_error("no folder in " + benchRoot.string());
    path_ = name;
  }
  ~BenchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};
