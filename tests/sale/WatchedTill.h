#pragma once

#include <map>

#include "TillFixture.h"
#include "base/Gbk.h"
#include "base/Text.h"
#include "saleslib/Tenders.h"

/// A till that is watched while it works: after each row of steps it tells everything that changed
/// on the screen, in the books and at the devices, and nothing else.
///
/// The steps are words. A key is its name (F4, Up); goods are rung by name (water, crate, several,
/// balloon, apples); "menu-…" is an entry of the menu, "click" a click on the list, "StockRule=1"
/// sets a parameter, "…" behind a text types it, and any other text is typed with Enter behind it.
/// ":" and texts with commas behind a word answer what is asked then, "_" in them is a blank; "@"
/// and a number choose from what is offered. F1 is answered in the settlement dialog: "现金20" or
/// "优惠2" types that figure, "储值卡" pays with the member's card, a number alone confirms that
/// cash, and without any of them the amount due is confirmed.
class WatchedTill : public TillFixture {
 protected:
  WatchedTill() {
    pos.gPosSet.CVProt = "COM1";
    open();
    after("");
  }

  /// Opens the screen anew, with the settings as they are now.
  void reopen() {
    press(kEsc);
    open();
    after("");
  }
  /// "steps → changes", a line each; what is indented further belongs to the line above. Each may
  /// have steps that are done before and behind it.
  void expect(const QString& transcript, const char* before = "", const char* behind = "") {
    const QString joined = QString(transcript).replace("\n    ", " ");
    for (const QString& line : joined.split('\n', Qt::SkipEmptyParts)) {
      const QStringList parts = line.trimmed().split("→");
      if (parts.size() < 2) continue;
      after(before);
      EXPECT_EQ(after(parts[0]), parts[1].trimmed().toStdString()) << line.toStdString();
      after(behind);
    }
  }
  std::string after(const QString& steps) {
    for (const QString& word : steps.split(' ', Qt::SkipEmptyParts)) work(word);
    return changes();
  }
  /// What the line printer's port was given since it was last asked for.
  std::string paper() {
    const std::string pulse("\x1B\x70\x00\x3C\xFF\r\n", 7);
    const std::string printed = replaced(fileBytes(folder.file("lpt1")), pulse, "<drawer>\r\n");
    std::filesystem::remove(folder.file("lpt1"));
    return replaced(gbk::decode(printed), "\r\n", " / ");
  }

  void work(QString word) {
    if (word.contains('=')) {
      return setParameter(qPrintable(word.section('=', 0, 0)), qPrintable(word.section('=', 1)));
    }
    till.choice = word.contains('@') ? word.section('@', 1).toInt() : -1;
    word = word.section('@', 0, 0);
    const bool isAnswered = word.contains(':');
    till.answers = isAnswered ? word.section(':', 1).replace('_', ' ').split(',') : QStringList();
    word = word.section(':', 0, 0);
    till.pay = [this](Settlement& settlement) { pay(settlement); };
    static const std::map<QString, int> keys = {
        {"Enter", kEnter}, {"Esc", kEsc}, {"Left", kLeft}, {"Up", kUp}, {"Right", kRight},
        {"Down", kDown},   {"F1", kF1},   {"F2", kF2},     {"F4", kF4}, {"F5", kF5},
        {"F6", kF6},       {"F10", 121},  {"F12", kF12}};
    static const std::map<QString, const char*> goods = {{"water", kWater},
                                                         {"crate", kCrate},
                                                         {"several", kDouble},
                                                         {"balloon", kNoPrice},
                                                         {"apples", kApples}};
    if (keys.contains(word)) return press(keys.at(word));
    if (goods.contains(word)) return enter(goods.at(word));
    if (word == "click") return session.listClicked();
    if (word.startsWith("menu-")) return session.menu(word.mid(5));
    word.endsWith(u'…') ? type(word.chopped(1)) : enter(word);
  }

 private:
  void pay(Settlement& settlement) const {
    if (till.answers.isEmpty()) return settlement.confirmCash(settlement.cashText());
    for (const QString& typed : till.answers) {
      const auto* kind = std::ranges::find_if(
          tenderKinds(), [&](const TenderKind& each) { return typed.startsWith(each.name); });
      if (kind == tenderKinds().end()) {
        settlement.confirmCash(typed);
      } else if (kind->tender == Tender::kStoredCard) {
        if (settlement.payByCard("8001", "Pw1") == CardOutcome::kDone) settlement.sayCardPaid();
      } else {
        const QString figure = typed.mid(QString(kind->name).size());
        EXPECT_EQ(settlement.figureChanged(kind->tender, figure), figure);
      }
    }
  }

  /// What there is, by what it is called when it is gone: rows without code, origin, unit and item
  /// code; bills; their lines; stock; cards. The frame only where it is not on the entry row's
  /// code.
  std::vector<std::pair<std::string, std::string>> facts() {
    static constexpr const char* kColumns[] = {"序号", "条码", "", "", "数量", "折扣"};
    std::vector<std::pair<std::string, std::string>> all;
    for (std::size_t i = 0; i < till.rows.size(); ++i) {
      std::string cells;
      for (int column = 0; column <= BillRow::kStock; ++column) {
        const std::string& cell = till.rows[i][static_cast<std::size_t>(column)];
        if (column != BillRow::kCode && !cell.empty()) cells += (cells.empty() ? "" : " ") + cell;
      }
      all.emplace_back("行" + std::to_string(i + 1), cells);
    }
    const auto [row, column] = till.framed;
    const bool isEntry = row + 1 == static_cast<int>(till.rows.size()) &&
                         column == BillRow::kNumber && till.lastColumn == BillRow::kCode;
    EXPECT_TRUE(isEntry || column == till.lastColumn);
    all.emplace_back("框", isEntry ? "" : "@" + std::to_string(row + 1) + kColumns[column]);
    all.emplace_back("输入", "[" + till.text.toStdString() + "]");
    all.emplace_back("标题", till.title1);
    all.emplace_back("上单", till.title3);
    all.emplace_back("状态", till.status);
    all.emplace_back("会员", till.memberInfo);
    all.emplace_back("结束", till.ended ? "结束" : "");
    all.emplace_back("离开", session.left() ? "离开" : "");
    const auto list = [&](const std::string& name, const char* query) {
      const Recordset found = pos.gConn->Open(query);
      for (std::size_t i = 0; i < found.count(); ++i) {
        all.emplace_back(name + found.row(i).text("k"), found.row(i).text("v"));
      }
    };
    list("库存", "select spbm as k, spbm || ':' || quantity as v from stock order by spbm");
    list("单",
         "select id as k, '单' || id || ':' || state || paid || ' ' || amount || ' 收' || cash ||"
         " ' ' || bank_card || ' ' || phone_pay || ' ' || card_pay || ' 惠' || favorable || ' 员'"
         " || member_id as v from sell order by id");
    list("目",
         "select id as k, sellId || ':' || bm || 'x' || amount || '=' || money as v"
         " from sellProducts order by id");
    list("卡",
         "select bh as k, '卡' || bh || ':' || card || ' ' || total_spent || ' ' || points as v"
         " from member");
    return all;
  }

  /// What is said so often, each with a short form that stands for nothing else.
  static std::string shortened(std::string text) {
    static constexpr std::pair<const char*, const char*> kWords[] = {
        {"   收银员：张三", "…"},
        {"件商品，原价合计", "件/"},
        {"   合计", "/"},
        {"00 0 收0 0 0 0 惠0 员0", "空"},
        {"会员卡输入会员卡号或电话：", "卡号？"},
        {"\x1Bs1\x1BQA", "^价"},
        {"\x1Bs2\x1BQA", "^计"},
        {"\x1Bs3\x1BQA", "^收"},
        {"\x1Bs4\x1BQA", "^找"},
        {"\n", "/"},
        {"\r", " "}};
    for (const auto& [word, brief] : kWords) text = replaced(text, word, brief);
    return text;
  }

  std::string changes() {
    std::string all;
    const auto tell = [&all](const std::string& text) {
      if (!text.empty()) all += (all.empty() ? "" : " | ") + text;
    };
    const auto before = std::exchange(seen_, {});
    for (auto& [name, text] : facts()) {
      const auto old = before.find(name);
      if (old == before.end() ? !text.empty() : old->second != text) {
        tell(text.empty() ? "-" + name : text);
      }
      seen_.emplace(name, std::move(text));
    }
    for (const auto& [name, text] : before) {
      if (!seen_.contains(name) && !text.empty()) tell("-" + name);
    }
    if (!till.offered.isEmpty()) tell("选：" + till.offered.join("、").toStdString());
    till.offered.clear();
    tell(replaced(till.said(), folder.path().string(), "~"));
    tell(std::exchange(ports.shown, {}));
    if (const std::string printed = paper(); !printed.empty()) tell("印：" + printed);
    if (!ports.pages.empty()) tell("页：" + std::to_string(ports.pages.size()));
    ports.pages.clear();
    return QString::fromStdString(shortened(all)).simplified().toStdString();
  }

  std::map<std::string, std::string> seen_;
};
