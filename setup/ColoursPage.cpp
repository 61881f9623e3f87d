#include "setup/ColoursPage.h"

#include <QColor>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/Style.h"

namespace {

QString nameOf(int colour) {
  return settingColour(colour).name();
}

void paint(QWidget& widget, int background, int text) {
  widget.setStyleSheet(QString("background: %1; color: %2;").arg(nameOf(background), nameOf(text)));
}

}  // namespace

const std::array<Palette, 3>& palettes() {
  static const std::array<Palette, 3> all = {{
      {QT_TRANSLATE_NOOP("ColoursPage", "蓝底（常用）"),
       {0x804000, 0x000000, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFFFFFF}},
      {QT_TRANSLATE_NOOP("ColoursPage", "深灰底"),
       {0x302820, 0x000000, 0x40A0FF, 0x00FF00, 0x00FFFF, 0xFFFFFF}},
      {QT_TRANSLATE_NOOP("ColoursPage", "浅色底"),
       {0xF8F4F0, 0xFFFFFF, 0x0000A0, 0x006000, 0x800000, 0x201810}},
  }};
  return all;
}

void Palette::paint(ClsPosSet& till) const {
  int ClsPosSet::*const fields[] = {&ClsPosSet::C1, &ClsPosSet::C2, &ClsPosSet::C3,
                                    &ClsPosSet::C4, &ClsPosSet::C5, &ClsPosSet::C6};
  for (std::size_t i = 0; i < colours.size(); ++i) till.*fields[i] = colours[i];
}

ColoursPage::ColoursPage(SetupAnswers& answers) : SetupPage(answers) {
  QStringList names;
  for (const Palette& palette : palettes()) names += tr(palette.name);
  cobPalette_ = choice("cobPalette", tr("收银画面："), names);
  sample_ = new QFrame;
  auto* column = new QVBoxLayout(sample_);
  column->setContentsMargins(24, 20, 24, 20);
  const auto line = [&](const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    column->addWidget(label);
    return label;
  };
  heading_ = line(tr("大标题"), "lblHeading");
  second_ = line(tr("次行信息：流水号 1，收银员 1"), "lblSecond");
  column->addSpacing(60);
  sale_ = line(tr("应收 16.80　实收 20.00　找零 3.20"), "lblSale");
  member_ = line(tr("会员卡 880001　积分 320"), "lblMember");
  grid().addWidget(sample_, grid().rowCount(), 0, 1, 2);
  note(tr("以后可以在收银画面的功能菜单里更改每一种颜色。"));
  connect(cobPalette_, &QComboBox::currentIndexChanged, this, &ColoursPage::show);
  show();
}

void ColoursPage::show() {
  const auto& colours = palettes()[static_cast<std::size_t>(cobPalette_->currentIndex())].colours;
  paint(*sample_, colours[0], colours[5]);
  paint(*heading_, colours[0], colours[4]);
  paint(*second_, colours[0], colours[5]);
  paint(*sale_, colours[1], colours[2]);
  paint(*member_, colours[1], colours[3]);
}

QString ColoursPage::take() {
  palettes()[static_cast<std::size_t>(cobPalette_->currentIndex())].paint(answers_.till);
  return {};
}
