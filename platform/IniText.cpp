#include "platform/IniText.h"

#include <algorithm>

#include "base/Gbk.h"
#include "base/Text.h"

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char kBlanks[] = " \t\r\n";

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

bool isHeader(std::string_view line) {
  return withoutBlanks(line).starts_with('[');
}

/// The bytes before "=" of a key's line; nothing for a comment, a header or any other line. No byte
/// of a Chinese character in GBK looks like "=" or ";".
std::optional<std::string_view> keyOf(std::string_view line) {
  const std::size_t equals = line.find('=');
  const std::string_view text = withoutBlanks(line);
  if (equals == std::string_view::npos || text.starts_with(';') || isHeader(line)) return {};
  return withoutBlanks(line.substr(0, equals));
}

bool isQuoted(std::string_view text) {
  return text.size() >= 2 && text.front() == text.back() &&
         (text.front() == '"' || text.front() == '\'');
}

std::string asOneLine(std::string_view value) {
  std::string line(value);
  const auto endsLine = [](char c) { return c == '\r' || c == '\n' || c == '\0'; };
  std::replace_if(line.begin(), line.end(), endsLine, ' ');
  const bool losesItsEnds = trimmed(line) != line || isQuoted(line);
  return losesItsEnds ? '"' + line + '"' : line;
}

std::vector<std::string> splitKeepingEnds(std::string_view bytes) {
  std::vector<std::string> lines;
  while (!bytes.empty()) {
    const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    lines.emplace_back(bytes.substr(0, length));
    bytes.remove_prefix(length);
  }
  return lines;
}

}  // namespace

IniText::IniText(std::string_view bytes) : isUtf8_(bytes.starts_with(kByteOrderMark)) {
  if (isUtf8_) bytes.remove_prefix(kByteOrderMark.size());
  lines_ = splitKeepingEnds(bytes);
  const bool endsWithLfAlone =
      !lines_.empty() && lines_.front().ends_with('\n') && !lines_.front().ends_with("\r\n");
  if (endsWithLfAlone) lineEnd_ = "\n";
}

std::optional<std::string> IniText::value(std::string_view section, std::string_view key) const {
  const auto lines = findSection(section);
  if (!lines) return {};
  const auto found = findKey(*lines, key);
  if (!found) return {};
  const std::string_view line = lines_[*found];
  std::string text = trimmed(decoded(line.substr(line.find('=') + 1)));
  if (isQuoted(text)) text = text.substr(1, text.size() - 2);
  std::erase(text, '\0');
  return text;
}

void IniText::setValue(std::string_view section, std::string_view key, std::string_view value) {
  const std::string stored = encoded(asOneLine(value));
  const std::string newLine = encoded(key) + "=" + stored + lineEnd_;
  if (!lines_.empty() && !lines_.back().ends_with('\n')) lines_.back() += lineEnd_;

  const auto lines = findSection(section);
  if (!lines) {
    lines_.push_back("[" + encoded(section) + "]" + lineEnd_);
    lines_.push_back(newLine);
  } else if (const auto found = findKey(*lines, key)) {
    std::string& line = lines_[*found];
    const std::size_t afterEquals = line.find('=') + 1;
    const std::size_t begin = std::min(line.find_first_not_of(" \t", afterEquals), line.size());
    const std::size_t end = line.ends_with("\r\n") ? line.size() - 2 : line.size() - 1;
    line.replace(begin, end - begin, stored);
  } else {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(placeForNewKey(*lines)), newLine);
  }
}

std::string IniText::bytes() const {
  std::string all(isUtf8_ ? kByteOrderMark : "");
  for (const std::string& line : lines_) all += line;
  return all;
}

std::optional<IniText::Lines> IniText::findSection(std::string_view section) const {
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (!isHeader(lines_[i])) continue;
    // Decoded first: "]" is also the second byte of some Chinese characters.
    const std::string header = trimmed(decoded(lines_[i]));
    const std::size_t end = header.find(']');
    if (end == std::string::npos) continue;
    if (!equalIgnoringCase(trimmed(header.substr(1, end - 1)), section)) continue;
    const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(i) + 1;
    const auto next = std::find_if(first, lines_.end(), isHeader);
    return Lines{i + 1, static_cast<std::size_t>(next - lines_.begin())};
  }
  return {};
}

std::optional<std::size_t> IniText::findKey(Lines lines, std::string_view key) const {
  for (std::size_t i = lines.begin; i < lines.end; ++i) {
    const auto name = keyOf(lines_[i]);
    if (name && equalIgnoringCase(decoded(*name), key)) return i;
  }
  return {};
}

/// Behind the section's last key: what follows it (blank lines, comments) mostly introduces the
/// next section.
std::size_t IniText::placeForNewKey(Lines lines) const {
  for (std::size_t i = lines.end; i > lines.begin; --i) {
    if (keyOf(lines_[i - 1])) return i;
  }
  return lines.begin;
}

std::string IniText::decoded(std::string_view bytes) const {
  return isUtf8_ ? std::string(bytes) : gbk::decode(bytes);
}

std::string IniText::encoded(std::string_view utf8) const {
  return isUtf8_ ? std::string(utf8) : gbk::encode(utf8);
}
