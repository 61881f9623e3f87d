#include "saleslib/ClsMemberSvc.h"

#include <string>

#include "base/Failure.h"
#include "saleslib/CardNumber.h"
#include "store/Connection.h"

void ClsMemberSvc::Conn(Connection& connection) {
  connection_ = &connection;
}

std::shared_ptr<ClsMember> ClsMemberSvc::NewMember(const Clock& clock) const {
  ensure(connection_ != nullptr, "ClsMemberSvc is bound before it is used");
  auto member = std::make_shared<ClsMember>();
  member->Init(*connection_, 0, clock);
  return member;
}

void ClsMemberSvc::AddMember(const ClsMember&) {}

std::shared_ptr<ClsMember> ClsMemberSvc::GetMember(std::string_view number) const {
  ensure(connection_ != nullptr, "ClsMemberSvc is bound before it is used");
  if (memberNumber(number).empty()) return nullptr;
  for (const std::string& each : memberNumbers(number)) {
    Rows rows = connection_->query("select * from member where bh = ?", each);
    if (rows.next()) return std::make_shared<ClsMember>(ClsMember::fromRow(*connection_, rows));
  }
  const auto withPhone = GetMembersByPhone(number);
  return withPhone.size() == 1 ? withPhone.front() : nullptr;
}

std::vector<std::shared_ptr<ClsMember>> ClsMemberSvc::GetMembersByPhone(
    std::string_view phone) const {
  ensure(connection_ != nullptr, "ClsMemberSvc is bound before it is used");
  std::vector<std::shared_ptr<ClsMember>> members;
  const std::string number = memberNumber(phone);
  if (number.empty()) return members;
  Rows rows = connection_->query("select * from member where phone = ? order by bh", number);
  while (rows.next()) {
    members.push_back(std::make_shared<ClsMember>(ClsMember::fromRow(*connection_, rows)));
  }
  return members;
}

std::shared_ptr<ClsMember> ClsMemberSvc::GetMemberById(std::int32_t id) const {
  ensure(connection_ != nullptr, "ClsMemberSvc is bound before it is used");
  Rows rows = connection_->query("select * from member where id = ?", id);
  if (!rows.next()) return nullptr;
  return std::make_shared<ClsMember>(ClsMember::fromRow(*connection_, rows));
}
