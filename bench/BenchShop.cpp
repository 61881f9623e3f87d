#include "bench/BenchShop.h"

#include <filesystem>
#include <stdexcept>

#include "checkout/Settlement.h"
#include "store/Transaction.h"

namespace {

std::string padded(int number, int digits) {
  const std::string text = std::to_string(number);
  return std::string(static_cast<std::size_t>(digits) - text.size(), '0') + text;
}

}  // namespace

std::string BenchShop::barcode(int item) {
  return "69" + padded(item, 11);
}
std::string BenchShop::itemCode(int item) {
  return "G" + padded(item, 8);
}

void BenchShop::makeDataFile(const std::filesystem::path& file, int goods) {
  const auto shop = createDataFile({file, kBuiltInPassword});
  Transaction making(*shop);
  for (int item = 0; item < goods; ++item) {
    shop->run(
        "insert into tmda (sptm, ggxh, spbm, spmc, spcd, jldw, xsdj, pfj, zk, dwbl, zhjj,"
        " splbmc) values (?, ?, ?, '矿泉水 550ml', '广东', '瓶', 2.5, 2.3, 1, 1, 1.2, '饮料')",
        barcode(item), "GX" + std::to_string(item), itemCode(item));
    shop->run("insert into stock (spbm, quantity) values (?, 1000000)", itemCode(item));
  }
  making.commit();
}

BenchShop::BenchShop(const std::filesystem::path& folder, int goods) {
  std::filesystem::create_directories(folder / "data");
  makeDataFile(folder / "data" / "POS.mdb", goods);
  pos_ = std::make_unique<posMod>(folder);
  if (const std::string fault = pos_->OpenDataStore(); !fault.empty()) {
    throw std::runtime_error(fault);
  }
  pos_->start();
  ClsOperator cashier;
  cashier.Init(*pos_->gConn, 1);
  pos_->gOperator = std::make_shared<ClsOperator>(cashier);
  SaleScreen& screen = *this;
  session_ = std::make_unique<SaleSession>(*pos_, screen, SaleSession::Openers());
  if (!session_->open()) throw std::runtime_error("the session did not open");
}

void BenchShop::enter(const std::string& code) {
  session_->state.clearOnKey = false;
  input_ = QString::fromStdString(code);
  if (!session_->key(pos_->gKeyBoard.mEnter)) throw std::runtime_error("Enter did nothing");
}

void BenchShop::settle() {
  (void)session_->key(pos_->gKeyBoard.mF1);
}

bool BenchShop::settle(Settlement& settlement) {
  settlement.begin();
  settlement.confirmCash(settlement.cashText());
  return settlement.settled();
}

void BenchShop::ShowMessage(const QString& text) {
  throw std::runtime_error(text.toStdString());
}
void BenchShop::messageBox(const QString& text, const QString&) {
  ShowMessage(text);
}
void BenchShop::endProgram() {
  throw std::runtime_error("the till ended");
}
