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
  /// no XML, or a text in it is longer than any that a sheet holds.
  bool walk(const std::string& part, const Walk& walk) const;

  /// A part that is walked through step by step, some 64 KiB each, so that memory does not grow
  /// with it. Lives no longer than its archive.
  class Steps {
   public:
    /// False at the end. Throws as walk does.
    virtual bool next() = 0;
    /// How much was walked through, 0 ... 1.
    virtual double progress() const = 0;
    virtual ~Steps() = default;
  };
  /// None when there is no part of that name.
  std::unique_ptr<Steps> steps(const std::string& part, Walk walk) const;
  /// The parts that a part refers to, by the reference's identifier or, where `byKind`, by the last
  /// word of its kind.
  std::map<std::string, std::string> references(const std::string& part, bool byKind) const;

 private:
  struct Archive;
  std::unique_ptr<Archive> archive_;
};
