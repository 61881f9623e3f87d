#include "reports/ExportFolder.h"

#include <QCoreApplication>

#include "base/Failure.h"
#include "base/FileName.h"
#include "base/PrivateFile.h"
#include "platform/IniFile.h"
#include "platform/QtText.h"

namespace fs = std::filesystem;

fs::path exportFolder(const IniFile& settings, const fs::path& shopFolder) {
  const std::string set = settings.read("Till", "ExportFolder").value_or("");
  return findIgnoringCase((shopFolder / (set.empty() ? "Exports" : set)).string());
}

// A folder that somebody else made keeps its rights: it may be a memory stick's.
void makeExportFolder(const fs::path& folder) {
  std::error_code failed;
  if (fs::is_directory(folder, failed)) return;
  const bool isMade = fs::create_directories(folder, failed) && makePrivate(folder);
  if (isMade) return;
  throw Failure(
      QCoreApplication::translate("ExportFolder", "不能新建导出文件夹 %1，请检查设置和权限。")
          .arg(qtText(folder.string()))
          .toStdString());
}
