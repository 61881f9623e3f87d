#include "saleslib/ClsMember.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/CardPassword.h"
#include "saleslib/Fields.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "saleslib/PasswordHash.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kLongestText = 100;

/// What a shop's other tills check the card's password against; empty at a till of its own.
std::string hashOf(Connection& connection, std::int32_t id) {
  Rows row = connection.query("select password from member where id = ?", id);
  return row.next() && shopLink(connection) && isHash(row.text("password")) ? row.text("password")
                                                                            : "";
}

}  // namespace

void ClsMember::Init(Connection& connection, std::int32_t id, Clock clock) {
  *this = ClsMember();
  if (id != 0) {
    Rows rows = connection.query("select * from member where id = ?", id);
    if (rows.next()) *this = fromRow(connection, rows);
  }
  connection_ = &connection;
  clock_ = std::move(clock);
}

ClsMember ClsMember::fromRow(Connection& connection, const Row& row) {
  ClsMember member;
  member.connection_ = &connection;
  member.id_ = whole32(row, "id");
  member.inserted_ = kFromFile;
  member.bh_ = row.text("bh");
  member.name_ = row.text("name");
  member.sex_ = row.text("sex");
  member.age_ = whole16(row, "age");
  member.phone_ = row.text("phone");
  member.address_ = row.text("address");
  member.other_ = row.text("other");
  member.enabled_ = row.whole("enabled").value_or(1) != 0;
  member.totalSpent_ = money(row, "total_spent");
  member.points_ = whole16(row, "points");
  member.discount_ = row.number("discount");
  member.joined_ = row.dateTime("join_date").value_or(DateTime());
  return member;
}

bool ClsMember::Save() {
  ensure(connection_ != nullptr, "a member is bound before it is stored");
  try {
    errText_ = refusal();
    if (!errText_.empty()) return false;
    Transaction saving(*connection_);
    const bool isNew = Id() == 0;
    isNew ? insert() : update();
    Journal(*connection_)
        .note(isNew ? EntryKind::kMemberAdded : EntryKind::kMemberChanged, bh_, [&] {
          nlohmann::json body = {{"member", memberRecord(*connection_, id_)}};
          if (const std::string hash = hashOf(*connection_, id_); !hash.empty())
            body["secret"] = hash;
          return body;
        });
    saving.commit();
  } catch (const StoreError& error) {
    errText_ = error.what();
    return false;
  }
  birthday_.markWritten(*connection_);
  balance_.markWritten(*connection_);
  password_.markWritten(*connection_);
  newTotal_.markWritten(*connection_);
  newPoints_.markWritten(*connection_);
  edited_ = false;
  return true;
}

bool ClsMember::Update() {
  ensure(Id() != 0, "only a loaded member is updated");
  return Save();
}

std::string ClsMember::refusal() const {
  if (Id() != 0 && !edited_) return {};
  if (bh_.empty()) return Words::tr("请输入会员编号！");
  if (name_.empty()) return Words::tr("请输入会员姓名！");
  if (std::string text = refusedText(); !text.empty()) return text;
  if (age_ < 0) return Words::tr("年龄不能是负数！");
  if (discount_ && !(*discount_ >= 0 && std::isfinite(*discount_)))
    return Words::tr("折扣不能是负数！");
  if (balance_.value && *balance_.value < Currency()) return Words::tr("储值卡余额不能是负数！");
  Rows rows = connection_->query("select id from member where bh = ?", bh_);
  if (rows.next() && whole32(rows, "id") != Id()) return Words::tr("会员编号 %1 已经存在！", bh_);
  return {};
}

std::string ClsMember::refusedText() const {
  const std::pair<const char*, const std::string*> texts[] = {
      {Words::mark("会员编号"), &bh_},      {Words::mark("会员姓名"), &name_},
      {Words::mark("性别"), &sex_},         {Words::mark("电话"), &phone_},
      {Words::mark("联系地址"), &address_}, {Words::mark("备注"), &other_},
  };
  for (const auto& [title, text] : texts) {
    if (characters(*text) > kLongestText)
      return Words::tr("%1不能超过100个字符！", Words::tr(title));
    if (hasControlCharacter(*text)) return Words::tr("%1含有无法保存的字符！", Words::tr(title));
  }
  const std::string& password = password_.value.value_or(std::string());
  if (characters(password) > kLongestText) return Words::tr("储值卡密码不能超过100个字符！");
  if (hasControlCharacter(password)) return Words::tr("储值卡密码含有无法保存的字符！");
  return {};
}

void ClsMember::insert() {
  joined_ = clock_();
  const std::optional<std::int64_t> key = connection_->insert(
      "insert into member (bh, name, sex, age, phone, address, other, enabled, total_spent, points,"
      " discount, birthday, card, password, join_date)"
      " values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
      bh_, name_, sex_, age_, phone_, address_, other_, enabled_, totalSpent_, points_, discount_,
      birthday_.value, balance_.value.value_or(Currency()),
      keptCardPassword(*connection_, password_.value.value_or(std::string())), joined_);
  id_ = key32(key.value());
  inserted_ = connection_->writeMark();
}

void ClsMember::update() {
  std::optional<std::string> password = password_.unwritten(*connection_);
  if (password) password = keptCardPassword(*connection_, *password);
  const std::int64_t changed = connection_->run(
      "update member set bh = ?, name = ?, sex = ?, age = ?, phone = ?, address = ?, other = ?,"
      " enabled = ?, total_spent = coalesce(?, total_spent), points = coalesce(?, points),"
      " discount = ?, birthday = coalesce(?, birthday),"
      " card = coalesce(?, card), password = coalesce(?, password) where id = ?",
      bh_, name_, sex_, age_, phone_, address_, other_, enabled_, newTotal_.unwritten(*connection_),
      newPoints_.unwritten(*connection_), discount_, birthday_.unwritten(*connection_),
      balance_.unwritten(*connection_), password, id_);
  if (changed == 0) throw StoreError(Words::tr("会员 %1 已被删除，没有保存！", bh_));
}

template <class T>
std::optional<T> ClsMember::WriteOnly<T>::unwritten(const Connection& connection) const {
  return connection.stands(written) ? std::nullopt : value;
}

// A mark that still stands is kept: were this Save taken back, the value must not be written again
// over a balance that has moved on since.
template <class T>
void ClsMember::WriteOnly<T>::markWritten(Connection& connection) {
  if (!connection.stands(written)) written = connection.writeMark();
}

std::int32_t ClsMember::Id() const {
  return id_ != 0 && connection_->stands(inserted_) ? id_ : 0;
}
