#include "checkout/PageReceipt.h"

#include <algorithm>
#include <optional>

#include "base/Gbk.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "checkout/ReceiptLines.h"
#include "devices/Paper.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/ClsSysParam.h"

// Papers are Chinese whatever the screens speak; the options are stored as they stand.

namespace {

// Places on the paper, in twips.
constexpr int kLeft = 1;
constexpr int kPrice = 1200;
constexpr int kQuantity = 1900;
constexpr int kAmount = 2300;
constexpr int kRowPitch = 400;
constexpr int kFirstLine = 300;  ///< of a row's block
constexpr int kSecondLine = 480;
constexpr int kFooterGap = 50;  ///< between footer lines, beside their height

/// The heading stands above the first row's block, which starts at 700.
constexpr int kShopNameY = 0;
constexpr int kTitlesY = 440;

/// How a row of the bill is laid out, by the setting's text.
struct RowLayout {
  std::string firstText;
  bool figuresBelow;
};

std::optional<RowLayout> rowLayout(const std::string& setting, const ClsSellItem& line) {
  const std::string& name = line.SpName();
  if (setting == "打印商品前7个字简称") return RowLayout{firstCharacters(name, 7) + " ", false};
  if (setting == "打印编码+商品全称") {
    return RowLayout{line.SpCode() + "  " + name, true};
  }
  if (setting == "打印商品全称") return RowLayout{name + " ", true};
  if (setting == "打印商品全称+折扣") {
    return RowLayout{name + " 折扣:" + generalNumber(line.Discount()), true};
  }
  return std::nullopt;
}

/// Of the figure in fen that the line shows.
std::string oneDecimalOf(Currency figure) {
  return oneDecimal(roundedToFen(figure));
}

/// One receipt while it is being laid out from top to bottom.
class Layout {
 public:
  Layout(const ClsSell& bill, const ReceiptFacts& facts, const ClsSysParam& shop,
         const Paper& paper)
      : bill_(bill), facts_(facts), shop_(shop), paper_(paper), width_(columns(paper.line)) {
    page_.name = std::to_string(bill_.BillNo());
  }

  PageDocument receipt(const std::string& rowOption) {
    heading();
    rows(rowOption);
    totals();
    payment();
    shopTexts();
    return std::move(page_);
  }

 private:
  static std::size_t columns(int width) { return static_cast<std::size_t>(width); }

  void place(int x, int y, std::string text) {
    bottom_ = std::max(bottom_, y + page_.lineHeight());
    page_.texts.push_back({x, y, std::move(text)});
  }

  void placeSum(int y, const std::string& quantity, std::string amount) {
    place(kQuantity, y, quantity);
    place(kAmount, y, std::move(amount));
  }

  void footer(std::string text) { place(kLeft, bottom_ + kFooterGap, std::move(text)); }

  void heading() {
    place(kLeft, kShopNameY, gbk::centred(shop_.ShopName(), width_));
    place(kLeft, kTitlesY, titles());
  }

  /// Over the rows' columns, which are as wide as narrow paper on either paper.
  std::string titles() const {
    if (paper_.name >= 26) return "商品名称          单价 数量 金额";
    return gbk::centred("商品名称", columns(paper_.name - 4)) + "单价 数量 金额";
  }

  void rows(const std::string& option) {
    int block = 0;
    for (const auto& line : bill_.Items()) {
      const auto layout = rowLayout(option, *line);
      if (!layout) return;
      block += kRowPitch;
      const int figures = block + (layout->figuresBelow ? kSecondLine : kFirstLine);
      place(kLeft, block + kFirstLine, layout->firstText);
      place(kPrice, figures, " " + oneDecimalOf(line->Price()) + " ");
      placeSum(figures, generalNumber(line->Quantity()), oneDecimalOf(line->Money()) + " ");
    }
  }

  void totals() {
    footer("总金额合计");
    const int y = page_.texts.back().y;
    placeSum(y, generalNumber(bill_.Quantity()), oneDecimal(bill_.Amount()));
    if (facts_.member) memberLine(*facts_.member);
    footer("流水号:" + std::to_string(bill_.BillNo()) + " 收银员:" + facts_.cashier);
    footer(gbk::centred(generalText(bill_.SellTime()), width_, '-'));
  }

  /// Continues the total's line: no gap in between.
  void memberLine(const ClsMember& member) {
    place(kLeft, bottom_,
          "会员卡:" + member.Bh() + " 累计积分" + twoDecimals(Currency::fromYuan(member.Points())));
  }

  void payment() {
    const Currency original = Currency::fromYuan(facts_.originalTotal);
    footer("原价总计" + oneDecimal(original) + "   应收" + oneDecimal(bill_.Amount()));
    if (bill_.Favorable() > Currency()) {
      footer("优惠后实收" + oneDecimal(bill_.Amount() - bill_.Favorable()));
    }
    std::string paid;
    for (const TenderKind& kind : tenderKinds()) {
      const Currency figure = bill_.Tendered(kind.tender);
      if (kind.form != TenderKind::Form::kReceived || figure.isZero()) continue;
      paid += (paid.empty() ? "" : " ") + (kind.name + oneDecimal(figure));
    }
    if (!paid.empty()) footer(paid);
    footer(closingFigures(original - bill_.Amount() + bill_.Favorable()));
  }

  std::string closingFigures(Currency saved) const {
    if (bill_.CardPay() > Currency()) {
      return "储值卡号" + bill_.CardNo() + "刷卡金额" + oneDecimal(bill_.CardPay()) + "\"优惠" +
             oneDecimal(saved);
    }
    return "总优惠" + oneDecimal(saved) + " 找零" + oneDecimal(bill_.Change());
  }

  void shopTexts() {
    for (const std::string& text :
         {shop_.ReceiptText2(), shop_.ReceiptText1(), std::string(), shop_.ReceiptText3(),
          shop_.ReceiptText4(), shop_.ReceiptText5(), shop_.ReceiptText6()}) {
      footer(text);
    }
  }

  const ClsSell& bill_;
  const ReceiptFacts& facts_;
  const ClsSysParam& shop_;
  const Paper& paper_;
  std::size_t width_;
  PageDocument page_;
  int bottom_ = 0;  ///< below everything placed so far
};

}  // namespace

PageDocument pageReceipt(const ClsSell& bill, const ReceiptFacts& facts, const ClsSysParam& shop,
                         const Paper& paper, const std::string& rowOption) {
  return Layout(bill, facts, shop, paper).receipt(rowOption);
}
