#include "driver/TillDriver.h"
#include "kill/Day.h"

constexpr int kShift = 4;  // place in the further menu

void Day::beginShift() {
  const Currency cashFloat = Currency::fromYuan(below(300));
  play("'" + generalNumber(cashFloat));
  confirm("opening a shift", "frmSell", [cashFloat](Ledger& ledger) {
    const std::string name = "shift " + std::to_string(++ledger.shifts);
    ledger.money[name + ", float"] = cashFloat;
    ledger.numbers[name + ", counts"] = ledger.numbers[name + ", closed"] = 0;
    ledger.numbers["entries of shift_opened " + std::to_string(ledger.shifts)] = 1;
  });
  newBill();
}

void Day::closeShift() {
  play(toFurther(kShift) + ">frmShift @cmdClose Return >dlgCashCount '" +
       std::to_string(below(20)) + " @cmdOk");
  const auto more = [](const char* figure, const char* kind) {
    return [figure, kind](Ledger& ledger) {
      const std::string number = std::to_string(ledger.shifts);
      ++ledger.numbers["shift " + number + figure];
      ++ledger.numbers[std::string("entries of ") + kind + " " + number];
    };
  };
  confirm("counting the drawer", "dlgShiftSheet", more(", counts", "shift_counted"));
  confirm("closing a shift", "frmShift", more(", closed", "shift_closed"));
  play("Esc >frmMenu Return >dlgCash");
  beginShift();
}

// A bill's number is never used twice, not even that of a bill that was voided.
