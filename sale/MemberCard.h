#pragma once

#include <QCoreApplication>
#include <memory>
#include <string>

#include "sale/SalePart.h"

class ClsMember;
class ClsMemberSvc;

/// The member card of the open bill.
class MemberCard : private SalePart {
  Q_DECLARE_TR_FUNCTIONS(MemberCard)

 public:
  MemberCard(const SalePart& part, const ClsMemberSvc& members)
      : SalePart(part), members_(members) {}

  /// Asks for a card or telephone number and attaches that member to the bill, before its first
  /// item only. No answer, or one that finds no usable card, leaves the bill without a member.
  void AttachMember();
  /// Makes the bill's member, or nobody, the one whose prices and points count, with the
  /// information line. Information that cannot be read is reported; the member counts all the same.
  void show(std::shared_ptr<ClsMember> member);

 private:
  std::shared_ptr<ClsMember> find(const std::string& number);
  std::shared_ptr<ClsMember> chooseByPhone(const std::string& phone);

  const ClsMemberSvc& members_;
};
