#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "base/DateTime.h"
#include "saleslib/Export.h"

/// How the way to the shop's server is, for whoever wants to look: one line of a file beside the
/// data file, which stands for nothing and may be lost.
struct TESSALY_API SyncState {
  DateTime contact;               ///< when the server answered last, by this machine's clock
  std::int64_t pendingBills = 0;  ///< settled, and not at the server
  /// What somebody has to do something about; without it a server that does not answer is away.
  enum class Refusal {
    kNone,
    kTill,         ///< the server does not take this till
    kCertificate,  ///< whoever answers has not the certificate of the shop's server
  };
  Refusal refusal = Refusal::kNone;
  /// Number of the last entry there, as the server told; none when that was lost with the file.
  std::optional<std::int64_t> atServer = {};
};

/// None when nobody has written it yet.
TESSALY_API std::optional<SyncState> readSyncState(const std::filesystem::path& dataFile);

/// The place of the one program that brings the data file's facts to the server, and where it says
/// how it goes. It goes with the process, however that ends.
class TESSALY_API SyncPlace {
 public:
  /// Throws StoreError when the file beside the data file cannot be made.
  explicit SyncPlace(const std::filesystem::path& dataFile);
  ~SyncPlace();
  SyncPlace(const SyncPlace&) = delete;
  SyncPlace& operator=(const SyncPlace&) = delete;

  /// False when another program has the place.
  [[nodiscard]] bool isMine() const { return isMine_; }
  void write(const SyncState& state) const;

 private:
  int file_ = -1;
  bool isMine_ = false;
};
