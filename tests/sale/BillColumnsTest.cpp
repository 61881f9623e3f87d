#include "sale/BillColumns.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QFontMetrics>

// On the narrowest screen. Figures come before names, but a name can always be told.
TEST(BillColumnsTest, FiguresTakeRoomFromNameAndOrigin) {
  constexpr int kRoom = 996;
  QFont font;
  font.setPixelSize(17);
  const QFontMetrics type(font);
  BillColumns columns;
  columns.setRoom(kRoom, type);
  const auto cut = [&](int column, const QString& figure) {
    static_cast<void>(columns.makeRoomFor(column, figure, type));
    int sum = 0;
    for (int each = 0; each < BillRow::kColumns; ++each) sum += columns.width(each);
    EXPECT_EQ(sum, kRoom);
    EXPECT_GT(columns.width(BillRow::kName), 4 * 17);
    return textWidth(type, figure) + 2 * columns.padding() > columns.width(column);
  };
  const int name = columns.width(BillRow::kName);
  EXPECT_FALSE(cut(BillRow::kPrice, "99.90"));
  EXPECT_EQ(columns.width(BillRow::kName), name) << "usual figures move nothing";
  EXPECT_FALSE(cut(BillRow::kPrice, "100000.00"));
  EXPECT_FALSE(cut(BillRow::kQuantity, "12345.678"));
  EXPECT_FALSE(cut(BillRow::kDiscount, "0.8755"));
  EXPECT_FALSE(cut(BillRow::kMoney, "1234567.80"));
  EXPECT_TRUE(cut(BillRow::kStock, "-123456789012345.678901")) << "this one is drawn smaller";
  EXPECT_TRUE(columns.forgetFigures());
  EXPECT_EQ(columns.width(BillRow::kName), name);
}
