#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What the owner carries from the server to a till that is to join: twenty signs of Crockford's
/// base 32, of which two are the till's number and eighteen (90 bits) are drawn at random.
struct JoinCode {
  int till = 0;
  std::string secret;  ///< all twenty signs: the till's first password

  static JoinCode draw(int till);
  /// As people type it: with or without "-" and blanks, in either case, O for 0, I and L for 1.
  static std::optional<JoinCode> parse(std::string_view typed);
  /// In groups of five, divided by "-".
  std::string shown() const;
};

/// A password of 256 bits that nobody types.
std::string drawPassword();
