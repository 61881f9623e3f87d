#include "store/Engine.h"

#include <array>

#include "base/Words.h"
#include "store/StoreError.h"

namespace {

struct Meaning {
  int code;
  const char* text;
};

constexpr std::array kMeanings = {
    Meaning{SQLITE_BUSY, Words::mark("数据文件正被另一个程序占用，请关闭那个程序或稍后再试。")},
    Meaning{SQLITE_LOCKED, Words::mark("数据文件正被另一个操作占用，请稍后再试。")},
    Meaning{SQLITE_FULL, Words::mark("磁盘已满，数据没有保存。请清理磁盘后再试。")},
    Meaning{SQLITE_READONLY, Words::mark("数据文件或它所在的文件夹不能写入，请检查权限。")},
    Meaning{SQLITE_IOERR, Words::mark("读写数据文件时出错，请检查磁盘。")},
    Meaning{SQLITE_CORRUPT,
            Words::mark("数据文件已损坏。请退出收款程序，用 tilladmin restore 恢复备份。")},
    Meaning{
        SQLITE_NOTADB,
        Words::mark(
            "这不是数据文件，或者它的密码不对，或者它已损坏（可用 tilladmin restore 恢复备份）。")},
    Meaning{SQLITE_CANTOPEN, Words::mark("数据文件或它所在的文件夹打不开，请检查权限。")},
    Meaning{SQLITE_PERM, Words::mark("没有读写数据文件的权限。")},
    Meaning{SQLITE_NOMEM, Words::mark("内存不足，数据没有保存。")},
    Meaning{SQLITE_INTERRUPT, Words::mark("查询已停止。")},
    Meaning{SQLITE_TOOBIG, Words::mark("文字太长，数据文件存不下。")},
};

}  // namespace

std::string failureText(int code, const char* detail) {
  for (const Meaning& meaning : kMeanings) {
    if (meaning.code == (code & 0xff)) {
      return Words::tr("%1（错误 %2）", Words::tr(meaning.text), code);
    }
  }
  return (code & 0xff) == SQLITE_CONSTRAINT ? Words::tr("数据与已有的记录冲突：%1", detail)
                                            : Words::tr("数据语句有误：%1", detail);
}

void check(sqlite3* engine, int code) {
  if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return;
  const std::string text =
      failureText(code, engine ? sqlite3_errmsg(engine) : sqlite3_errstr(code));
  if ((code & 0xff) == SQLITE_BUSY) throw StoreBusy(text);
  throw StoreError(text);
}
