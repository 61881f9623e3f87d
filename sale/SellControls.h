#pragma once

class BillView;
class ClsPosSet;
class FittedLabel;
class InputLine;
class KeyBoard;
class KeyHelp;
class QFrame;
class QLabel;
class QString;
class QWidget;

/// The controls of the sale screen: what they look like and where they are, at any size of the
/// screen from 1024 x 768 on. The input line lies in the list.
class SellControls {
 public:
  explicit SellControls(QWidget* screen);

  /// Gives them the six colours of the settings, the keys as they are mapped, and sizes and places
  /// for the size of the screen.
  void arrange(const ClsPosSet& settings, const KeyBoard& keys);
  /// The member's lines take room from the status line when there are any.
  void showMember(const QString& text);
  /// The headings at its sides make room for it.
  void showTime(const QString& text);

  FittedLabel* const title;
  FittedLabel* const title1;
  QLabel* const title2;
  FittedLabel* const title3;
  BillView* const lv;
  InputLine* const t;
  FittedLabel* const txtmoney;
  FittedLabel* const lblViewMember;
  QFrame* const frmBot;
  KeyHelp* const ViewF;

 private:
  void setSizes(int type);
  void layOut(int type);
  void layOutHeadings();
  void layOutStatus();

  QWidget* screen_;
};
