#include "goodsin/GoodsCompletion.h"

#include <utility>

#include "base/Failure.h"
#include "shop/GoodsStage.h"
#include "store/Connection.h"
#include "store/DataFile.h"

GoodsCompletion::GoodsCompletion(DataSource shop)
    : thread_([this, shop = std::move(shop)] {
        try {
          const auto connection = openDataFile(shop);
          finishGoods(*connection, WriteSlices::Company::kOthers,
                      [this](double) { return !stopped_; });
        } catch (const Failure&) {
          return;
        }
      }) {}

GoodsCompletion::~GoodsCompletion() {
  stopped_ = true;
  thread_.join();
}
