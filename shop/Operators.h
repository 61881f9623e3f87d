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
  std::vector<std::string> rights;  ///< of operatorRights()
};

/// The rights that the till asks for.
const std::vector<std::string>& operatorRights();

/// An empty text, or why nobody can have that name.
[[nodiscard]] std::string refusalOfName(const std::string& name);

/// Stores the operator with the rights, in one transaction; the code on receipts is the number.
/// Throws Refusal when the number is taken or the name is empty or longer than 255 characters.
void addOperator(Connection& connection, const NewOperator& wanted);
/// Throws Refusal when there is none of that number.
ClsOperator existingOperator(Connection& connection, std::int16_t number);
/// Gives rights and takes others away, both of operatorRights(); in one transaction. Throws Refusal
/// when there is nobody of that number.
void changeRights(Connection& connection, std::int16_t number,
                  const std::vector<std::string>& given, const std::vector<std::string>& taken);
/// Throws Refusal while the operator has an open bill: nobody else could settle or void it.
void removeOperator(Connection& connection, std::int16_t number);
