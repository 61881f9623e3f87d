#include "platform/IniText.h"

#include <QStringConverter>
#include <algorithm>

#include "base/Gbk.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "platform/QtText.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
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

/// Chinese characters have three bytes and more in UTF-8. Some texts of two bytes each are as valid
/// in GBK, where they are Chinese.
bool isChineseInUtf8(std::string_view bytes) {
  bool isChinese = false;
  while (!bytes.empty()) {
    const Utf8Character next = firstUtf8(bytes);
    if (next.broken) return false;
    isChinese = isChinese || next.length > 2;
    bytes.remove_prefix(next.length);
  }
  return isChinese;
}

std::string fromUtf16(std::string_view bytes, QStringConverter::Encoding order) {
  QStringDecoder decoder(order);
  const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return text.toStdString();
}

std::string toUtf16(std::string_view utf8, QStringConverter::Encoding order) {
  QStringEncoder encoder(order);
  const QByteArray bytes = encoder(qtText(utf8));
  return bytes.toStdString();
}

/// UTF-16 after its byte order mark. Broken, it would not be written back as it was.
bool isUtf16(std::string_view bytes, std::string_view mark, QStringConverter::Encoding order) {
  if (!bytes.starts_with(mark)) return false;
  const std::string_view text = bytes.substr(mark.size());
  return toUtf16(fromUtf16(text, order), order) == text;
}

}  // namespace

IniText::Encoding IniText::encodingOf(std::string_view bytes) {
  using enum Encoding;
  if (bytes.starts_with(kUtf8Mark)) return kMarkedUtf8;
  if (isUtf16(bytes, kLittleEndianMark, QStringConverter::Utf16LE)) return kUtf16LittleEndian;
  if (isUtf16(bytes, kBigEndianMark, QStringConverter::Utf16BE)) return kUtf16BigEndian;
  return isChineseInUtf8(bytes) ? kUtf8 : kGbk;
}

IniText::IniText(std::string_view bytes) : encoding_(encodingOf(bytes)) {
  switch (encoding_) {
    case Encoding::kGbk:
    case Encoding::kUtf8:
      lines_ = splitKeepingEnds(bytes);
      break;
    case Encoding::kMarkedUtf8:
      lines_ = splitKeepingEnds(bytes.substr(kUtf8Mark.size()));
      break;
    case Encoding::kUtf16LittleEndian:
      lines_ = splitKeepingEnds(
          fromUtf16(bytes.substr(kLittleEndianMark.size()), QStringConverter::Utf16LE));
      break;
    case Encoding::kUtf16BigEndian:
      lines_ = splitKeepingEnds(
          fromUtf16(bytes.substr(kBigEndianMark.size()), QStringConverter::Utf16BE));
      break;
  }
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
  keepReadable();
}

/// With its new value a file without a mark can look like another encoding. Then it gets the mark.
void IniText::keepReadable() {
  if (encodingOf(bytes()) == encoding_) return;
  for (std::string& line : lines_) line = decoded(line);
  encoding_ = Encoding::kMarkedUtf8;
}

std::string IniText::bytes() const {
  std::string text;
  for (const std::string& line : lines_) text += line;
  switch (encoding_) {
    case Encoding::kGbk:
    case Encoding::kUtf8:
      break;
    case Encoding::kMarkedUtf8:
      return std::string(kUtf8Mark) + text;
    case Encoding::kUtf16LittleEndian:
      return std::string(kLittleEndianMark) + toUtf16(text, QStringConverter::Utf16LE);
    case Encoding::kUtf16BigEndian:
      return std::string(kBigEndianMark) + toUtf16(text, QStringConverter::Utf16BE);
  }
  return text;
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
  return encoding_ == Encoding::kGbk ? gbk::decode(bytes) : std::string(bytes);
}

std::string IniText::encoded(std::string_view utf8) const {
  if (encoding_ == Encoding::kGbk) return gbk::encode(utf8);
  // What is broken must not break the rest of the file.
  return qtText(utf8).toStdString();
}
