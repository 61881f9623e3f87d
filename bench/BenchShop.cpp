#include "bench/BenchShop.h"

#include <algorithm>
#include <stdexcept>

#include "checkout/Settlement.h"
#include "platform/QtText.h"

std::unique_ptr<posMod> openTill(const std::filesystem::path& folder, const Date& day) {
  const DateTime now{day, 9, 5, 3};
  auto pos = std::make_unique<posMod>(folder, [now] { return now; });
  if (const std::string fault = pos->OpenDataStore(); !fault.empty()) {
    throw std::runtime_error(fault);
  }
  pos->start();
  ClsOperator cashier;
  cashier.Init(*pos->gConn, shop_file::kCashier);
  pos->gOperator = std::make_shared<ClsOperator>(cashier);
  return pos;
}

BenchShop::BenchShop(const std::filesystem::path& folder) : pos_(openTill(folder)) {
  SaleScreen& screen = *this;
  session_ = std::make_unique<SaleSession>(*pos_, screen, SaleSession::Openers());
  if (!session_->open()) throw std::runtime_error("the session did not open");
}

void BenchShop::enter(const std::string& code) {
  session_->textComing({});
  if (!session_->key(pos_->gKeyBoard.mEnter, qtText(code)))
    throw std::runtime_error("Enter did nothing");
}

void BenchShop::lowerQuantity() {
  static_cast<void>(session_->key(pos_->gKeyBoard.mUp, {}));
  enter("0.5");
}

void BenchShop::deleteLine() {
  static_cast<void>(session_->key(pos_->gKeyBoard.mF4, {}));
}

void BenchShop::attach(int memberId) {
  ClsMember member;
  member.Init(*pos_->gConn, memberId);
  member_ = qtText(member.Bh());
  static_cast<void>(session_->key(pos_->gKeyBoard.mF2, {}));
}

void BenchShop::settle() {
  static_cast<void>(session_->key(pos_->gKeyBoard.mF1, {}));
}

bool BenchShop::settle(Settlement& settlement) {
  settlement.begin();
  settlement.confirmCash(settlement.cashText());
  return settlement.settled();
}

// As a menu does that shows its first page.
int BenchShop::choose(int count, const std::function<QString(int)>& caption) {
  constexpr int kPage = 10;
  for (int entry = 0; entry < std::min(count, kPage); ++entry) static_cast<void>(caption(entry));
  return 0;
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
