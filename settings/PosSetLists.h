#pragma once

#include <QWidget>
#include <string>
#include <variant>
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
  /// A list and the setting behind it.
  struct Choice {
    const char* caption;
    const char* list;
    std::vector<const char*> entries;  ///< as they are stored; shown in the screen's language
    const char* hint;
    std::variant<std::string ClsPosSet::*, int ClsPosSet::*> setting;  ///< the entry's text, or its
                                                                       ///< position
    int firstPosition = 0;  ///< what the first entry's position is stored as

    /// The entry that the settings have; -1 for what is none.
    int entryOf(const ClsPosSet& settings) const;
    void choose(ClsPosSet& settings, int entry) const;
  };
  static const std::vector<Choice>& choices();

  explicit PosSetLists(const ClsPosSet& settings, QWidget* parent = nullptr);

  const std::vector<QComboBox*>& lists() const { return lists_; }
  /// The settings with everything that is chosen.
  ClsPosSet chosen() const;
  /// Tries the devices with what is chosen, and says what came of it.
  void test(const Ports& ports, const Clock& clock);

 private:
  void addRow(QGridLayout& grid, const Choice& choice);

  ClsPosSet settings_;
  std::vector<QComboBox*> lists_;  ///< in the order of choices()
};
