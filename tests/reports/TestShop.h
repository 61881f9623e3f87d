#pragma once

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "app/posMod.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

/// A shop with an operator, two categories, three goods and printers that are files, at noon of
/// 2026-11-22.
class TestShop {
 public:
  TestShop() {
    namespace fs = std::filesystem;
    fs::create_directories(folder_.path() / "data");
    fs::create_directories(papers());
    std::ofstream(folder_.file("Config.ini"))
        << "[Ports]\nUSB=" << papers().string() << "\nLPT1=" << folder_.file("lpt1") << "\n";
    createDataFile({folder_.path() / "data/POS.mdb", kBuiltInPassword});
    pos_ = std::make_unique<posMod>(folder_.path(), [] {
      return DateTime{{2026, 11, 22}, 12, 0, 0};
    });
    if (!pos_->OpenDataStore().empty()) throw std::runtime_error("the shop does not open");
    pos_->start();
    pos_->gOperator = std::make_shared<ClsOperator>();
    pos_->gOperator->Init(*pos_->gConn, 7);
    pos_->gOperator->setName("张三");
    stockGoods();
  }

  posMod& pos() { return *pos_; }
  Connection& store() { return *pos_->gConn; }
  std::filesystem::path papers() const { return folder_.path() / "papers"; }
  /// Of each page printed, as its PDF has it.
  std::vector<long> paperWidthsMm() const {
    std::vector<long> widths;
    for (const auto& file : std::filesystem::directory_iterator(papers())) {
      const std::string pdf = bytes("papers/" + file.path().filename().string());
      const std::string box = "/MediaBox [0 0 ";
      widths.push_back(std::lround(std::stod(pdf.substr(pdf.find(box) + box.size())) / 72 * 25.4));
    }
    return widths;
  }
  std::string bytes(const std::string& name) const {
    std::ifstream file(folder_.file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  void sell(std::int32_t bill, const std::string& time, const std::string& code, double quantity,
            const char* price, const char* money, double discount = 1) {
    store().run(
        "insert into sellProducts (sellId, insert_Date, bm, name, unit, amount, price, discount,"
        " money, splbmc) select ?, ?, f_spbm, f_spmc, f_jldw, ?, ?, ?, ?, ? from spda where"
        " f_spbm = ?",
        bill, time, quantity, *Currency::parse(price), discount, *Currency::parse(money),
        code == "C3" ? "饮料" : "食品", code);
  }
  /// Lines from midnight on, one bill each.
  void sellMany(int lines) {
    Transaction all(store());
    for (int i = 1; i <= lines; ++i) sell(i, "2026-11-22 00:00:01", "A1", 1, "2.5", "2.5");
    all.commit();
  }
  void settle(int bill, const std::string& time, double quantity, const char* amount) {
    store().run(
        "insert into sell (id, sell_time, operator_id, state, quantity, amount) values"
        " (?, ?, 7, 1, ?, ?)",
        bill, time, quantity, *Currency::parse(amount));
  }

 private:
  void stockGoods() {
    store().runScript(R"(
      insert into SP_LB values (2, '饮料'), (1, '食品');
      insert into spda (f_spbm, f_spmc, f_sptm, f_Ggxh, f_jldw, f_splbmc) values
        ('A1', '康师傅红烧牛肉面', '690001', 'KSF', '包', '食品'),
        ('B2', '=1+1', '69000''2', 'KS-2', '', '食品'), ('C3', '矿泉水', '690003', 'KQS', '瓶', '食品');
    )");
  }

  TemporaryFolder folder_;
  std::unique_ptr<posMod> pos_;
};
