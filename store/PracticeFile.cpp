#include "store/PracticeFile.h"

#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

namespace {

// What is missing here is found beside.
constexpr const char* kGoodsAway = R"(
drop table tmda_fragments;
drop table spda_fragments;
drop view tmda_indexed;
drop view spda_indexed;
drop table tmda_written;
drop table spda_written;
drop table tmda;
drop table spda;
drop table SP_LB;
)";

constexpr const char* kBeginning = R"(
insert into main.sys_param select * from shop.sys_param where name <> 'Journal';
insert into main.operators select * from shop.operators;
insert into main.operator_rights select * from shop.operator_rights;
insert into main.operator_cards select * from shop.operator_cards;
insert into main.member select * from shop.member;
insert into main.stock select * from shop.stock;
)";

}  // namespace

std::unique_ptr<Connection> practiceDataFile(const Connection& shop,
                                             const std::filesystem::path& folder) {
  auto practice = namelessDataFile({folder / "practice", shop.source().password});
  practice->runScript(kGoodsAway);
  practice->readBeside(shop.source());
  Transaction filling(*practice);
  practice->runScript(kBeginning);
  filling.commit();
  return practice;
}
