#include "shop/DemoShop.h"

#include <array>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "base/Currency.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsRights.h"
#include "saleslib/ClsSysParam.h"
#include "shop/DemoGoods.h"
#include "shop/GoodsImport.h"
#include "shop/Operators.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

struct DemoParameter {
  const char* name;
  const char* value;
};

constexpr DemoParameter kParameters[] = {
    {"ShopName", "惠邻便利店"},
    {"ReceiptText1", "欢迎光临"},
    {"ReceiptText2", "地址：光明路 18 号"},
    {"ReceiptText3", "电话：010-55550118"},
    {"ReceiptText4", "营业时间 7:00 至 23:00"},
    {"ReceiptText5", "退换商品请带小票，七日内有效"},
    {"ReceiptText6", "谢谢惠顾，欢迎再来！"},
    {"StockRule", "0"},
    {"PointUnit", "10"},
    {"GeneralRate", "1"},
    {"VipRate", "0.9"},
    {"SilverRate", "0.98"},
    {"GoldRate", "0.95"},
    {"CheckPayment", "1"},
    {"Approval", "1"},
    {"Practice", "1"},
    {"Shifts", "1"},
};

struct DemoMember {
  const char* number;
  const char* name;
  const char* sex;
  std::int16_t age;
  const char* phone;
  const char* address;
  const char* cardClass;
  double discount;
  std::int64_t balance;  // yuan
  const char* password;
  std::int16_t points;
  bool enabled;
  Date birthday;
};

// The telephone numbers are of a range that is not given to anybody.
constexpr DemoMember kMembers[] = {
    {"880001",
     "陈秀英",
     "女",
     46,
     "10000000001",
     "光明路 22 号 3 单元 501",
     "贵宾卡",
     0.9,
     500,
     "1111",
     320,
     true,
     {1980, 3, 8}},
    {"880002",
     "刘建国",
     "男",
     58,
     "10000000002",
     "光明路 22 号 1 单元 102",
     "金卡",
     0.95,
     260,
     "2222",
     158,
     true,
     {1968, 10, 1}},
    {"880003",
     "赵敏",
     "女",
     31,
     "10000000003",
     "和平里小区 7 号楼 1204",
     "银卡",
     0.98,
     88,
     "3333",
     46,
     true,
     {1995, 6, 18}},
    {"880004",
     "孙志强",
     "男",
     27,
     "10000000004",
     "和平里小区 2 号楼 306",
     "银卡",
     0.98,
     0,
     "4444",
     0,
     true,
     {1999, 12, 24}},
    {"880005",
     "周丽",
     "女",
     39,
     "10000000005",
     "中山街 5 号",
     "金卡",
     0.95,
     35,
     "5555",
     72,
     false,
     {1987, 7, 7}},
};

void addParameters(Connection& connection) {
  ClsSysParam parameters;
  parameters.Conn(connection);
  for (const DemoParameter& parameter : kParameters) {
    ensure(parameters.set(parameter.name, parameter.value).empty(), "demo parameters are accepted");
  }
}

void addOperators(Connection& connection) {
  const std::vector<std::string> cashier = {"sell",  "discount:10", "price",   "delete", "topup",
                                            "query", "reprint",     "members", "shift"};
  std::vector<std::string> supervisor = allRights();
  std::erase(supervisor, kRightSell);
  addOperator(connection, {1, "张三", "111", allRights()});
  addOperator(connection, {2, "李四", "222", cashier});
  addOperator(connection, {3, "王五", "333", supervisor});
  addOperator(connection, {4, "赵六", "444", {kRightSell}});
}

void addMembers(Connection& connection, const Clock& clock) {
  for (const DemoMember& demo : kMembers) {
    ClsMember member;
    member.Init(connection, 0, clock);
    member.setBh(demo.number);
    member.setName(demo.name);
    member.setSex(demo.sex);
    member.setAge(demo.age);
    member.setPhone(demo.phone);
    member.setAddress(demo.address);
    member.setDiscount(demo.discount);
    member.setBalance(Currency::fromYuan(demo.balance));
    member.setPassword(demo.password);
    member.setPoints(demo.points);
    member.setTotalSpent(Currency::fromYuan(std::int64_t{demo.points} * 10));
    member.setEnabled(demo.enabled);
    member.setBirthday(demo.birthday);
    ensure(member.Save(), "demo members are accepted");
    connection.run("update member set hyzklb = ? where bh = ?", demo.cardClass, demo.number);
  }
}

/// The demo shop's sheet with the days of its promotions as dates.
class DemoSheet : public SheetReader {
 public:
  DemoSheet(std::unique_ptr<SheetReader> sheet, const GoodsMapping& mapping, Date today)
      : sheet_(std::move(sheet)),
        dates_{mapping.placeOf(GoodsField::kPromotionFrom).value(),
               mapping.placeOf(GoodsField::kPromotionTo).value()},
        today_(today) {}

  bool next(std::vector<std::string>& fields) override {
    if (!sheet_->next(fields)) return false;
    for (const std::size_t place : dates_) {
      const std::optional<std::int16_t> days = parseWhole16(fields[place]);
      if (days) fields[place] = dateText(plusDays(today_, *days));
    }
    return true;
  }
  std::int64_t line() const override { return sheet_->line(); }
  double progress() const override { return sheet_->progress(); }

 private:
  std::unique_ptr<SheetReader> sheet_;
  std::array<std::size_t, 2> dates_;
  Date today_;
};

void addGoods(Connection& connection, Date today) {
  std::istringstream text{std::string(kDemoGoods)};
  OpenedSheet opened = readGoodsSheet(text);
  const GoodsMapping mapping = guessMapping(opened.headings);
  DemoSheet sheet(std::move(opened.reader), mapping, today);
  const std::optional<GoodsPreview> goods = importGoods(
      connection, sheet, mapping, WriteSlices::Company::kAlone, [](double) { return true; });
  ensure(goods && goods->mayBeWritten() && !mapping.isGuessed, "the demo goods are accepted");
}

// Of what is done from then on: the shop as it was filled is what it begins with.
void keepJournal(Connection& connection) {
  ClsSysParam parameters;
  parameters.Conn(connection);
  ensure(parameters.set("Journal", "1").empty(), "demo parameters are accepted");
}

}  // namespace

void fillDemoShop(Connection& connection, const Clock& clock) {
  ConnectionUser maker;
  maker.clock = clock;
  connection.setUser(std::move(maker));
  Transaction transaction(connection);
  addParameters(connection);
  addOperators(connection);
  addMembers(connection, clock);
  addGoods(connection, clock().date);
  keepJournal(connection);
  transaction.commit();
}
