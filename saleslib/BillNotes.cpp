#include "saleslib/BillNotes.h"

#include <nlohmann/json.hpp>

#include "base/NumberText.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/JournalRecords.h"

namespace {

using Json = nlohmann::json;

Json lineText(const ClsSellItem& line) {
  return {{"id", line.Id()},
          {"item", line.SpCode()},
          {"name", line.SpName()},
          {"quantity", generalNumber(line.Quantity())},
          {"price", generalNumber(line.Price())},
          {"discount", generalNumber(line.Discount())},
          {"money", generalNumber(line.Money())}};
}

Json change(const ClsSellItem& line, const std::string& from, const std::string& to) {
  return {{"line", lineText(line)}, {"from", from}, {"to", to}};
}

}  // namespace

void BillNotes::opened(const ClsSell& bill) const {
  journal_.note(EntryKind::kBillOpened, bill.BillNo(), [&] {
    return Json{{"cashier", bill.OperatorId()}};
  });
}

void BillNotes::rung(const ClsSellItem& line) const {
  if (!line.PriceTyped()) return;
  journal_.note(EntryKind::kPriceTyped, line.BillNo(), [&] {
    return Json{{"line", lineText(line)}};
  });
}

void BillNotes::corrected(const ClsSellItem& before, const ClsSellItem& after) const {
  if (after.Quantity() < before.Quantity()) {
    journal_.note(EntryKind::kQuantityLowered, after.BillNo(), [&] {
      return change(after, generalNumber(before.Quantity()), generalNumber(after.Quantity()));
    });
  }
  if (after.Discount() != before.Discount()) {
    journal_.note(EntryKind::kDiscountChanged, after.BillNo(), [&] {
      return change(after, generalNumber(before.Discount()), generalNumber(after.Discount()));
    });
  }
}

void BillNotes::deleted(const ClsSellItem& line) const {
  journal_.note(EntryKind::kLineDeleted, line.BillNo(), [&] {
    return Json{{"line", lineText(line)}};
  });
}

void BillNotes::left(EntryKind kind, const ClsSell& bill, const ClsSellItem* line) const {
  journal_.note(kind, bill.BillNo(), [&] {
    Json lines = Json::array();
    Currency sum;
    const auto add = [&](const ClsSellItem& each) {
      lines.push_back(lineText(each));
      sum += each.Money();
    };
    for (const auto& each : bill.Items()) add(*each);
    if (line != nullptr) add(*line);
    return Json{{"left", std::move(lines)}, {"sum", generalNumber(sum)}};
  });
}

void BillNotes::charged(const ClsSell& bill, const std::string& key) const {
  journal_.note(EntryKind::kCardCharged, bill.BillNo(), [&] {
    Json card = {{"number", bill.CardNo()}, {"by", generalNumber(-bill.CardPay())}};
    if (!key.empty()) card["key"] = key;
    return Json{{"card", std::move(card)}};
  });
}

void BillNotes::chargeVoided(const CardAuthority::Charge& charge) const {
  journal_.note(EntryKind::kChargeVoided, charge.bill, [&] {
    return Json{
        {"charge",
         {{"key", charge.key}, {"number", charge.card}, {"amount", generalNumber(charge.amount)}}}};
  });
}

void BillNotes::settled(EntryKind kind, const ClsSell& bill, const Credit& credit) const {
  journal_.note(kind, bill.BillNo(), [&] {
    Json body = billRecord(connection_, bill.BillNo());
    if (credit.memberId != 0) {
      body["credit"] = {{"member", credit.memberId},
                        {"spent", generalNumber(credit.spent)},
                        {"points", credit.points}};
    }
    return body;
  });
}
