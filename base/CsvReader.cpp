#include "base/CsvReader.h"

#include <algorithm>
#include <string_view>

#include "base/CsvRow.h"
#include "base/Gbk.h"
#include "base/Utf8.h"
#include "base/Words.h"

namespace {

constexpr std::size_t kLongestRow = 1 << 20;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
constexpr std::size_t kLongestCharacter = 4;
constexpr std::streamsize kPiece = 1 << 16;
constexpr std::string_view kComma = ",", kDelimiters = ",;\t";

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

// How many bytes of the text are whole UTF-8 characters, up to the first broken one.
std::size_t soundUtf8(std::string_view text) {
  std::size_t position = 0;
  while (position < text.size()) {
    if ((text[position] & 0x80) == 0) {
      ++position;
      continue;
    }
    const Utf8Character character = firstUtf8(text.substr(position));
    if (character.broken) break;
    position += character.length;
  }
  return position;
}

// Reads to the end in pieces; a character cut by the end of a piece waits for the next one.
bool isSoundUtf8(std::istream& in) {
  std::string piece(1 << 16, '\0');
  std::size_t kept = 0;
  while (true) {
    in.read(piece.data() + kept, static_cast<std::streamsize>(piece.size() - kept));
    const std::size_t length = kept + static_cast<std::size_t>(in.gcount());
    const std::size_t sound = soundUtf8(std::string_view(piece.data(), length));
    kept = length - sound;
    if (in.gcount() == 0) return kept == 0;
    if (kept >= kLongestCharacter) return false;
    std::copy_n(piece.data() + sound, kept, piece.data());
  }
}

void rewind(std::istream& in, std::int64_t position) {
  in.clear();
  in.seekg(position);
}

}  // namespace

CsvReader::CsvReader(std::istream& in, Accepts accepts) : in_(in) {
  recognise(accepts);
  rewind(in_, 0);
  in_.seekg(0, std::ios::end);
  size_ = in_.tellg();
  std::size_t most = 0;
  char chosen = ',';
  for (const char delimiter : accepts == Accepts::kAnySheet ? kDelimiters : kComma) {
    const std::size_t fields = fieldsOfFirstRow(delimiter);
    if (fields > most) chosen = delimiter;
    most = std::max(most, fields);
  }
  delimiter_ = chosen;
  toTextBegin();
}

void CsvReader::recognise(Accepts accepts) {
  std::string mark(kUtf8Mark.size(), '\0');
  in_.read(mark.data(), static_cast<std::streamsize>(mark.size()));
  const bool isLittle = mark.starts_with("\xFF\xFE"), isBig = mark.starts_with("\xFE\xFF");
  if ((isLittle || isBig) && accepts == Accepts::kCommas) {
    refuse(Words::tr("是 UTF-16 文字，请另存为 UTF-8 或 GBK 的 CSV 文件"));
  }
  if (isLittle) order_ = Utf16Decoder::Order::kLittleEndian;
  if (isBig) order_ = Utf16Decoder::Order::kBigEndian;
  if (order_) {
    textBegin_ = 2;
  } else if (mark == kUtf8Mark) {
    textBegin_ = static_cast<std::int64_t>(kUtf8Mark.size());
  } else {
    rewind(in_, 0);
    isUtf8_ = isSoundUtf8(in_);
  }
}

void CsvReader::toTextBegin() {
  rewind(in_, textBegin_);
  if (order_) utf16_.emplace(*order_);
  buffer_.clear();
  position_ = 0;
  read_ = 0;
  line_ = rowLine_ = 1;
}

// A text that is no row by that delimiter may be one by another.
std::size_t CsvReader::fieldsOfFirstRow(char delimiter) {
  delimiter_ = delimiter;
  toTextBegin();
  std::vector<std::string> fields;
  try {
    return next(fields) ? fields.size() : 0;
  } catch (const CsvError&) {
    return 0;
  }
}

bool CsvReader::next(std::vector<std::string>& fields) {
  while (peek() == '\n' || peek() == '\r') get();
  if (peek() == kEnd) return false;
  rowLine_ = line_;
  rowBytes_ = 0;
  std::size_t count = 0;
  Ended ended = Ended::kField;
  while (ended == Ended::kField) {
    if (fields.size() == count) fields.emplace_back();
    ended = readField(fields[count]);
    toUtf8(fields[count]);
    ++count;
  }
  fields.resize(count);
  return true;
}

double CsvReader::progress() const {
  return size_ == 0 ? 1 : static_cast<double>(read_) / static_cast<double>(size_);
}

int CsvReader::get() {
  const int character = peek();
  if (character == kEnd) return kEnd;
  ++position_;
  if (character == '\n') ++line_;
  return character;
}

int CsvReader::peek() {
  if (position_ == buffer_.size()) fill();
  return position_ == buffer_.size() ? kEnd : static_cast<unsigned char>(buffer_[position_]);
}

// A piece of UTF-16 can be the first half of a character only.
void CsvReader::fill() {
  do {
    buffer_.resize(kPiece);
    in_.read(buffer_.data(), kPiece);
    position_ = 0;
    buffer_.resize(static_cast<std::size_t>(in_.gcount()));
    read_ += in_.gcount();
    if (in_.bad()) refuse(Words::tr("读不出来，磁盘可能有问题"));
    if (utf16_) buffer_ = utf16_->decode(buffer_);
  } while (buffer_.empty() && in_.gcount() > 0);
}

CsvReader::Ended CsvReader::readField(std::string& field) {
  field.clear();
  if (peek() == '"') {
    get();
    readQuoted(field);
    return endAfter(get());
  }
  while (true) {
    const int character = get();
    if (character == '"') refuse(Words::tr("引号只能把整个字段括起来，字段里的引号要写两个"));
    if (character == delimiter_ || character == '\n' || character == '\r' || character == kEnd) {
      return endAfter(character);
    }
    append(field, character);
  }
}

void CsvReader::readQuoted(std::string& field) {
  while (true) {
    const int character = get();
    if (character == kEnd) refuse(Words::tr("引号没有结束"));
    if (character == '"') {
      if (peek() != '"') return;
      get();
    }
    append(field, character);
  }
}

CsvReader::Ended CsvReader::endAfter(int character) {
  if (character == '\r' && peek() == '\n') get();
  if (character == '\n' || character == '\r' || character == kEnd) return Ended::kRow;
  if (character == delimiter_) return Ended::kField;
  refuse(Words::tr("引号后面还有文字"));
}

void CsvReader::append(std::string& field, int character) {
  if (++rowBytes_ > kLongestRow) refuse(Words::tr("太长，可能少了一个引号"));
  if (character == '\0') refuse(Words::tr("含有不是文字的内容"));
  field.push_back(static_cast<char>(character));
}

void CsvReader::toUtf8(std::string& field) const {
  if (isAscii(field)) return;
  if (!isUtf8_) field = gbk::decode(field);
  const bool sound = soundUtf8(field) == field.size() &&
                     (isUtf8_ || field.find(kReplacement) == std::string::npos);
  if (!sound) refuse(Words::tr("含有既不是 UTF-8 也不是 GBK 的文字"));
}

void CsvReader::refuse(const std::string& reason) const {
  throw CsvError(Words::tr("第 %1 行%2", rowLine_, reason));
}
