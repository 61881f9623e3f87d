#include "saleslib/ClsMember.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Failure.h"
#include "base/Text.h"
#include "saleslib/Fields.h"
#include "store/Connection.h"
#include "store/StoreError.h"

namespace {

constexpr std::size_t kLongestText = 100;

bool hasControlCharacter(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7f;
  });
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
    if (Id() == 0) {
      insert();
    } else {
      update();
    }
  } catch (const StoreError& error) {
    errText_ = error.what();
    return false;
  }
  const WriteMark mark = connection_->writeMark();
  birthday_.written = balance_.written = password_.written = mark;
  edited_ = false;
  return true;
}

bool ClsMember::Update() {
  ensure(Id() != 0, "only a loaded member is updated");
  return Save();
}

std::string ClsMember::refusal() const {
  if (Id() != 0 && !edited_) return {};
  if (bh_.empty()) return "请输入会员编号！";
  if (name_.empty()) return "请输入会员姓名！";
  if (std::string text = refusedText(); !text.empty()) return text;
  if (age_ < 0) return "年龄不能是负数！";
  if (discount_ && !(*discount_ >= 0 && std::isfinite(*discount_))) return "折扣不能是负数！";
  if (balance_.value && *balance_.value < Currency()) return "储值卡余额不能是负数！";
  Rows rows = connection_->query("select id from member where bh = ?", bh_);
  if (rows.next() && whole32(rows, "id") != Id()) return "会员编号 " + bh_ + " 已经存在！";
  return {};
}

std::string ClsMember::refusedText() const {
  const std::pair<const char*, const std::string*> texts[] = {
      {"会员编号", &bh_}, {"会员姓名", &name_},    {"性别", &sex_},
      {"电话", &phone_},  {"联系地址", &address_}, {"备注", &other_},
  };
  for (const auto& [title, text] : texts) {
    if (characters(*text) > kLongestText) return std::string(title) + "不能超过100个字符！";
    if (hasControlCharacter(*text)) return std::string(title) + "含有无法保存的字符！";
  }
  const std::string& password = password_.value.value_or(std::string());
  if (characters(password) > kLongestText) return "储值卡密码不能超过100个字符！";
  if (hasControlCharacter(password)) return "储值卡密码含有无法保存的字符！";
  return {};
}

void ClsMember::insert() {
  joined_ = clock_();
  connection_->run(
      "insert into member (bh, name, sex, age, phone, address, other, enabled, total_spent, points,"
      " discount, birthday, card, password, join_date)"
      " values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
      bh_, name_, sex_, age_, phone_, address_, other_, enabled_, totalSpent_, points_, discount_,
      birthday_.value, balance_.value.value_or(Currency()), password_.value.value_or(std::string()),
      joined_);
  id_ = key32(connection_->lastRowId());
  inserted_ = connection_->writeMark();
}

void ClsMember::update() {
  const std::int64_t changed = connection_->run(
      "update member set bh = ?, name = ?, sex = ?, age = ?, phone = ?, address = ?, other = ?,"
      " enabled = ?, total_spent = ?, points = ?, discount = ?, birthday = coalesce(?, birthday),"
      " card = coalesce(?, card), password = coalesce(?, password) where id = ?",
      bh_, name_, sex_, age_, phone_, address_, other_, enabled_, totalSpent_, points_, discount_,
      birthday_.unwritten(*connection_), balance_.unwritten(*connection_),
      password_.unwritten(*connection_), id_);
  if (changed == 0) throw StoreError("会员 " + bh_ + " 已被删除，没有保存！");
}

template <class T>
void ClsMember::WriteOnly<T>::set(T newValue) {
  value = std::move(newValue);
  written = kNotWritten;
}

template <class T>
std::optional<T> ClsMember::WriteOnly<T>::unwritten(const Connection& connection) const {
  return connection.stands(written) ? std::nullopt : value;
}

template <class T>
void ClsMember::edit(T& member, T value) {
  member = std::move(value);
  edited_ = true;
}

std::int32_t ClsMember::Id() const {
  return id_ != 0 && connection_->stands(inserted_) ? id_ : 0;
}
const std::string& ClsMember::Bh() const {
  return bh_;
}
void ClsMember::setBh(std::string bh) {
  edit(bh_, trimmed(bh));
}
const std::string& ClsMember::Name() const {
  return name_;
}
void ClsMember::setName(std::string name) {
  edit(name_, trimmed(name));
}
const std::string& ClsMember::Sex() const {
  return sex_;
}
void ClsMember::setSex(std::string sex) {
  edit(sex_, std::move(sex));
}
std::int16_t ClsMember::Age() const {
  return age_;
}
void ClsMember::setAge(std::int16_t age) {
  edit(age_, age);
}
const std::string& ClsMember::Phone() const {
  return phone_;
}
void ClsMember::setPhone(std::string phone) {
  edit(phone_, trimmed(phone));
}
const std::string& ClsMember::ErrText() const {
  return errText_;
}
std::int16_t ClsMember::Points() const {
  return points_;
}
void ClsMember::setPoints(std::int16_t points) {
  points_ = points;
}
Date ClsMember::JoinDate() const {
  return joined_.date;
}
const std::string& ClsMember::Other() const {
  return other_;
}
void ClsMember::setOther(std::string other) {
  edit(other_, std::move(other));
}
const std::string& ClsMember::Address() const {
  return address_;
}
void ClsMember::setAddress(std::string address) {
  edit(address_, std::move(address));
}
bool ClsMember::Enabled() const {
  return enabled_;
}
void ClsMember::setEnabled(bool enabled) {
  enabled_ = enabled;
}
Currency ClsMember::TotalSpent() const {
  return totalSpent_;
}
void ClsMember::setTotalSpent(Currency total) {
  totalSpent_ = total;
}
double ClsMember::Discount() const {
  return discount_.value_or(1.0);
}
void ClsMember::setDiscount(double factor) {
  edit(discount_, std::optional(factor));
}
void ClsMember::setBirthday(const Date& birthday) {
  birthday_.set(DateTime{birthday});
}
void ClsMember::setBalance(Currency balance) {
  balance_.set(balance);
  edited_ = true;
}
void ClsMember::setPassword(std::string password) {
  password_.set(std::move(password));
  edited_ = true;
}
