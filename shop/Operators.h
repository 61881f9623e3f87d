#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "saleslib/ClsOperator.h"

class Connection;

/// A new operator as the owner names one.
struct NewOperator {
  std::int16_t number = 0;
  std::string name;
  std::string password;
  std::vector<std::string> rights;  ///< none is refused (refusalOfRight)
};

/// The word for all rights together, where rights are named one by one.
inline constexpr const char* kEveryRight = "all";
/// An empty text, or why that is neither a right (see parseRight) nor kEveryRight.
[[nodiscard]] std::string refusalOfRight(const std::string& text);
/// What the owner may be told of the rights: "sell（收银）、discount（打折和优惠，…）".
std::string rightsForPeople();
/// The rights that were named, each once; a right of several limits has the last one.
std::vector<std::string> rightsMeant(const std::vector<std::string>& named);
/// The till's rights among these, as they are stored, in the order in which people are told of
/// them.
std::vector<std::string> shownRights(const ClsRights& rights);

/// An empty text, or why nobody can have that name.
[[nodiscard]] std::string refusalOfName(const std::string& name);

/// Stores the operator with the rights, in one transaction; the code on receipts is the number.
/// Throws Refusal when the number is taken or the name is empty or longer than 255 characters.
void addOperator(Connection& connection, const NewOperator& wanted);
/// Throws Refusal when there is none of that number.
ClsOperator existingOperator(Connection& connection, std::int16_t number);
/// Gives rights and takes others away, as rightsMeant reads them, in one transaction; a
/// right that was there gets the limit that is given. Throws Refusal
/// when there is nobody of that number.
void changeRights(Connection& connection, std::int16_t number,
                  const std::vector<std::string>& given, const std::vector<std::string>& taken);
/// Throws Refusal while the operator has an open bill: nobody else could settle or void it.
void removeOperator(Connection& connection, std::int16_t number);
