#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

/// An empty folder on the disk that is measured; goes with its owner.
class BenchFolder {
 public:
  explicit BenchFolder(const std::filesystem::path& parent) {
    std::filesystem::create_directories(parent);
    std::string name = (parent / "run-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      throw std::runtime_error("no folder in " + parent.string());
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
