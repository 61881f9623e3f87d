#include "bench/Shops.h"

#include <unistd.h>

#include <iostream>
#include <string>

#include "bench/ShopFile.h"

namespace fs = std::filesystem;

namespace {

void removeOutdated(const fs::path& folder, const std::string& beginning) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().filename().string().starts_with(beginning)) fs::remove(entry.path());
  }
}

}  // namespace

fs::path Shops::kept(ShopSize size) const {
  const std::string beginning = "shop-" + std::to_string(size.goods) + "-";
  fs::path file = folder_ / (beginning + shop_file::version() + ".mdb");
  if (fs::exists(file)) return file;
  fs::create_directories(folder_);
  removeOutdated(folder_, beginning);
  std::cerr << "making " << file.filename().string() << " (once)" << std::endl;
  // Under its own name only when it is whole.
  const fs::path unfinished = file.string() + ".new";
  shop_file::make(unfinished, size);
  fs::rename(unfinished, file);
  return file;
}

// Synced, so that the disk does not write the copies while the till is measured.
const fs::path& Shops::copy(ShopSize size) {
  const auto known = copies_.find(size.goods);
  if (known != copies_.end()) return known->second.path();
  const fs::path original = kept(size);
  const fs::path& folder = copies_.try_emplace(size.goods, folder_).first->second.path();
  fs::create_directory(folder / "data");
  fs::copy_file(original, folder / "data" / "POS.mdb");
  fs::copy_file(original, folder / "bare.mdb");
  sync();
  return folder;
}
