#include "store/Dialect.h"

#include <charconv>
#include <optional>
#include <system_error>

#include "base/DateTime.h"
#include "base/Text.h"
#include "base/Words.h"
#include "store/FragmentCondition.h"
#include "store/FragmentPieces.h"
#include "store/StoreError.h"

namespace {

bool isDigit(char sign) {
  return sign >= '0' && sign <= '9';
}
bool isBlank(char sign) {
  return sign == ' ' || (sign >= '\t' && sign <= '\r');
}
// Bytes of Chinese letters count as letters, as they do in the engine.
bool isLetter(char sign) {
  return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || sign == '_' ||
         static_cast<unsigned char>(sign) >= 0x80;
}
bool isOperator(char sign) {
  return std::string_view("()+-*/<>=,.!|&%~").find(sign) != std::string_view::npos;
}

/// Reads a statement once from left to right.
class Translator {
 public:
  explicit Translator(std::string_view statement) : rest_(statement) {
    result_.text.reserve(statement.size() + 8);
  }

  EngineStatement translate() && {
    while (!rest_.empty()) takeOne();
    return std::move(result_);
  }

 private:
  // Shows what was read before the fault; the values stay out of it, one may be a password.
  [[noreturn]] void refuse(const std::string& why) const {
    throw StoreError(Words::tr("数据语句有误：%1，在“%2”之后。", why, result_.text));
  }

  void takeOne() {
    const char sign = rest_.front();
    if (isBlank(sign)) return copy(1);
    if (sign == '\'') return takeText();
    if (sign == '#') return takeDate();
    if (sign == '[') return takeName(']');
    if (sign == '"') return takeName('"');
    if (isDigit(sign) || (sign == '.' && rest_.size() > 1 && isDigit(rest_[1])))
      return takeNumber();
    if (isLetter(sign)) return takeWord();
    if (sign == ';') return takeEnd();
    takeOperator(sign);
  }

  void takeText() {
    std::string text;
    std::size_t from = 1;
    while (true) {
      const std::size_t quote = rest_.find('\'', from);
      if (quote == std::string_view::npos) refuse(Words::tr("引号没有结束"));
      text.append(rest_, from, quote - from);
      from = quote + 1;
      if (from == rest_.size() || rest_[from] != '\'') break;
      text += '\'';  // a doubled quote is one
      ++from;
    }
    const FragmentColumn* indexed = fragments_.at(rest_.substr(from));
    const std::optional<std::string> query = indexed ? fragmentQuery(text) : std::nullopt;
    bind(std::move(text), from);
    if (!query) return;
    result_.text += fragments_.added(*indexed);
    result_.values.emplace_back(*query);
  }

  void takeDate() {
    const std::size_t end = rest_.find('#', 1);
    if (end == std::string_view::npos) refuse(Words::tr("日期没有结束"));
    const std::optional<DateTime> time = parseAccessLiteral(rest_.substr(0, end + 1));
    if (!time) refuse(Words::tr("没有这个日期"));
    bind(storedText(*time), end + 1);
  }

  void takeName(char closing) {
    const std::size_t end = rest_.find(closing, 1);
    if (end == std::string_view::npos) refuse(Words::tr("名称没有结束"));
    const std::string_view name = rest_.substr(1, end - 1);
    if (name.find_first_of(std::string_view("\"\0", 2)) != std::string_view::npos) {
      refuse(Words::tr("没有这个名称"));
    }
    result_.text.append("\"").append(name).append("\"");
    rest_.remove_prefix(end + 1);
    fragments_.valueOrQuotedName();
    leaveListStart();
  }

  void takeNumber() {
    const std::string_view number = rest_.substr(0, numberLength());
    const char after = number.size() < rest_.size() ? rest_[number.size()] : ' ';
    if (isLetter(after) || isDigit(after) || after == '.') refuse(Words::tr("数字写法不对"));
    fragments_.valueOrQuotedName();
    if (atListStart_) return copyWord(number.size());  // "order by 1" names the first column
    bind(numberValue(number), number.size());
  }

  std::size_t numberLength() const {
    std::size_t length = digitsFrom(0);
    if (length < rest_.size() && rest_[length] == '.') length = digitsFrom(length + 1);
    if (length < rest_.size() && (rest_[length] == 'e' || rest_[length] == 'E')) {
      const bool isSigned =
          length + 1 < rest_.size() && (rest_[length + 1] == '+' || rest_[length + 1] == '-');
      const std::size_t digits = length + (isSigned ? 2 : 1);
      if (digitsFrom(digits) > digits) length = digitsFrom(digits);
    }
    return length;
  }

  std::size_t digitsFrom(std::size_t place) const {
    while (place < rest_.size() && isDigit(rest_[place])) ++place;
    return place;
  }

  Value numberValue(std::string_view number) const {
    const char* const end = number.data() + number.size();
    std::int64_t whole = 0;
    const auto [wholeEnd, wholeFault] = std::from_chars(number.data(), end, whole);
    if (wholeEnd == end && wholeFault == std::errc{}) return whole;
    double value = 0;
    if (std::from_chars(number.data(), end, value).ec != std::errc{}) {
      refuse(Words::tr("数字太大"));
    }
    return value;
  }

  // Words matter only where a list of columns begins or ends.
  void takeWord() {
    std::size_t length = 1;
    while (length < rest_.size() && (isLetter(rest_[length]) || isDigit(rest_[length]))) ++length;
    const std::string_view word = rest_.substr(0, length);
    fragments_.word(word);
    const bool beginsList = afterOrder_ && equalIgnoringCase(word, "by");
    afterOrder_ = equalIgnoringCase(word, "order") || equalIgnoringCase(word, "group");
    if (beginsList) {
      listDepth_ = depth_;
    } else if (listDepth_ == depth_ && (afterOrder_ || endsList(word))) {
      listDepth_ = kNoList;
    }
    copyWord(length);
    atListStart_ = beginsList;
  }

  static bool endsList(std::string_view word) {
    for (const char* ending : {"having", "limit", "union", "except", "intersect"}) {
      if (equalIgnoringCase(word, ending)) return true;
    }
    return false;
  }

  void takeOperator(char sign) {
    if (!isOperator(sign)) refuse(Words::tr("有不认识的字符"));
    if (rest_.starts_with("--") || rest_.starts_with("/*")) refuse(Words::tr("不能有注释"));
    fragments_.sign(sign);
    if (sign == '(') ++depth_;
    if (sign == ')' && --depth_ < listDepth_) listDepth_ = kNoList;
    copyWord(1);
    atListStart_ = sign == ',' && listDepth_ == depth_;
  }

  void takeEnd() {
    rest_.remove_prefix(1);
    for (const char sign : rest_) {
      if (!isBlank(sign)) refuse(Words::tr("只能有一条语句"));
    }
    rest_ = {};
  }

  // The blank keeps a digit that follows from becoming the value's number.
  void bind(Value value, std::size_t length) {
    result_.values.push_back(std::move(value));
    result_.text += "? ";
    rest_.remove_prefix(length);
    fragments_.valueOrQuotedName();
    leaveListStart();
  }

  void copy(std::size_t length) {
    result_.text.append(rest_, 0, length);
    rest_.remove_prefix(length);
  }

  void copyWord(std::size_t length) {
    copy(length);
    atListStart_ = false;
  }

  void leaveListStart() {
    atListStart_ = false;
    afterOrder_ = false;
  }

  static constexpr int kNoList = -1;

  std::string_view rest_;
  EngineStatement result_;
  FragmentCondition fragments_;
  int depth_ = 0;             ///< of parentheses
  int listDepth_ = kNoList;   ///< depth of the "order by" or "group by" list being read
  bool afterOrder_ = false;   ///< the last word was "order" or "group"
  bool atListStart_ = false;  ///< right behind "by" or a comma of that list
};

}  // namespace

EngineStatement translate(std::string_view statement) {
  return Translator(statement).translate();
}
