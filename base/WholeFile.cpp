#include "base/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <random>
#include <utility>

#include "base/PrivateFile.h"
#include "base/SystemFault.h"
#include "base/Words.h"

namespace {

/// Tries `make` with the target's name and six random letters behind it until the name is free;
/// gives the name, or an empty text (errno says why) when that is not what is in the way.
template <class Make>
std::string withFreeName(const std::filesystem::path& target, const Make& make) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device random;
  std::uniform_int_distribution<std::size_t> any(0, kLetters.size() - 1);
  do {
    std::string name = target.string() + '.';
    for (int i = 0; i < 6; ++i) name += kLetters[any(random)];
    if (make(name.c_str())) return name;
  } while (errno == EEXIST);
  return {};
}

/// A file without a name gets one; errno says why not.
bool giveName(int file, const char* name) {
  const std::string handle = "/proc/self/fd/" + std::to_string(file);
  return linkat(AT_FDCWD, handle.c_str(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
}

}  // namespace

WholeFile::WholeFile(std::filesystem::path target)
    : target_(std::move(target)),
      folder_(target_.has_parent_path() ? target_.parent_path() : std::filesystem::path(".")) {
  std::error_code unknown;
  const std::filesystem::file_type there = std::filesystem::status(target_, unknown).type();
  // Its name would be taken from a device, which others need.
  if (there != std::filesystem::file_type::regular && std::filesystem::exists(target_, unknown))
    fail(Words::tr("那里不是普通文件。"));
  file_ = open(folder_.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
  const bool isUnknownHere = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
  if (file_ < 0 && !isUnknownHere) failWith(errno);
  if (file_ < 0) makeNamed();
  if (isShared(folder_) && fchmod(file_, 0660) != 0) errno = 0;  // then it stays its owner's only
}

void WholeFile::makeNamed() {
  path_ = withFreeName(target_, [this](const char* name) {
    file_ = open(name, O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600);
    return file_ >= 0;
  });
  if (file_ < 0) failWith(errno);
}

WholeFile::~WholeFile() {
  if (!path_.empty()) unlink(path_.c_str());
  close(file_);
}

void WholeFile::append(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file_, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) failWith(errno);
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

const std::string& WholeFile::path() {
  if (path_.empty())
    path_ = withFreeName(target_, [this](const char* name) { return giveName(file_, name); });
  if (path_.empty()) failWith(errno);
  return path_;
}

void WholeFile::keepOwnerOf(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return;
  if (fchown(file_, status.st_uid, status.st_gid) != 0) errno = 0;  // not this user's to give
}

void WholeFile::keepRightsOf(const std::filesystem::path& file) {
  keepOwnerOf(file);
  struct stat old {
  }, own{};
  if (stat(file.c_str(), &old) != 0 || fstat(file_, &own) != 0) return;
  const mode_t kept = own.st_gid == old.st_gid ? 0777 : 0707;
  if (fchmod(file_, old.st_mode & kept) != 0) failWith(errno);
}

void WholeFile::sync() const {
  if (fsync(file_) != 0) failWith(errno);
}

void WholeFile::flush() const {
  if (fdatasync(file_) != 0) failWith(errno);
}

void WholeFile::forget() const {
  posix_fadvise(file_, 0, 0, POSIX_FADV_DONTNEED);  // advice: its failure changes nothing
}

void WholeFile::finish() {
  sync();
  if (rename(path().c_str(), target_.c_str()) != 0) failWith(errno);
  hasTakenItsName();
}

bool WholeFile::finishAsNew() {
  sync();
  const bool isNew = path_.empty() ? giveName(file_, target_.c_str())
                                   : renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, target_.c_str(),
                                               RENAME_NOREPLACE) == 0;
  if (!isNew && errno == EEXIST) return false;
  if (!isNew) failWith(errno);
  hasTakenItsName();
  return true;
}

// Without the folder's sync a power cut could undo the naming. A folder that may be written but not
// read cannot be synced.
void WholeFile::hasTakenItsName() {
  path_.clear();
  const int folder = open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

void WholeFile::failWith(int error) const {
  fail(fileFault(error));
}

void WholeFile::fail(const std::string& why) const {
  throw FileError(Words::tr("不能写入 %1：%2", target_.string(), why));
}
