#pragma once

#include <QWidget>
#include <vector>

#include "app/ClsPosSet.h"
#include "base/DateTime.h"

class Ports;
class QComboBox;
class QGridLayout;

/// The lists with which the devices of a till are chosen, each with its caption and hint. A setting
/// that is none of a list's entries stays as it is until another entry is chosen.
class PosSetLists : public QWidget {
  Q_OBJECT

 public:
  explicit PosSetLists(const ClsPosSet& settings, QWidget* parent = nullptr);

  const std::vector<QComboBox*>& lists() const { return lists_; }
  /// The settings with everything that is chosen.
  ClsPosSet chosen() const;
  /// Tries the devices with what is chosen, and says what came of it.
  void test(const Ports& ports, const Clock& clock);

 private:
  /// One list and the setting behind it.
  struct Choice;
  static const std::vector<Choice>& choices();
  void addRow(QGridLayout& grid, const Choice& choice);

  ClsPosSet settings_;
  std::vector<QComboBox*> lists_;  ///< in the order of choices()
};
