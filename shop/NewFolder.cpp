#include "shop/NewFolder.h"

#include <sys/stat.h>

#include <cerrno>
#include <utility>

#include "base/FileError.h"
#include "base/PrivateFile.h"
#include "base/SystemFault.h"
#include "base/Words.h"

namespace fs = std::filesystem;

NewFolder::NewFolder(fs::path folder) {
  std::error_code ignored;
  if (folder.empty() || fs::is_directory(folder, ignored)) return;
  if (mkdir(folder.c_str(), S_IRWXU) != 0) {
    const bool isThere = errno == EEXIST;
    throw FileError(Words::tr("建不了文件夹 %1：%2", folder.string(),
                              isThere ? Words::tr("那里已经有别的东西。") : fileFault(errno)));
  }
  made_ = std::move(folder);
  static_cast<void>(makePrivate(made_));
}

NewFolder::~NewFolder() {
  std::error_code isNotEmpty;
  if (!made_.empty()) fs::remove(made_, isNotEmpty);
}
