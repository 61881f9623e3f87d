#include "shell/Style.h"

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QFont>
#include <QStyleFactory>
#include <cmath>

#include "base/Failure.h"
#include "platform/QtText.h"

namespace {

constexpr int kPointSize = 14;

QString styleSheet() {
  QFile file(":/shell/style.qss");
  ensure(file.open(QIODevice::ReadOnly), "the style sheet is built into the program");
  return qtText(file.readAll());
}

/// One colour channel as the eye weighs it (sRGB, IEC 61966-2-1).
double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

}  // namespace

void applyStyle(QApplication& application) {
  application.setStyle(QStyleFactory::create("Fusion"));
  QFont font;
  font.setFamilies({"Noto Sans CJK SC", "Source Han Sans SC", "WenQuanYi Micro Hei",
                    "Microsoft YaHei", "SimSun", "sans-serif"});
  font.setPointSize(kPointSize);
  application.setFont(font);
  application.setStyleSheet(styleSheet());
}

QColor settingColour(int bgr) {
  return QColor(bgr & 0xff, bgr >> 8 & 0xff, bgr >> 16 & 0xff);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

// The luminance at which the contrast ratios against black and against white are equal (WCAG 2).
QColor legibleOn(const QColor& background) {
  return luminance(background) > 0.179 ? QColor(Qt::black) : QColor(Qt::white);
}
