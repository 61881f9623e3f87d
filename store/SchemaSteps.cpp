#include "store/Schema.h"
#include "store/SchemaTexts.h"
#include "store/StaffCardStep.h"

namespace {

// Marks of the top-ups: complete, when the card's balance was written too, and reported, when a
// cashier was told that it was not. Those of older files count as complete.
const char* const kSecondStep = R"(
alter table cardStored add column complete integer not null default 0;
alter table cardStored add column reported integer not null default 0;
update cardStored set complete = 1;
create index cardStored_incomplete on cardStored (id) where complete = 0;  -- at each opening
)";

// Payment by telephone, and the code of the payer's slip, by which the query finds the bill.
const char* const kThirdStep = R"(
alter table sell add column phone_pay currency not null default 0;
alter table sell add column phone_slip text collate nocase;
create index sell_phone_slip on sell (phone_slip) where phone_slip is not null;
)";

// What other tills sold to members and gave points for comes down, too: a till that passed over it
// compares everything once.
const char* const kMemberSumsStep = "delete from down_place;";
// When the shop's server last answered: what was before begins its days now.
const char* const kContactStep = R"(
alter table link add column contact datetime;  -- within ten minutes; by this machine's clock
update link set contact = strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime');
)";

}  // namespace

const std::vector<std::string>& schemaSteps() {
  static const std::vector<std::string> steps = {
      kFirstTables,    kSecondStep,     kThirdStep,  kGoodsTables, kStaffCardStep,
      kJournalTable,   kShiftTables,    kLinkTable,  kCardTables,  kDownTables,
      kShopBillTables, kMemberSumsStep, kContactStep};
  return steps;
}
