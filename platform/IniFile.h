#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A settings file as Windows reads and writes it, in GBK or as an editor saved it (IniText).
/// Sections and keys are found without regard to ASCII case. Reading drops blanks and one pair of
/// enclosing quotes ("..." or '...') around a value. Writing keeps comments, order, and unknown
/// sections and keys as they are, and the file's owner and permissions; a new file is its owner's
/// only. A power cut leaves the old or the new file. Every read looks at the file as it is now.
class IniFile {
 public:
  /// The file need not exist; its name is found without regard to case.
  explicit IniFile(std::filesystem::path path);

  /// The value of a key; nothing when the key, the section or the file is absent or unreadable.
  /// NUL characters are removed.
  std::optional<std::string> read(std::string_view section, std::string_view key) const;
  /// Sets a key, adding it (and its section) when absent. A value with blanks or quotes at its ends
  /// is stored so that it reads back the same. False when the file cannot be written.
  bool write(std::string_view section, std::string_view key, std::string_view value) const;

  struct Entry {
    std::string section, key, value;
  };
  /// Sets several keys at once: a power cut leaves all of them or none.
  bool write(const std::vector<Entry>& entries) const;

 private:
  std::filesystem::path path_;
};
