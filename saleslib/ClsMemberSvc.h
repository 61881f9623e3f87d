#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "saleslib/ClsMember.h"
#include "saleslib/Export.h"

class Connection;

/// Looks members up.
class TESSALY_API ClsMemberSvc {
 public:
  void Conn(Connection& connection);
  /// A new, empty member, who joins at the time of that clock when stored.
  std::shared_ptr<ClsMember> NewMember(const Clock& clock) const;
  /// Takes note of a member that was just stored. Nothing is kept here: the next look-up reads it.
  void AddMember(const ClsMember& member);
  /// The member with that typed or swiped card number (see memberNumbers); else the member with
  /// that telephone number when there is just one; else none. An empty number finds nobody.
  std::shared_ptr<ClsMember> GetMember(std::string_view number) const;
  /// All members with that typed telephone number, in the order of their card numbers.
  std::vector<std::shared_ptr<ClsMember>> GetMembersByPhone(std::string_view phone) const;
  /// The member that a bill keeps by id; none when there is no such member.
  std::shared_ptr<ClsMember> GetMemberById(std::int32_t id) const;

 private:
  Connection* connection_ = nullptr;
};
