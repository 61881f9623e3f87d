#include "store/Schema.h"

#include <cstddef>

#include "base/Words.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

// The engine's field for the kind of file: "TILL".
constexpr std::int64_t kApplicationMark = 0x54494C4C;

std::int64_t pragma(Connection& connection, const std::string& name) {
  Rows rows = connection.query(("pragma " + name).c_str());
  rows.next();
  return rows.whole(name).value();
}

void setPragma(Connection& connection, const std::string& name, std::int64_t value) {
  connection.runScript("pragma " + name + " = " + std::to_string(value));
}

/// Number of steps that the file has seen.
std::size_t stepsDone(Connection& connection) {
  const std::int64_t version = pragma(connection, "user_version");
  if (version < 0) throw StoreError(Words::tr("数据文件已损坏：版本号不对。"));
  if (version > static_cast<std::int64_t>(schemaSteps().size())) {
    throw StoreError(Words::tr("数据文件是更新版本的程序建立的，请先升级本程序。"));
  }
  return static_cast<std::size_t>(version);
}

}  // namespace

void requireShopFile(Connection& connection) {
  if (pragma(connection, "application_id") != kApplicationMark)
    throw StoreError(Words::tr("这不是本系统的数据文件：%1", connection.source().path.string()));
  static_cast<void>(stepsDone(connection));
}

void upgradeSchema(Connection& connection, bool isNew) {
  if (!isNew) requireShopFile(connection);
  const std::vector<std::string>& steps = schemaSteps();
  if (stepsDone(connection) == steps.size()) return;
  Transaction transaction(connection);
  // Read again: another program may have upgraded the file before this one had the write lock.
  for (std::size_t step = stepsDone(connection); step < steps.size(); ++step) {
    connection.runScript(steps[step]);
  }
  setPragma(connection, "application_id", kApplicationMark);
  setPragma(connection, "user_version", static_cast<std::int64_t>(steps.size()));
  transaction.commit();
}
