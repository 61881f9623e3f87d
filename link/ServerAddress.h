#pragma once

#include <string>
#include <utility>
#include <vector>

/// Where a server is and as whom to log in there.
struct ServerAddress {
  /// A name or an address; a folder for a server on this machine. Several, with "," in between, of
  /// which only one takes what is written: a standby does not.
  std::string host;
  int port = 5432;
  std::string database, user, password;
  std::string authority = {};  ///< the certificate that vouches for the server, in PEM (RFC 7468)

  /// Whether it is reached without a network.
  bool isHere() const { return host.starts_with("/"); }
};

/// What a connection is made with: names and values as the client library has them.
using LineParameters = std::vector<std::pair<std::string, std::string>>;

/// For a till: over a network only encrypted (TLS 1.3), to a server that the authority vouches for
/// under the name it is called by, and that knows the password too. `authorityFile` holds the
/// address's authority.
LineParameters tillParameters(const ServerAddress& address, const std::string& authorityFile);
/// For joining, when no authority is known yet: a server that knows the password, whose channel is
/// its own (RFC 5802, channel binding), is the one that gave it out.
LineParameters joiningParameters(const ServerAddress& address);
