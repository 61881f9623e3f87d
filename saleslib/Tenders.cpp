#include "saleslib/Tenders.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSysParam.h"

namespace {

constexpr std::size_t kLongestSlip = 64;

std::string withoutControls(const std::string& text) {
  std::string kept;
  for (std::size_t at = 0; at < text.size();) {
    const std::string character = text.substr(at, text[at] == '\xC2' ? 2 : 1);
    if (!hasControlCharacter(character)) kept += character;
    at += character.size();
  }
  return kept;
}

}  // namespace

const std::array<TenderKind, kTenders>& tenderKinds() {
  using enum TenderKind::Form;
  static constexpr std::array<TenderKind, kTenders> kKinds = {{
      {Tender::kCash, Words::mark("现金"), "cash", kReceived},
      {Tender::kBankCard, Words::mark("银行卡"), "bank_card", kReceived},
      {Tender::kPhone, Words::mark("扫码"), "phone_pay", kReceived, "PhonePay",
       Words::mark("付款码")},
      {Tender::kStoredCard, Words::mark("储值卡"), "card_pay", kCharged},
      {Tender::kFavorable, Words::mark("优惠"), "favorable", kGranted},
  }};
  return kKinds;
}

const TenderKind& tenderKind(Tender tender) {
  const TenderKind& kind = tenderKinds().at(static_cast<std::size_t>(tender));
  ensure(kind.tender == tender, "the kinds of payment stand in the order of their names");
  return kind;
}

std::vector<const TenderKind*> tendersOf(const ClsSell& bill, const ClsSysParam& rules) {
  std::vector<const TenderKind*> kinds;
  for (const TenderKind& kind : tenderKinds()) {
    if (rules.Takes(kind) || !bill.Tendered(kind.tender).isZero()) kinds.push_back(&kind);
  }
  return kinds;
}

std::vector<const TenderKind*> moneyTendersOf(const ClsSell& bill, const ClsSysParam& rules) {
  std::vector<const TenderKind*> kinds = tendersOf(bill, rules);
  std::erase_if(kinds, [](auto* kind) { return kind->form == TenderKind::Form::kGranted; });
  return kinds;
}

std::vector<const TenderKind*> optionalTenders(const ClsSysParam& rules) {
  std::vector<const TenderKind*> kinds;
  for (const TenderKind& kind : tenderKinds()) {
    if (kind.parameter && rules.Takes(kind)) kinds.push_back(&kind);
  }
  return kinds;
}

std::string slipCode(std::string_view typed) {
  return trimmed(firstCharacters(trimmed(withoutControls(halfWidth(typed))), kLongestSlip));
}
