#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

/// The entries of a popup menu, one under the other, one of them highlighted. It paints only the
/// entries that show and scrolls with the highlight. Lengths are in pixels.
class MenuEntries : public QWidget {
  Q_OBJECT

 public:
  struct Entry {
    QString title;  ///< null: asked for when it is needed
    QString key;
    Qt::Alignment alignment;
    int space;    ///< margin around the entry and gap to the next one
    int top = 0;  ///< from the first entry's top margin; known after measure()
  };
  struct Colours {
    QColor back, fore, activeBack, activeFore;
  };

  explicit MenuEntries(QWidget* parent = nullptr);

  void add(Entry entry);
  /// Whom to ask for the title of an entry without one. There is nothing to measure then: the menu
  /// takes all the width it may.
  void setLateTitles(std::function<QString(int index)> titles);
  int count() const { return static_cast<int>(entries_.size()); }
  const Entry& entry(int index) const { return entries_[static_cast<std::size_t>(index)]; }
  const QString& title(int index);

  /// Places all entries in today's font and gives the size at which everything would show, the
  /// width at most `widest`.
  QSize measure(int widest);

  int current() const { return current_; }
  /// Moves the highlight and scrolls it into view.
  void setCurrent(int index);
  void scrollToCurrent();

  Colours colours;

 signals:
  void pointedAt(int index);  ///< the pointer moved over an entry
  void clicked(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void sayCurrent();
  int captionWidth(const QString& title, int widest);
  int contentHeight() const;
  int indexBelow(int y) const;
  int indexAt(QPoint position) const;
  void scrollTo(int offset);
  void paintEntry(QPainter& painter, int index);
  void paintScrollMark(QPainter& painter) const;

  std::vector<Entry> entries_;
  std::function<QString(int index)> lateTitles_;
  QHash<QChar, double> advances_;  ///< width of each character met, in today's font
  int rowHeight_ = 0;
  int current_ = 0;
  int offset_ = 0;  ///< how far the content is scrolled up
  int pressed_ = -1;
  QPoint pointer_;  ///< where the pointer rested last, on the screen
};
