#include "platform/IniFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QSaveFile>
#include <utility>

#include "base/FileName.h"
#include "platform/IniText.h"

namespace {

namespace fs = std::filesystem;

QString nameOf(const fs::path& path) {
  return QString::fromStdString(path.string());
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

/// Without this a power cut could undo the renaming.
void syncFolder(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

/// QSaveFile writes beside the file, syncs, keeps the permissions and renames.
bool replaceContent(const fs::path& path, const std::string& bytes) {
  QSaveFile file(nameOf(path));
  const bool isNew = !QFile::exists(nameOf(path));
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (isNew) file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
  file.write(bytes.data(), static_cast<qint64>(bytes.size()));
  if (!file.commit()) return false;
  syncFolder(path.has_parent_path() ? path.parent_path() : ".");
  return true;
}

}  // namespace

IniFile::IniFile(fs::path path) : path_(std::move(path)) {}

std::optional<std::string> IniFile::read(std::string_view section, std::string_view key) const {
  const auto content = contentOf(findIgnoringCase(path_.string()));
  if (!content) return {};
  return IniText(*content).value(section, key);
}

bool IniFile::write(std::string_view section, std::string_view key, std::string_view value) const {
  const fs::path path = findIgnoringCase(path_.string());
  const auto content = contentOf(path);
  if (!content || isWriteProtected(path)) return false;
  IniText text(*content);
  text.setValue(section, key, value);
  const std::string bytes = text.bytes();
  // Saving all settings mostly changes one or two of them; the others cost no sync.
  return bytes == *content || replaceContent(path, bytes);
}
