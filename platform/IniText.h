#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The text of a settings file in memory. Bytes that no call sets stay as they are: line ends,
/// comments, blanks, order. GBK, unless an editor has saved it otherwise: UTF-16 with its byte
/// order mark, UTF-8 with or without one. It stays as it was saved. Of sections and keys of the
/// same name the first counts.
class IniText {
 public:
  explicit IniText(std::string_view bytes);

  /// Trimmed, without one pair of enclosing quotes and without NULs; nothing when absent.
  std::optional<std::string> value(std::string_view section, std::string_view key) const;
  /// CR, LF and NUL in the value become blanks, so that it stays one line.
  void setValue(std::string_view section, std::string_view key, std::string_view value);
  std::string bytes() const;

 private:
  enum class Encoding { kGbk, kUtf8, kMarkedUtf8, kUtf16LittleEndian, kUtf16BigEndian };
  /// The lines of a section: from the one after its header to the one before the next header.
  struct Lines {
    std::size_t begin;
    std::size_t end;
  };
  std::optional<Lines> findSection(std::string_view section) const;
  std::optional<std::size_t> findKey(Lines lines, std::string_view key) const;
  std::size_t placeForNewKey(Lines lines) const;
  void keepReadable();
  std::string decoded(std::string_view bytes) const;
  std::string encoded(std::string_view utf8) const;

  static Encoding encodingOf(std::string_view bytes);

  Encoding encoding_;
  std::string lineEnd_ = "\r\n";
  std::vector<std::string> lines_;  ///< with their line ends; in GBK or UTF-8
};
