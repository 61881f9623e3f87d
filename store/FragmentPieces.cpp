#include "store/FragmentPieces.h"

#include <algorithm>
#include <vector>

#include "store/Engine.h"

namespace {

constexpr std::size_t kShortest = 2;  // characters of a piece or a fragment
constexpr std::size_t kLongest = 5;   // characters of a piece
// More would not narrow a search any further, and each costs reading.
constexpr std::size_t kMostWordsOfARun = 4;
constexpr std::size_t kMostRuns = 4;

constexpr char32_t kReplacement = 0xFFFD;

bool isContinuation(char sign) {
  return (static_cast<unsigned char>(sign) & 0xC0) == 0x80;
}

// As the engine reads one, broken UTF-8 included.
char32_t takeCharacter(std::string_view& rest) {
  const auto first = static_cast<unsigned char>(rest.front());
  rest.remove_prefix(1);
  if (first < 0xC0) return first;
  char32_t character = first < 0xE0 ? first & 0x1F : first < 0xF0 ? first & 0x0F : first & 0x07;
  while (!rest.empty() && isContinuation(rest.front())) {
    character = (character << 6) + (static_cast<unsigned char>(rest.front()) & 0x3F);
    rest.remove_prefix(1);
  }
  const bool isNone = character < 0x80 || (character & ~0x7FFU) == 0xD800 ||
                      (character & ~1U) == 0xFFFE || character > 0x10FFFF;
  return isNone ? kReplacement : character;
}

void append(std::string& text, char32_t character) {
  const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | character >> 6);
    add(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    add(0xE0 | character >> 12);
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  } else {
    add(0xF0 | character >> 18);
    add(0x80 | (character >> 12 & 0x3F));
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

void appendFolded(std::string& text, char32_t character) {
  const bool isUpper = character >= 'A' && character <= 'Z';
  const bool isPlain = isUpper || (character >= 'a' && character <= 'z') ||
                       (character >= '0' && character <= '9') || character >= 0x80;
  append(text, isUpper ? character + 32 : isPlain ? character : character + 0x80);
}

/// A run of characters as it stands in words, and where each of them begins.
class Run {
 public:
  void add(char32_t character) {
    appendFolded(text_, character);
    begins_.push_back(text_.size());
  }
  void clear() {
    text_.clear();
    begins_.resize(1);
  }
  std::size_t size() const { return begins_.size() - 1; }
  /// Up to kLongest characters from that one on.
  std::string_view piece(std::size_t from) const {
    const std::size_t end = std::min(from + kLongest, size());
    return std::string_view(text_).substr(begins_[from], begins_[end] - begins_[from]);
  }

 private:
  std::string text_;
  std::vector<std::size_t> begins_ = {0};
};

// A phrase: the words side by side. A word that ends with "*" stands for all that begin with it.
void appendPhrase(std::string& query, const Run& run) {
  query += '"';
  if (run.size() < kLongest) query.append(run.piece(0)).append("*");
  for (std::size_t from = 0; from + kLongest <= run.size() && from < kMostWordsOfARun; ++from) {
    query.append(run.piece(from)).append(" ");
  }
  query += "\" ";
}

void piecesFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
  if (text == nullptr) return;  // Null has none
  const auto size = static_cast<std::size_t>(sqlite3_value_bytes(arguments[0]));
  const std::string pieces = fragmentPieces({text, size});
  sqlite3_result_text64(context, pieces.data(), pieces.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

}  // namespace

std::string fragmentPieces(std::string_view text) {
  Run run;
  while (!text.empty()) run.add(takeCharacter(text));
  std::string pieces;
  for (std::size_t from = 0; from + kShortest <= run.size(); ++from) {
    pieces.append(run.piece(from)).append(" ");
  }
  return pieces;
}

std::optional<std::string> fragmentQuery(std::string_view pattern) {
  if (pattern.find('\0') != std::string_view::npos) return std::nullopt;
  std::string query;
  std::size_t runs = 0;
  Run run;
  const auto endRun = [&] {
    if (run.size() >= kShortest && runs++ < kMostRuns) appendPhrase(query, run);
    run.clear();
  };
  while (!pattern.empty()) {
    const char32_t character = takeCharacter(pattern);
    if (character == '%' || character == '_') {
      endRun();
    } else {
      run.add(character);
    }
  }
  endRun();
  if (query.empty()) return std::nullopt;
  return query;
}

void addFragmentPieces(sqlite3* engine) {
  check(engine,
        sqlite3_create_function(engine, "fragment_pieces", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                nullptr, piecesFunction, nullptr, nullptr));
}
