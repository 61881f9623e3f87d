#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "saleslib/ClsOperator.h"
#include "saleslib/Export.h"
#include "saleslib/Right.h"

class ClsSysParam;

/// Leave for one deed, given for as long as it lives.
struct Grant {
  Deed deed;
  /// Who approved it for the operator; none when his own right did, or the shop asks for none.
  std::shared_ptr<const ClsOperator> approver = {};
};
/// None: the deed may not be done.
using Permit = std::shared_ptr<const Grant>;

/// The one door for all that needs a right. Until the shop has it on (parameter Approval) everybody
/// may do everything. Whoever asks keeps the permit until the deed is done; meanwhile the same, or
/// less of it, is not asked for again.
class TESSALY_API Permission {
 public:
  /// The rules outlive it.
  explicit Permission(const ClsSysParam& rules) : rules_(rules) {}

  /// Asks the people at the till for somebody whose rights allow the deed; none when they give up.
  using Ask = std::function<std::shared_ptr<const ClsOperator>(const Deed& deed)>;
  /// Whether that operator may do that now: by his own rights, or because somebody approves it.
  [[nodiscard]] Permit may(const ClsOperator& person, const Deed& deed, const Ask& ask);
  /// Who approved what is being done now, of several deeds within each other the innermost one;
  /// none when nobody had to.
  std::shared_ptr<const ClsOperator> approver() const;

 private:
  Permit give(Grant grant);
  Permit given(const Deed& deed) const;

  const ClsSysParam& rules_;
  std::vector<std::weak_ptr<const Grant>> given_;
};
