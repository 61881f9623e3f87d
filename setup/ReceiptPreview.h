#pragma once

#include <QWidget>
#include <map>
#include <memory>
#include <string>

#include "app/ClsPosSet.h"
#include "base/DateTime.h"
#include "platform/PageDocument.h"

class Connection;

/// A sample sale's receipt as the chosen printer would print it; the page printer's where none is
/// chosen, which has every text. The sale is rung in a data file that nobody keeps.
class ReceiptPreview : public QWidget {
  Q_OBJECT

 public:
  explicit ReceiptPreview(Clock clock);
  ~ReceiptPreview() override;

  using Parameters = std::map<std::string, std::string, std::less<>>;
  /// Parameters that cannot be so are left out.
  void show(const Parameters& parameters, const ClsPosSet& till, const std::string& cashier);
  const PageDocument& document() const { return document_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Clock clock_;
  std::unique_ptr<Connection> scratch_;
  PageDocument document_;
  int paperModel_ = 1;
};
