#include "setup/ReceiptPreview.h"

#include <QPainter>
#include <filesystem>

#include "base/Failure.h"
#include "checkout/AmountDue.h"
#include "checkout/PageReceipt.h"
#include "checkout/ReceiptLines.h"
#include "devices/Paper.h"
#include "platform/PagePrinter.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/ClsSysParam.h"
#include "shop/Operators.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

namespace {

struct SampleLine {
  const char* name;
  std::int64_t fen;
  double quantity;
};

// Their sum is rounded by every rule.
// untranslated: a receipt is Chinese
constexpr SampleLine kLines[] = {{"鲜牛奶", 468, 2}, {"散装大米", 599, 1.25}};
constexpr int kPaidYuan = 20;
// untranslated: a setting as it is stored
constexpr const char* kUsualLayout = "打印商品前7个字简称";

ClsSell sampleSale(Connection& scratch, const ClsSysParam& shop, const Clock& clock) {
  ClsSell bill;
  ensure(bill.Open(scratch, 0, 1, clock), "the sample sale has its operator");
  for (const SampleLine& sample : kLines) {
    auto line = std::make_shared<ClsSellItem>();
    line->Init(scratch, bill.BillNo(), 0, clock);
    line->setSpName(sample.name);
    line->setPrice(Currency::fromScaled(sample.fen * 100));
    line->setQuantity(sample.quantity);
    bill.AddItem(std::move(line));
  }
  Currency due = bill.Amount();
  const std::string text = myCStr(due, shop);
  bill.setAmount(Currency::parse(text).value());
  bill.setCash(Currency::fromYuan(kPaidYuan));
  return bill;
}

/// Head to foot, as the line printer gets it.
PageDocument lineReceipt(const ClsSell& bill, const ReceiptFacts& facts, const ClsSysParam& shop,
                         const Paper& paper) {
  PageDocument page;
  int below = page.addLines(0, receiptHeading(shop, paper));
  for (const auto& line : bill.Items()) below = page.addLines(below, {receiptLine(*line, paper)});
  below = page.addLines(below, receiptTotals(bill, facts, shop, paper));
  page.addLines(below, receiptPayment(bill, facts, shop, paper));
  return page;
}

}  // namespace

ReceiptPreview::ReceiptPreview(Clock clock)
    : clock_(std::move(clock)), scratch_(scratchDataFile(std::filesystem::temp_directory_path())) {
  addOperator(*scratch_, {1, "1", "", {}});
  setObjectName("receiptPreview");
  setFixedSize(350, 450);
}

ReceiptPreview::~ReceiptPreview() = default;

void ReceiptPreview::show(const Parameters& parameters, const ClsPosSet& till,
                          const std::string& cashier) {
  const Transaction takenBack(*scratch_);  // so that the next sale has the same number
  ClsSysParam shop;
  shop.Conn(*scratch_);
  for (const auto& [name, value] : parameters) {
    if (ClsSysParam::refusal(name, value).empty()) static_cast<void>(shop.set(name, value));
  }
  const ClsSell bill = sampleSale(*scratch_, shop, clock_);
  const ReceiptFacts facts{cashier, nullptr, wholeHalfEven(bill.GoodsAmount())};
  paperModel_ = till.PModel;
  const Paper paper = Paper::ofModel(till.PModel);
  const bool isLine = !till.PPort.empty() && till.PPort != "USB";
  document_ = isLine ? lineReceipt(bill, facts, shop, paper)
                     : pageReceipt(bill, facts, shop, paper,
                                   till.printOption.empty() ? kUsualLayout : till.printOption);
  update();
}

void ReceiptPreview::paintEvent(QPaintEvent*) {
  constexpr double kTwipsPerMm = 1440 / 25.4;
  const Paper paper = Paper::ofModel(paperModel_);
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(rect(), Qt::white);
  painter.setPen(QColor(0xb8, 0xc2, 0xcc));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(Qt::black);
  const double scale = width() / (paper.widthMm * kTwipsPerMm);
  painter.scale(scale, scale);
  paintOnRoll(painter, document_, {paper.widthMm, paper.line});
}
