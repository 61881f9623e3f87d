#include "storm/Tills.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "InstalledTill.h"
#include "store/Connection.h"
#include "store/DataSource.h"
#include "storm/SellingDay.h"

namespace fs = std::filesystem;

StormTill::StormTill(int number, bool byKeys, const fs::path& folder)
    : number_(number), folder_(folder / ("till" + std::to_string(number))) {
  fs::create_directory(folder_);
  shown_.push_back(folder_ + "/shown1");
  file_ = folder_ + "/file";
  if (!byKeys) return;
  installed_ = std::make_unique<InstalledTill>();
  fs::copy(TILL_PROGRAM_FOLDER "/tillsync", installed_->program() / "tillsync");
  file_ = installed_->dataFile().string();
  password_ = kBuiltInPassword;
}

StormTill::~StormTill() {
  program_.reset();
  sync_.reset();
  if (installed_) killProcesses("", installed_->folder().string());
}

void StormTill::start(unsigned seed) {
  const std::string what = installed_ ? "--keyed-till" : "--till";
  const std::string place = installed_ ? installed_->program().string() : file_;
  program_ = std::make_unique<Process>(
      std::vector<std::string>{"/proc/self/exe", what, place, shown_.back(), std::to_string(seed)});
}

void StormTill::startSync() {
  std::vector<std::string> words = {TILL_PROGRAM_FOLDER "/tillsync", file_};
  if (password_.empty()) words.emplace_back("--ask-file-password");
  sync_ = std::make_unique<Process>(words);
}

void StormTill::kill() {
  if (program_->hasEnded()) {
    std::ifstream fault(shown_.back() + ".fault");
    throw std::runtime_error(
        name() + " ended by itself: " + std::string(std::istreambuf_iterator<char>(fault), {}));
  }
  program_->kill();
  if (installed_) killProcesses("till", installed_->folder().string());
}

void StormTill::killSync() {
  if (installed_) killProcesses("tillsync", installed_->folder().string());
  if (!sync_) return;
  requireSync();
  sync_->kill();
}

void StormTill::requireSync() {
  if (sync_->hasEnded()) throw std::runtime_error("the tillsync of " + name() + " ended by itself");
}

void StormTill::begin() const {
  beginSellingDay(file_, password_);
}

void StormTill::copy() const {
  begin();
  fs::copy_file(file_, file_ + ".copy");
}

void StormTill::putBack() {
  for (const char* part : {"-wal", "-shm"}) fs::remove(file_ + part);
  fs::rename(file_ + ".copy", file_);
  shown_.push_back(folder_ + "/shown" + std::to_string(shown_.size() + 1));
}
