#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "base/DateTime.h"
#include "saleslib/Export.h"

class Connection;

/// How a till belongs to a shop with a server: the row of the table `link`. A till of its own has
/// none, and then nothing here concerns it.
struct TESSALY_API ShopLink {
  int till = 0;      ///< 1 ... kMostTills
  int epoch = 0;     ///< which of the till's histories, as the server counts them
  std::string host;  ///< as link/ServerAddress.h has it
  int port = 0;
  std::string database;
  std::string password;   ///< of the till's role at the server
  std::string authority;  ///< the certificate that vouches for the server, in PEM (RFC 7468)
};

/// Numbers of bills carry the till, so that no two tills make the same ones: the till times this,
/// and a counter. The last till's still are numbers of 31 bits.
inline constexpr std::int64_t kNumbersPerTill = 10'000'000;
inline constexpr int kMostTills = 213;

/// Throws StoreError, as all of these.
TESSALY_API std::optional<ShopLink> shopLink(Connection& connection);

/// The till joins the shop, or joins it anew: its numbers become those of its till number, behind
/// `highestBill` that the server has of it, and the journal begins if there is none, since it is
/// what goes up. One transaction.
TESSALY_API void joinShop(Connection& connection, const ShopLink& link, std::int64_t highestBill);

/// The shop's server is found there from now on. Throws StoreError in a till that has not joined.
TESSALY_API void moveServer(Connection& connection, const std::string& host);

/// When the server last answered this till, by this machine's clock and within kBetweenContacts;
/// nothing where it never did. Whoever takes away what lies beside the data file does not change
/// it.
TESSALY_API std::optional<DateTime> lastContact(Connection& connection);
/// The server answers. Stored unless that was done less than kBetweenContacts ago.
TESSALY_API void noteContact(Connection& connection, const DateTime& now);
inline constexpr std::chrono::minutes kBetweenContacts{10};

/// The till's history became another one at the server. One transaction.
TESSALY_API void beginEpoch(Connection& connection, int epoch, std::int64_t highestBill);

/// In a till of a shop, leaves out as many numbers of bills as the till may have given out that its
/// file does not know of; in a till of its own nothing. For a file that was put back from a copy.
TESSALY_API void skipUnknownNumbers(Connection& connection);
