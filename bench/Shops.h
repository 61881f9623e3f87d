#pragma once

#include <filesystem>
#include <map>
#include <memory>

#include "bench/BenchFolder.h"
#include "bench/ShopSize.h"

/// The measured shops. Each is made once and kept in a folder; a run works on copies, which it
/// takes with it when it ends.
class Shops {
 public:
  explicit Shops(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// A folder with two copies of that shop: data/POS.mdb for the till and bare.mdb for the engine
  /// alone, both durable on the disk. Made at the first call.
  const std::filesystem::path& copy(ShopSize size);
  /// A new folder beside the shops, on the same disk.
  std::unique_ptr<BenchFolder> emptyFolder() const {
    return std::make_unique<BenchFolder>(folder_);
  }

 private:
  std::filesystem::path kept(ShopSize size) const;

  std::filesystem::path folder_;
  std::map<int, BenchFolder> copies_;  ///< by goods
};
