#include "shop/XlsxParts.h"

#include <expat.h>
#include <zip.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10;
constexpr std::size_t kLongestText = std::size_t{1} << 20;  // a cell holds 32 Ki characters at most

/// A name without its prefix.
std::string_view bareName(const char* name) {
  const std::string_view whole = name;
  const std::size_t colon = whole.find(':');
  return colon == std::string_view::npos ? whole : whole.substr(colon + 1);
}

std::string folderOf(const std::string& part) {
  const std::size_t slash = part.rfind('/');
  return slash == std::string::npos ? std::string() : part.substr(0, slash + 1);
}

std::string valueOf(const XlsxParts::Attributes& attributes, std::string_view name) {
  const auto found = attributes.find(name);
  return found == attributes.end() ? std::string() : found->second;
}

/// A reference as the name of a part: "/xl/a.xml", or "../a.xml" from a folder.
std::string partNamed(const std::string& folder, const std::string& reference) {
  if (reference.starts_with('/')) return reference.substr(1);
  return std::filesystem::path(folder + reference).lexically_normal().generic_string();
}

/// One part on its way through the XML library. Nothing may be thrown through that: what a caller
/// throws waits until it has returned.
class PartWalk : public XlsxParts::Steps {
 public:
  PartWalk(zip_t& archive, zip_uint64_t index, XlsxParts::Walk walk)
      : walk_(std::move(walk)),
        file_(zip_fopen_index(&archive, index, 0), &zip_fclose),
        parser_(XML_ParserCreate(nullptr), &XML_ParserFree) {
    zip_stat_t status;
    if (!file_ || !parser_ || zip_stat_index(&archive, index, 0, &status) != 0)
      throw std::runtime_error("the part cannot be opened");
    size_ = static_cast<double>(std::max<zip_uint64_t>(status.size, 1));
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), &PartWalk::start, &PartWalk::end);
    XML_SetCharacterDataHandler(parser_.get(), &PartWalk::text);
  }

  bool next() override {
    const zip_int64_t count = zip_fread(file_.get(), piece_.data(), piece_.size());
    if (count < 0) throw std::runtime_error("the part is damaged");
    read_ += static_cast<double>(count);
    const bool isParsed = XML_Parse(parser_.get(), piece_.data(), static_cast<int>(count),
                                    count == 0) == XML_STATUS_OK;
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
    if (!isParsed) throw std::runtime_error("the part is no XML");
    return count > 0;
  }
  double progress() const override { return std::min(read_ / size_, 1.0); }

 private:
  static void start(void* self, const char* name, const char** attributes) {
    static_cast<PartWalk*>(self)->guarded([&](PartWalk& walk) {
      walk.attributes_.clear();
      for (const char** each = attributes; *each != nullptr; each += 2)
        walk.attributes_.emplace(bareName(each[0]), each[1]);
      walk.text_.clear();
      if (walk.walk_.start) walk.walk_.start(bareName(name), walk.attributes_);
    });
  }
  static void end(void* self, const char* name) {
    static_cast<PartWalk*>(self)->guarded([&](PartWalk& walk) {
      if (walk.walk_.end) walk.walk_.end(bareName(name), walk.text_);
      walk.text_.clear();
    });
  }
  static void text(void* self, const char* characters, int count) {
    static_cast<PartWalk*>(self)->guarded([&](PartWalk& walk) {
      walk.text_.append(characters, static_cast<std::size_t>(count));
      if (walk.text_.size() > kLongestText) throw std::length_error("a text is too long");
    });
  }
  template <class Action>
  void guarded(const Action& action) {
    if (thrown_) return;
    try {
      action(*this);
    } catch (...) {
      thrown_ = std::current_exception();
      XML_StopParser(parser_.get(), XML_FALSE);
    }
  }

  XlsxParts::Walk walk_;
  std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file_;
  std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser_;
  std::array<char, kPiece> piece_;
  double size_ = 1, read_ = 0;
  XlsxParts::Attributes attributes_;
  std::string text_;
  std::exception_ptr thrown_;
};

}  // namespace

struct XlsxParts::Archive {
  explicit Archive(const std::filesystem::path& file)
      : zip(zip_open(file.c_str(), ZIP_RDONLY, nullptr), &zip_discard) {
    if (!zip) throw std::runtime_error("no zip archive");
  }
  std::unique_ptr<zip_t, void (*)(zip_t*)> zip;
};

XlsxParts::XlsxParts(const std::filesystem::path& file)
    : archive_(std::make_unique<Archive>(file)) {}
XlsxParts::~XlsxParts() = default;

std::unique_ptr<XlsxParts::Steps> XlsxParts::steps(const std::string& part, Walk walk) const {
  zip_t& zip = *archive_->zip;
  const zip_int64_t index = zip_name_locate(&zip, part.c_str(), 0);
  if (index < 0) return nullptr;
  return std::make_unique<PartWalk>(zip, static_cast<zip_uint64_t>(index), std::move(walk));
}

bool XlsxParts::walk(const std::string& part, const Walk& walk) const {
  const std::unique_ptr<Steps> all = steps(part, walk);
  if (!all) return false;
  while (all->next()) {
  }
  return true;
}

std::map<std::string, std::string> XlsxParts::references(const std::string& part,
                                                         bool byKind) const {
  std::map<std::string, std::string> found;
  const std::string folder = folderOf(part);
  const std::string list = folder + "_rels/" + part.substr(folder.size()) + ".rels";
  walk(list, {[&](std::string_view element, const Attributes& attributes) {
                if (element != "Relationship") return;
                const std::string kind = valueOf(attributes, "Type");
                const std::string name =
                    byKind ? kind.substr(kind.rfind('/') + 1) : valueOf(attributes, "Id");
                found[name] = partNamed(folder, valueOf(attributes, "Target"));
              },
              {}});
  return found;
}
