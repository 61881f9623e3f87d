#include "PowerCut.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kSector = 512;
constexpr std::size_t kWhole = std::string::npos;

}  // namespace

PowerCut::PowerCut(const std::vector<DiskEvent>& events, Files before)
    : events_(events), durable_(std::move(before)) {}

bool PowerCut::next() {
  if (passed_ == events_.size()) return false;
  const DiskEvent& event = events_[passed_++];
  if (event.kind != DiskEvent::Kind::kSync) {
    unsynced_.push_back(&event);
    return true;
  }
  std::erase_if(unsynced_, [&](const DiskEvent* write) {
    const bool reached = write->file == event.file;
    if (reached) apply(*write, durable_, kWhole);
    return reached;
  });
  return true;
}

PowerCut::Files PowerCut::files(Unsynced fate, std::mt19937& random) const {
  Files files = durable_;
  if (fate == Unsynced::kLost) return files;
  std::vector<const DiskEvent*> writes = unsynced_;
  if (fate == Unsynced::kSome) {
    std::shuffle(writes.begin(), writes.end(), random);
    writes.resize(random() % (writes.size() + 1));
  }
  for (const DiskEvent* write : writes) apply(*write, files, kWhole);
  if (fate == Unsynced::kSome && !unsynced_.empty()) {
    const DiskEvent& torn = *unsynced_[random() % unsynced_.size()];
    if (torn.kind == DiskEvent::Kind::kWrite)
      apply(torn, files, random() % (torn.bytes.size() / kSector + 1) * kSector);
  }
  return files;
}

void PowerCut::apply(const DiskEvent& event, Files& files, std::size_t most) {
  if (event.kind == DiskEvent::Kind::kDelete) {
    files.erase(event.file);
    return;
  }
  std::string& file = files[event.file];
  const auto offset = static_cast<std::size_t>(event.offset);
  if (event.kind == DiskEvent::Kind::kTruncate) return file.resize(offset);
  const std::size_t length = std::min(most, event.bytes.size());
  if (length == 0) return;
  file.resize(std::max(file.size(), offset + length));
  file.replace(offset, length, event.bytes, 0, length);
}
