#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

/// The parts of a workbook's package (ECMA-376 part 2): files of XML in a zip archive.
class XlsxParts {
 public:
  /// Throws std::exception when the file is no zip archive.
  explicit XlsxParts(const std::filesystem::path& file);
  ~XlsxParts();
  XlsxParts(const XlsxParts&) = delete;
  XlsxParts& operator=(const XlsxParts&) = delete;

  /// Attributes by their names without a prefix.
  using Attributes = std::map<std::string, std::string, std::less<>>;
  struct Walk {
    std::function<void(std::string_view element, const Attributes& attributes)> start;
    /// `text` is what stood between the last tag and this one.
    std::function<void(std::string_view element, const std::string& text)> end;
  };
  /// Walks through a part; false when there is none of that name. Throws std::exception when it is
  /// no XML.
  bool walk(const std::string& part, const Walk& walk) const;
  /// The parts that a part refers to, by the reference's identifier or, where `byKind`, by the last
  /// word of its kind.
  std::map<std::string, std::string> references(const std::string& part, bool byKind) const;

 private:
  struct Archive;
  std::unique_ptr<Archive> archive_;
};
