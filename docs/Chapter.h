#pragma once

#include <filesystem>
#include <string>

/// A chapter of the handbook with its placeholders filled from the program, and its command lines
/// of tilladmin looked at. A placeholder is one of
///
///     {{keys}}  {{parameters}}  {{commands}}     the tables
///     {{key 挂单}}  {{menu 退货}}  {{parameter PhonePay}}
///     {{picture basket|一张单据}}                a picture of the demo day, and its caption
///
/// Throws Failure with the file's line where it says something that the program has not.
std::string filledChapter(const std::filesystem::path& chapter,
                          const std::filesystem::path& pictures);
