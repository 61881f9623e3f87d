#include "saleslib/Permission.h"

#include <utility>

#include "base/Failure.h"
#include "saleslib/ClsSysParam.h"

Permit Permission::may(const ClsOperator& person, const Deed& deed, const Ask& ask) {
  std::erase_if(given_, [](const auto& each) { return each.expired(); });
  if (Permit before = given(deed)) return before;
  if (!rules_.Approval() || person.Rights().Allow(deed)) return give({deed});
  std::shared_ptr<const ClsOperator> approver = ask(deed);
  if (!approver) return {};
  ensure(approver->Rights().Allow(deed), "a deed is approved by somebody who has the right");
  return give({deed, std::move(approver)});
}

Permit Permission::give(Grant grant) {
  auto permit = std::make_shared<const Grant>(std::move(grant));
  given_.push_back(permit);
  return permit;
}

Permit Permission::given(const Deed& deed) const {
  for (const auto& each : given_) {
    Permit permit = each.lock();
    if (permit && permit->deed.right == deed.right && deed.size <= permit->deed.size) return permit;
  }
  return {};
}

std::shared_ptr<const ClsOperator> Permission::approver() const {
  for (auto each = given_.rbegin(); each != given_.rend(); ++each) {
    if (const Permit permit = each->lock()) return permit->approver;
  }
  return {};
}
