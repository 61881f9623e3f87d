#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "Disk.h"

/// What is on the disk when the power goes. Begins with the files as they were when the recording
/// began (all of that counts as synced) and goes through the recorded events one by one; at every
/// one of them the power can be cut.
class PowerCut {
 public:
  /// Path and bytes.
  using Files = std::map<std::string, std::string>;
  /// What becomes of the writes that no sync has made durable. A disk may have written none of
  /// them, all of them, or some in any order, one of them in part (whole sectors).
  enum class Unsynced { kLost, kKept, kSome };

  PowerCut(const std::vector<DiskEvent>& events, Files before)
      : events_(events), durable_(std::move(before)) {}

  /// Passes the next event; false behind the last one.
  bool next() {
    if (passed_ == events_.size()) return false;
    const DiskEvent& event = events_[passed_++];
    if (event.kind != DiskEvent::Kind::kSync) unsynced_.push_back(&event);
    std::erase_if(unsynced_, [&](const DiskEvent* write) {
      const bool reached = event.kind == DiskEvent::Kind::kSync && write->file == event.file;
      if (reached) apply(*write, durable_);
      return reached;
    });
    return true;
  }
  /// Number of events passed.
  std::size_t passed() const { return passed_; }
  /// Whether there are writes that no sync has made durable.
  bool anyUnsynced() const { return !unsynced_.empty(); }

  /// The files after a cut here.
  Files files(Unsynced fate, std::mt19937& random) const {
    Files files = durable_;
    std::vector<const DiskEvent*> writes = unsynced_;
    if (fate == Unsynced::kSome) std::shuffle(writes.begin(), writes.end(), random);
    if (fate != Unsynced::kKept)
      writes.resize(fate == Unsynced::kLost ? 0 : random() % (writes.size() + 1));
    for (const DiskEvent* write : writes) apply(*write, files);
    if (fate == Unsynced::kSome && anyUnsynced()) {
      const DiskEvent& torn = *unsynced_[random() % unsynced_.size()];
      if (torn.kind == DiskEvent::Kind::kWrite)
        apply(torn, files, random() % (torn.bytes.size() / kSector + 1) * kSector);
    }
    return files;
  }

 private:
  static constexpr std::size_t kSector = 512;

  static void apply(const DiskEvent& event, Files& files, std::size_t most = std::string::npos) {
    if (event.kind == DiskEvent::Kind::kDelete) return void(files.erase(event.file));
    std::string& file = files[event.file];
    const auto offset = static_cast<std::size_t>(event.offset);
    if (event.kind == DiskEvent::Kind::kTruncate) return file.resize(offset);
    const std::size_t length = std::min(most, event.bytes.size());
    if (length == 0) return;
    file.resize(std::max(file.size(), offset + length));
    file.replace(offset, length, event.bytes, 0, length);
  }

  const std::vector<DiskEvent>& events_;
  std::size_t passed_ = 0;
  Files durable_;
  std::vector<const DiskEvent*> unsynced_;
};
