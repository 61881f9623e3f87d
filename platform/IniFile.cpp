#include "platform/IniFile.h"

#include <QFile>
#include <utility>

#include "base/FileName.h"
#include "base/WholeFile.h"
#include "platform/IniText.h"
#include "platform/QtText.h"

namespace {

namespace fs = std::filesystem;

QString nameOf(const fs::path& path) {
  return qtText(path.string());
}

/// All bytes of the file, none of a missing one; nothing when it is there but cannot be read.
std::optional<std::string> contentOf(const fs::path& path) {
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  if (status.type() == fs::file_type::not_found) return std::string();
  // A folder has no text, and opening a FIFO would wait for its writer.
  if (status.type() != fs::file_type::regular) return {};
  QFile file(nameOf(path));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError) return {};
  return bytes.toStdString();
}

/// Write protection counts for the superuser too, who could write nevertheless.
bool isWriteProtected(const fs::path& path) {
  std::error_code missing;
  const fs::file_status status = fs::status(path, missing);
  return !missing && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

/// A link stays one: what it leads to is replaced.
bool replaceContent(const fs::path& path, const std::string& bytes) {
  std::error_code isNew;
  const fs::path real = fs::canonical(path, isNew);
  try {
    WholeFile file(isNew ? path : real);
    file.append(bytes);
    if (!isNew) file.keepRightsOf(real);
    file.finish();
    return true;
  } catch (const FileError&) {
    return false;
  }
}

}  // namespace

IniFile::IniFile(fs::path path) : path_(std::move(path)) {}

std::optional<std::string> IniFile::read(std::string_view section, std::string_view key) const {
  const auto content = contentOf(findIgnoringCase(path_.string()));
  if (!content) return {};
  return IniText(*content).value(section, key);
}

bool IniFile::write(std::string_view section, std::string_view key, std::string_view value) const {
  return write({{std::string(section), std::string(key), std::string(value)}});
}

bool IniFile::write(const std::vector<Entry>& entries) const {
  const fs::path path = findIgnoringCase(path_.string());
  const auto content = contentOf(path);
  if (!content || isWriteProtected(path)) return false;
  IniText text(*content);
  for (const Entry& entry : entries) text.setValue(entry.section, entry.key, entry.value);
  const std::string bytes = text.bytes();
  return bytes == *content || replaceContent(path, bytes);
}
