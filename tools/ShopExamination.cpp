#include <string>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Right.h"
#include "store/Connection.h"
#include "store/Integrity.h"
#include "tools/Examination.h"

namespace {

// What the engine keeps as a text in a column of numbers is none.
constexpr const char* kBarcodes =
    "select sptm as code, spmc as name from tmda where"
    " typeof(xsdj) = 'text' or typeof(pfj) = 'text' or typeof(zk) = 'text' or typeof(cxj) = 'text'"
    " or typeof(zhjj) = 'text' or typeof(dwbl) not in ('integer', 'null') or zk < 0 or xsdj < 0"
    " or pfj < 0 or cxj < 0 or dwbl < 1 or dwbl > 32767"
    " or (kssj is not null and datetime(kssj) is null)"
    " or (jssj is not null and datetime(jssj) is null)";
constexpr const char* kMaster =
    "select f_spbm as code, f_spmc as name from spda where"
    " typeof(f_xsdj) = 'text' or typeof(f_pfj) = 'text' or typeof(f_zk) = 'text'"
    " or typeof(f_zhjj) = 'text' or f_zk < 0 or f_xsdj < 0 or f_pfj < 0";

void nameGoods(const Examination& books, const char* statement, const std::string& what) {
  Rows rows = books.connection.query(statement);
  while (rows.next()) {
    books.fault(Words::tr("%1 %2（%3）的价格、折扣、比例或促销日期不对", what, rows.text("code"),
                          rows.text("name")));
  }
}

void examineOwners(const Examination& books) {
  Rows barcodes = books.connection.query(
      "select spbm, min(sptm) as code, count(*) as codes from tmda"
      " where not exists (select 1 from spda where f_spbm = spbm) group by spbm");
  while (barcodes.next()) {
    books.fault(Words::tr(
        "商品资料 spda 里没有编码 %1，它却有 %2 个条码（%3）：卖出去以后查询和报表里看不到",
        barcodes.text("spbm"), barcodes.text("codes"), barcodes.text("code")));
  }
  Rows stock = books.connection.query(
      "select spbm, quantity from stock"
      " where not exists (select 1 from spda where f_spbm = spbm)");
  while (stock.next()) {
    books.fault(Words::tr("商品资料 spda 里没有编码 %1，库存里却有 %2", stock.text("spbm"),
                          stock.text("quantity")));
  }
}

void examineStock(const Examination& books) {
  Rows rows = books.connection.query(
      "select spbm, quantity from stock where typeof(quantity) not in ('integer', 'real')"
      " or abs(quantity) > 1e15");
  while (rows.next()) {
    books.fault(
        Words::tr("商品 %1 的库存不是数字：“%2”", rows.text("spbm"), rows.text("quantity")));
  }
}

void examineOperators(const Examination& books) {
  Rows numbers = books.connection.query(
      "select id from operators where typeof(id) <> 'integer' or id < 1 or id > 32767");
  while (numbers.next())
    books.fault(Words::tr("操作员号 %1 不在 1 到 32767 之间", numbers.text("id")));
  // Each password is hashed with a salt of its own: equal ones were copied.
  Rows copied = books.connection.query(
      "select a.id as id, b.id as other from operators a join operators b"
      " on b.password = a.password and b.id < a.id order by a.id");
  while (copied.next()) {
    books.fault(Words::tr("操作员 %1 的密码是从操作员 %2 那里抄来的", copied.text("id"),
                          copied.text("other")));
  }
  Rows unreadable =
      books.connection.query("select id from operators where password not like '$argon2id$%'");
  while (unreadable.next()) {
    books.fault(Words::tr("操作员 %1 的密码不是本程序存的，登录不了", unreadable.text("id")));
  }
  Rows gone = books.connection.query(
      "select operator_id, right_key from operator_rights"
      " where operator_id not in (select id from operators)");
  while (gone.next()) {
    books.fault(Words::tr("权限 %1 属于不存在的操作员 %2", gone.text("right_key"),
                          gone.text("operator_id")));
  }
}

void examineRights(const Examination& books) {
  Rows rights = books.connection.query("select operator_id, right_key from operator_rights");
  while (rights.next()) {
    if (parseRight(rights.text("right_key"))) continue;
    books.remark(Words::tr("操作员 %1 的权限“%2”收款程序不认识", rights.text("operator_id"),
                           rights.text("right_key")));
  }
}

// The owner may remove an operator who has no open bill.
void examineRemovedOperators(const Examination& books) {
  Rows rows = books.connection.query(
      "select operator_id, count(*) as bills, max(id) as last from sell where state = 1"
      " and operator_id not in (select id from operators) group by operator_id");
  while (rows.next()) {
    books.remark(Words::tr("操作员 %1 已不在名单里，有 %2 张已结的单据，最后一张是单据 %3",
                           rows.text("operator_id"), rows.text("bills"), rows.text("last")));
  }
  Rows returns = books.connection.query(
      "select operator_id, count(*) as returns from un_sell"
      " where operator_id not in (select id from operators) group by operator_id");
  while (returns.next()) {
    books.remark(Words::tr("操作员 %1 已不在名单里，办过 %2 笔退货", returns.text("operator_id"),
                           returns.text("returns")));
  }
}

// A value that is none of its parameter's is not used; the till then has the default.
void examineParameters(const Examination& books) {
  ClsSysParam used;
  used.Conn(books.connection);
  const auto parameters = used.list();
  for (const ClsSysParam::Parameter& parameter : parameters) {
    if (parameter.isSet) continue;
    Rows row = books.connection.query("select value from sys_param where name = ?", parameter.name);
    if (!row.next()) continue;
    books.remark(Words::tr("店铺参数 %1 的值“%2”不对，没有采用，现在按“%3”", parameter.name,
                           row.text("value"), parameter.value));
  }
}

std::int64_t wholeOf(const Examination& books, const std::string& query) {
  Rows rows = books.connection.query(("select (" + query + ") as n").c_str());
  rows.next();
  return rows.whole("n").value_or(0);
}

void examineNumbers(const Examination& books, const std::string& table, const std::string& what) {
  constexpr std::int64_t kLast = INT32_MAX;
  const std::int64_t largest = wholeOf(books, "select max(id) from " + table);
  const std::int64_t given = lastNumberGiven(books.connection, table);
  if (given < largest) {
    books.fault(Words::tr("%1会重复：最大的是 %2，下一个号却从 %3 数起", what, largest, given));
  }
  if (given >= kLast) books.fault(Words::tr("%1用完了：已经发到 %2", what, given));
}

// Nothing ever deletes from these tables, so that their numbers have no gap.
void examineGaps(const Examination& books, const std::string& table, const std::string& what) {
  const std::int64_t there = wholeOf(books, "select count(*) from " + table);
  const std::int64_t given = lastNumberGiven(books.connection, table);
  if (there >= given) return;
  books.fault(Words::tr("%1少了 %2 条：号码发到 %3，只有 %4 条，是在本程序以外删掉的", what,
                        given - there, given, there));
}

// What counts comes in by itself; what does not has written nothing.
void examineGoodsImport(const Examination& books) {
  Rows sheet =
      books.connection.query("select whole, staged, staged - written as waiting from goods_in");
  if (!sheet.next()) return;
  if (sheet.whole("whole").value_or(0) != 0) {
    books.remark(
        Words::tr("有一次商品导入还没有写完，等着写入 %1 "
                  "行：收银程序下次打开时，或者下次导入商品时，会接着写完",
                  sheet.text("waiting")));
  } else {
    books.remark(
        Words::tr("有一次商品导入没有读完就结束了，或者正在读，读了 %1 "
                  "行，什么也没有写入：再导入一次这张商品表就行",
                  sheet.text("staged")));
  }
}

}  // namespace

void examineGoods(const Examination& books) {
  nameGoods(books, kBarcodes, Words::tr("条码"));
  nameGoods(books, kMaster, Words::tr("商品"));
  examineOwners(books);
  examineStock(books);
  examineGoodsImport(books);
}

void examineShop(const Examination& books) {
  examineOperators(books);
  examineRights(books);
  examineRemovedOperators(books);
  examineParameters(books);
  examineNumbers(books, "sell", Words::tr("流水号"));
  examineNumbers(books, "sellProducts", Words::tr("商品行号"));
  examineNumbers(books, "un_sell", Words::tr("退货号"));
  examineNumbers(books, "member", Words::tr("会员的内部号"));
  examineGaps(books, "un_sell", Words::tr("退货记录"));
  examineGaps(books, "cardStored", Words::tr("充值记录"));
  examineGaps(books, "member", Words::tr("会员"));
}
