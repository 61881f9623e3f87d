#include "link/AuthorityFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>

#include "base/Failure.h"
#include "base/SystemFault.h"

AuthorityFile::AuthorityFile(const std::string& certificate)
    : file_(memfd_create("authority", MFD_CLOEXEC)) {
  const auto size = static_cast<ssize_t>(certificate.size());
  if (file_ >= 0 && write(file_, certificate.data(), certificate.size()) == size) return;
  const int cause = errno;
  if (file_ >= 0) ::close(file_);
  throw Failure(fileFault(cause));
}

AuthorityFile::~AuthorityFile() {
  ::close(file_);
}

std::string AuthorityFile::path() const {
  return "/proc/self/fd/" + std::to_string(file_);
}
