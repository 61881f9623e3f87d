#include "shop/SetupQuestion.h"

#include "base/Text.h"
#include "base/Words.h"

namespace {

using Answers = std::vector<SetupQuestion::Answer>;

const Answers kNoOrYes = {{"0", Words::mark("否")}, {"1", Words::mark("是")}};

// Whether a disk is mounted there is not asked: it may be in the safe.
std::string refusalOfFolder(const std::string& folder) {
  if (folder.empty() || (folder.starts_with('/') && !hasControlCharacter(folder))) return {};
  return Words::tr("请写文件夹的完整名字，从 / 开始，例如 /media/stick/till；没有就空着。");
}

}  // namespace

const std::vector<SetupQuestion>& setupQuestions() {
  static const std::vector<SetupQuestion> all = {
      {nullptr, "PhonePay", Words::mark("收手机扫码付款"), kNoOrYes, "1"},
      {nullptr, "CheckPayment", Words::mark("收款、价格、折扣像打错时先问一声"), kNoOrYes, "1"},
      {nullptr,
       "StockRule",
       Words::mark("库存不够时"),
       {{"0", Words::mark("照卖")}, {"1", Words::mark("不卖")}},
       "0"},
      {nullptr, "GoodsImport", Words::mark("收银台上可以导入商品表（能收银的人都可以）"), kNoOrYes,
       "1"},
      {nullptr, "OwnerReport", Words::mark("店主在收银台上看经营报表"), kNoOrYes, "1"},
      {nullptr, "Journal", Words::mark("记日志：谁在什么时候做了什么，谁也改不了"), kNoOrYes, "1"},
      {nullptr, "Approval", Words::mark("打折、删行、退货等要有权限，没有的请人授权"), kNoOrYes,
       "0"},
      {nullptr, "Shifts", Words::mark("按班收款：开班写备用金，结班清点钱箱"), kNoOrYes, "0"},
      {nullptr, "Practice", Words::mark("收银台上可以练习，不记账"), kNoOrYes, "1"},
      {nullptr, "BackupOnExit", Words::mark("退出程序时备份数据文件"), kNoOrYes, "1"},
      {"Till", "Backups", Words::mark("每天自动备份一次，留七天和四周"), kNoOrYes, "1"},
      {"Till",
       "BackupTo",
       Words::mark("备份再抄到哪个 U 盘或移动硬盘的文件夹（没有就空着）"),
       {},
       "",
       refusalOfFolder},
  };
  return all;
}
