#include "saleslib/SyncState.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>

#include "base/SystemFault.h"
#include "base/Words.h"
#include "store/StoreError.h"

namespace {

constexpr std::int64_t kNotKnown = -1;

std::string placeOf(const std::filesystem::path& dataFile) {
  return dataFile.string() + ".sync";
}

// A lock of this handle, as that of the data file: no other handle of the process gives it up.
bool lockedByNobodyElse(int file) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

}  // namespace

std::optional<SyncState> readSyncState(const std::filesystem::path& dataFile) {
  std::ifstream file(placeOf(dataFile));
  std::string date, time;
  SyncState state;
  int refusal = 0;
  std::int64_t atServer = kNotKnown;
  if (!(file >> date >> time >> state.pendingBills >> refusal >> atServer)) return std::nullopt;
  const std::optional<DateTime> contact = parseDateTime(date + " " + time);
  if (!contact) return std::nullopt;
  state.contact = *contact;
  if (atServer != kNotKnown) state.atServer = atServer;
  state.refusal = static_cast<SyncState::Refusal>(refusal);
  return state;
}

SyncPlace::SyncPlace(const std::filesystem::path& dataFile) {
  const std::string name = placeOf(dataFile);
  file_ = open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP);
  if (file_ < 0) throw StoreError(Words::tr("打不开 %1：%2", name, fileFault(errno)));
  isMine_ = lockedByNobodyElse(file_);
}

SyncPlace::~SyncPlace() {
  close(file_);
}

// One write of one length: a reader finds the line before or this one.
void SyncPlace::write(const SyncState& state) const {
  std::array<char, 80> line{};
  std::snprintf(line.data(), line.size(), "%s %20lld %d %20lld\n",
                storedText(state.contact).c_str(), static_cast<long long>(state.pendingBills),
                static_cast<int>(state.refusal),
                static_cast<long long>(state.atServer.value_or(kNotKnown)));
  const std::string text = line.data();
  if (pwrite(file_, text.data(), text.size(), 0) < 0) return;  // nobody depends on it
}
