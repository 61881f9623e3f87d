#pragma once

#include <string>
#include <string_view>

#include "base/Currency.h"
#include "base/DateTime.h"

/// The only way values enter a literal statement. Whatever was typed stays a value.

/// 'text' with every quote doubled.
std::string quotedText(std::string_view text);
/// '%fragment%', the fragment's own % and _ staying wildcards, as the cashier typed them.
std::string likeFragment(std::string_view fragment);
/// Plain decimal form.
std::string literal(double number);
std::string literal(Currency money);
std::string literal(std::int64_t number);
/// #date and time#
std::string literal(const DateTime& time);
