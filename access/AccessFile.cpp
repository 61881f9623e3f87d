#include "access/AccessFile.h"

#include <utility>

#include "access/JetReader.h"
#include "access/ReadingProcess.h"
#include "access/Wire.h"
#include "base/Failure.h"
#include "base/Words.h"

AccessFile::AccessFile(std::filesystem::path path) : path_(std::move(path)) {
  if (!std::filesystem::is_regular_file(path_)) {
    throw Failure(Words::tr("没有这个文件，或者不是普通文件：%1", path_.string()));
  }
  readInChild(
      [this](const Outbox& outbox) {
        JetReader reader(path_.string());
        for (const AccessTable& table : reader.tables([&outbox] { outbox.send({}); })) {
          WireWriter message;
          message.table(table);
          outbox.send(message.bytes());
        }
      },
      [this](std::string_view message) { tables_.push_back(WireReader(message).table()); });
}

void AccessFile::read(const AccessTable& table,
                      const std::function<void(const AccessRow&)>& take) const {
  const std::size_t columns = table.columns.size();
  readInChild(
      [this, &table](const Outbox& outbox) {
        JetReader(path_.string()).rows(table.name, [&outbox](const AccessRow& row) {
          WireWriter message;
          for (const AccessValue& value : row) message.value(value);
          outbox.send(message.bytes());
        });
      },
      [columns, &take](std::string_view message) {
        WireReader reader(message);
        AccessRow row;
        while (!reader.atEnd()) row.push_back(reader.value());
        if (row.size() != columns)
          throw Failure(Words::tr("Access 文件在读的时候被别的程序改了。"));
        take(row);
      });
}
