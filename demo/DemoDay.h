#pragma once

#include <filesystem>
#include <string>

#include "demo/CheatEvidence.h"
#include "demo/DemoGoods.h"
#include "demo/DisplayTube.h"

class TillDriver;
class TillMenus;

/// A day at the till of the demo shop, worked by keyboard: the morning with a line printer, the
/// afternoon and the evening with the page printer, and the late shifts with the line printer
/// again. Leaves pictures, receipts and display texts in the out folder.
class DemoDay {
 public:
  /// `program` is an installed program folder with a demo shop's data file; a copy of it in `out`
  /// is worked on, so that every day starts alike. The screens speak `language`, as the settings
  /// have it.
  DemoDay(const std::filesystem::path& program, const std::filesystem::path& out,
          const std::string& language);

  void morning();
  void afternoon();
  void evening();
  /// In which two cashiers cheat.
  void lateShifts();
  /// Receipts of the line printer and texts of the display, as people read them.
  void writeTranscripts() const;
  std::string printed() const;

  /// The program folder that is worked on.
  const std::filesystem::path& shop() const { return shop_; }
  std::filesystem::path dataFile() const { return shop_ / "data" / "POS.mdb"; }
  const Cheats& cheats() const { return cheats_; }
  int settledBills() const { return settledBills_; }

 private:
  bool isEnglish() const { return language_ == "en"; }
  void setUpDevices(const char* receiptPort);
  void logIn(TillDriver& till, const char* number, const char* password);
  void basketOfEveryKind(TillDriver& till);
  void approvals(TillDriver& till);
  void newMember(TillDriver& till);
  void topUp(TillDriver& till);
  void memberBill(TillDriver& till);
  void suspendedBill(TillDriver& till);
  void colours(TillDriver& till);
  void takeBack(TillDriver& till);
  void beginShift(TillDriver& till);
  void handOver(TillDriver& till);
  void closeShift(TillDriver& till);
  void practise(TillDriver& till);
  void query(TillDriver& till);
  void openWithoutSale(TillDriver& till);
  void refundToOneself(TillDriver& till, TillMenus& menus);
  void cancelWhatWasPaid(TillDriver& till);
  void closeCounted(TillDriver& till, Currency over, const char* picture);
  void exportList(TillDriver& till, const char* file);
  void shot(TillDriver& till, const char* name);

  std::filesystem::path out_;
  std::filesystem::path shop_;
  std::string language_;
  DemoGoods goods_;
  DisplayTube display_;
  Cheats cheats_;
  int shots_ = 0;
  int settledBills_ = 0;
};
