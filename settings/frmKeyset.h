#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "shell/KeyDrivenDialog.h"

class KeyBoard;
class KeyBox;
class QAbstractItemView;
class QLabel;
class QLineEdit;
class QModelIndex;
class QuickKeyModel;
class QWidget;
class posMod;

/// Which key does what on the sale screen, and the quick keys. "确定" puts both into the keyboard
/// map and saves it, and they count from the next key press on; "取消" changes nothing. Two
/// functions may share a key; they are shown in red while they do.
class frmKeyset : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmKeyset(posMod& pos, QWidget* parent = nullptr);

 protected:
  bool handleKey(const QObject* watched, const QKeyEvent& event) override;

 private:
  static constexpr std::size_t kFunctions = 15;

  QWidget* functionGrid();
  QWidget* quickKeyFrame();
  QWidget* quickKeyFields();
  QWidget* quickKeyList();
  QWidget* buttons();
  std::vector<QWidget*> controls() const;

  /// Marks in red, and says, what shares a key.
  void showSharedKeys();
  /// The typed quick key's code, if code and item are there; else focuses what is missing.
  std::optional<int> typedQuickKey();
  void add();
  void change();
  void remove();
  void nextQuickKey();
  void take(const QModelIndex& row);
  /// Puts the boxes into a keyboard map; a box that holds no number keeps the old key.
  void putInto(KeyBoard& keys) const;
  void save();

  posMod& pos_;
  std::array<KeyBox*, kFunctions> boxes_{};
  QLabel* lblShared_ = nullptr;
  QLabel* lblNote_ = nullptr;
  QuickKeyModel* quickKeys_ = nullptr;
  QAbstractItemView* ListView1_ = nullptr;
  KeyBox* txtKeyInt_ = nullptr;
  QLineEdit* txtKeyBm_ = nullptr;
};
