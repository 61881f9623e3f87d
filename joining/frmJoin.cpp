#include "joining/frmJoin.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "base/Failure.h"
#include "platform/QtText.h"
#include "shell/FramedFields.h"
#include "shell/Modal.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace {

constexpr int kFieldWidth = 440;  // pixels: a code, or two addresses

QString standingText(const posMod& pos) {
  const std::optional<ShopLink> link = shopLink(*pos.gConn);
  if (!link) return frmJoin::tr("请在服务器上用 tilladmin shop add-till 要加入码。");
  return frmJoin::tr("已经加入，机号 %1，服务器 %2。").arg(link->till).arg(qtText(link->host));
}

}  // namespace

frmJoin::frmJoin(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      txtServer_(field("txtServer")),
      txtCode_(field("txtCode")),
      cmdOk_(button("cmdOk", tr("加入(&J)"))),
      cmdCancel_(button("cmdCancel", tr("取消"))),
      lblState_(label("lblState", standingText(pos))) {
  setObjectName("frmJoin");
  setWindowTitle(tr("加入店铺"));
  txtServer_->setPlaceholderText(tr("名称或地址，和证书上一样"));
  txtCode_->setPlaceholderText("XXXXX-XXXXX-XXXXX-XXXXX");
  lblState_->setWordWrap(true);
  auto* below = new QVBoxLayout;
  below->addWidget(lblState_);
  below->addLayout(buttonRow({cmdOk_, cmdCancel_}));
  layOutFramedFields(*this, label("lblTitle", tr("加 入 店 铺")),
                     {{label("lblServer", tr("服务器：")), txtServer_},
                      {label("lblCode", tr("加入码：")), txtCode_}},
                     below);
  txtServer_->setMinimumWidth(kFieldWidth);
  connect(cmdOk_, &QPushButton::clicked, this, &frmJoin::join);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  enterLeads(txtServer_, txtCode_);
  onEnter(txtCode_, [this] { join(); });
}

void frmJoin::join() {
  if (work_.isRunning()) return;
  work(true);
  const QString refused = refusal();
  work(false);
  if (!refused.isEmpty()) {
    messageBox(this, refused, windowTitle(), BoxIcon::kExclamation);
    return focusWhole(txtCode_);
  }
  messageBox(this, standingText(pos_), windowTitle(), BoxIcon::kInformation);
  accept();
}

void frmJoin::work(bool begins) {
  for (QWidget* control : std::initializer_list<QWidget*>{txtServer_, txtCode_, cmdOk_, cmdCancel_})
    control->setEnabled(!begins);
  lblState_->setText(begins ? tr("正在加入……") : standingText(pos_));
}

// The server may be silent for seconds, and a file with many cards has many passwords to hash: both
// in a thread, with a connection of its own.
QString frmJoin::refusal() {
  const JoinRequest request{.host = txtServer_->text().trimmed().toStdString(),
                            .code = txtCode_->text().toStdString()};
  const ConnectionUser user{.number = [who = pos_.gOperator->Id()] { return who; },
                            .clock = pos_.clock};
  try {
    requireJoinable(*pos_.gConn);
    work_.run(
        [&](const auto&) {
          const JoinedShop joined = joinAtServer(request);
          const std::unique_ptr<Connection> file = openDataFile(pos_.gConn->source());
          file->setUser(user);
          joinShop(*file, joined.link, joined.highestBill);
        },
        [](double) {});
    pos_.startShop();
    return {};
  } catch (const Failure& failure) {
    return qtText(failure.what());
  }
}

// What the server has done by then would be forgotten.
void frmJoin::reject() {
  if (!work_.isRunning()) QDialog::reject();
}
