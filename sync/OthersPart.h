#pragma once

#include <string>

class Connection;

/// What other tills did to this till's stock and cards. The server tells their part as a whole,
/// and the file keeps what it was told last: the difference is added to what the till has, so that
/// nothing is added twice and what the till itself does meanwhile stays. `table` is "stock" or
/// "card", `key` an item or a card's number. Inside a transaction. Throws StoreError.
void followOthers(Connection& connection, const std::string& table, const std::string& key,
                  double part);
/// A member who was just added has on the card what others loaded and charged.
void giveOthersPart(Connection& connection, const std::string& card);
