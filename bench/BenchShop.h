#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "app/posMod.h"
#include "bench/ShopFile.h"
#include "sale/SaleSession.h"

/// The process-wide objects of a till in that folder on that day, with the cashier logged in.
std::unique_ptr<posMod> openTill(const std::filesystem::path& folder,
                                 const Date& day = plusDays(shop_file::kBusyDay, 1));

/// A till without a window: what the cashier's key presses cause, and nothing of what the screen
/// draws.
class BenchShop : public SaleScreen {
 public:
  explicit BenchShop(const std::filesystem::path& folder);

  posMod& pos() { return *pos_; }
  const Sale& sale() const { return session_->sale(); }

  /// Types a code and presses Enter.
  void enter(const std::string& code);
  /// Makes the last line's quantity a half.
  void lowerQuantity();
  /// Takes the last line off the bill.
  void deleteLine();
  /// Attaches a member to the bill.
  void attach(int memberId);
  /// Presses the settle key; payment is confirmed with the amount due in cash.
  void settle();

 private:
  void show(const SalePicture&) override {}
  void ShowMessage(const QString& text) override;
  void messageBox(const QString& text, const QString& title) override;
  Permit leave(const Deed& deed) override { return std::make_shared<const Grant>(Grant{deed}); }
  bool askYesNo(const QString&, const QString&, bool yesPreselected) override {
    return yesPreselected;
  }
  QString prompt(const QString&, const QString&) override { return member_; }
  int choose(int count, const std::function<QString(int)>& caption) override;
  std::int32_t chooseHeldBill(const std::vector<std::shared_ptr<ClsSell>>&) override { return 0; }
  bool settle(Settlement& settlement) override;
  void endProgram() override;

  QString member_;  ///< typed when a member is asked for
  std::unique_ptr<posMod> pos_;
  std::unique_ptr<SaleSession> session_;
};
