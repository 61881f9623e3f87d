#pragma once

#include <QCoreApplication>
#include <memory>
#include <string>

class Checkout;
class ClsMember;
class posMod;
class SaleScreen;
struct SaleState;

/// The member card of the open bill.
class MemberCard {
  Q_DECLARE_TR_FUNCTIONS(MemberCard)

 public:
  MemberCard(posMod& pos, SaleState& state, SaleScreen& screen, Checkout& checkout);

  /// Asks for a card or telephone number and attaches that member to the bill, before its first
  /// item only. No answer, or one that finds no usable card, leaves the bill without a member.
  void AttachMember();
  /// Makes that member, or nobody, the one whose prices and points count, and shows the information
  /// line. Information that cannot be read is reported; the member counts all the same.
  void show(std::shared_ptr<ClsMember> member);

 private:
  std::shared_ptr<ClsMember> find(const std::string& number);
  std::shared_ptr<ClsMember> chooseByPhone(const std::string& phone);

  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  Checkout& checkout_;
};
