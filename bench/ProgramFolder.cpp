#include "bench/ProgramFolder.h"

#include <QCoreApplication>

#include "store/Connection.h"
#include "store/DataFile.h"

namespace fs = std::filesystem;

namespace {

// All programs are built into one folder.
fs::path built(const char* program) {
  return fs::path(QCoreApplication::applicationDirPath().toStdString()) / program;
}

void install(const fs::path& from, const fs::path& to) {
  fs::copy_file(from, to, fs::copy_options::overwrite_existing);
}

}  // namespace

void installTill(const fs::path& folder) {
  install(built("till"), folder / "till");
  install(built("libTessaly.so.1"), folder / "libTessaly.so.1");
}

void installEmptyWindow(const fs::path& folder, const fs::path& dataFile) {
  install(built("empty_window"), folder / "till");
  fs::create_directory(folder / "data");
  if (!dataFile.empty()) return fs::create_symlink(dataFile, folder / "data" / "POS.mdb");
  createDataFile({folder / "data" / "POS.mdb", kBuiltInPassword});
}

fs::path ownersTool() {
  return built("tilladmin");
}
