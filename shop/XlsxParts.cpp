#include "shop/XlsxParts.h"

#include <orcus/sax_parser.hpp>
#include <orcus/zip_archive.hpp>
#include <orcus/zip_archive_stream.hpp>
#include <utility>
#include <vector>

namespace {

/// What the XML library tells, handed on: attributes come before their element's start.
class Handler : public orcus::sax_handler {
 public:
  explicit Handler(const XlsxParts::Walk& walk) : walk_(walk) {}

  void attribute(const orcus::sax::parser_attribute& attribute) {
    attributes_[std::string(attribute.name)] = attribute.value;
  }
  void start_element(const orcus::sax::parser_element& element) {
    text_.clear();
    if (walk_.start) walk_.start(element.name, attributes_);
    attributes_.clear();
  }
  void characters(std::string_view text, bool) { text_ += text; }
  void end_element(const orcus::sax::parser_element& element) {
    if (walk_.end) walk_.end(element.name, text_);
    text_.clear();
  }
  // Those of "<?xml ...?>" are no element's.
  void end_declaration(std::string_view) { attributes_.clear(); }

 private:
  const XlsxParts::Walk& walk_;
  XlsxParts::Attributes attributes_;
  std::string text_;
};

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

}  // namespace

struct XlsxParts::Archive {
  explicit Archive(const std::filesystem::path& file) : stream(file.c_str()), zip(&stream) {
    zip.load();
  }
  orcus::zip_archive_stream_fd stream;
  orcus::zip_archive zip;
};

XlsxParts::XlsxParts(const std::filesystem::path& file)
    : archive_(std::make_unique<Archive>(file)) {}
XlsxParts::~XlsxParts() = default;

bool XlsxParts::walk(const std::string& part, const Walk& walk) const {
  std::vector<unsigned char> bytes;
  if (!archive_->zip.read_file_entry(part, bytes)) return false;
  Handler handler(walk);
  const std::string_view xml(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  orcus::sax_parser<Handler>(xml.data(), xml.size(), handler).parse();
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
