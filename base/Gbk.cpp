#include "base/Gbk.h"

#include <iconv.h>

#include <algorithm>
#include <cstdint>

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "base/Words.h"

namespace gbk {
namespace {

constexpr std::string_view kLacking = "? ";

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return isAscii(c); });
}

/// One direction of conversion. Opening costs a look-up of the system's tables, so each thread
/// keeps its own; a descriptor cannot be shared between threads.
class Converter {
 public:
  Converter(const char* to, const char* from) : descriptor_(iconv_open(to, from)) {
    if (reinterpret_cast<std::intptr_t>(descriptor_) == -1) {
      throw Failure(Words::tr("这台电脑缺少中文字符集（GBK）的支持，请安装后再启动。"));
    }
  }
  ~Converter() { iconv_close(descriptor_); }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  /// Converts the whole text, at most `growth` bytes for each of its own. Where a character cannot
  /// be converted, `substitute` stands for it and `length(rest)`, at least 1, is how long it was.
  template <typename Length>
  std::string convert(std::string_view text, std::size_t growth, std::string_view substitute,
                      Length length) {
    std::string result(text.size() * growth, '\0');
    iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(text.data());  // iconv's signature; it does not write there
    std::size_t inLeft = text.size();
    char* out = result.data();
    std::size_t outLeft = result.size();
    while (iconv(descriptor_, &in, &inLeft, &out, &outLeft) == kStopped && inLeft > 0) {
      const std::size_t skipped = std::min(inLeft, length(std::string_view(in, inLeft)));
      in += skipped;
      inLeft -= skipped;
      ensure(skipped > 0 && substitute.size() <= outLeft, "room for every converted character");
      out = std::copy(substitute.begin(), substitute.end(), out);
      outLeft -= substitute.size();
    }
    result.resize(static_cast<std::size_t>(out - result.data()));
    return result;
  }

 private:
  static constexpr auto kStopped = static_cast<std::size_t>(-1);
  iconv_t descriptor_;
};

/// A pair of high bytes without a character (the user-defined rows) goes as one, so that the
/// characters after it are still read in step; any other byte goes alone.
std::size_t brokenGbkLength(std::string_view rest) {
  const auto isHigh = [](char c) { return !isAscii(c) && c != '\x80' && c != '\xFF'; };
  return rest.size() > 1 && isHigh(rest[0]) && isHigh(rest[1]) ? 2 : 1;
}

/// Every character of GBK outside ASCII has two bytes, and so has the substitute for the others.
std::size_t columnsOf(const Utf8Character& character) {
  return character.code < 0x80 ? 1 : 2;
}

}  // namespace

std::string encode(std::string_view utf8) {
  if (isAscii(utf8)) return std::string(utf8);
  // iconv's GBK has the euro sign as the single byte 0x80, as Windows does. Printers do not know
  // that byte, and its width would be 1.
  const std::string text = replaced(std::string(utf8), "€", kLacking);
  thread_local Converter converter("GBK", "UTF-8");
  return converter.convert(text, 2, kLacking,
                           [](std::string_view rest) { return firstUtf8(rest).length; });
}

std::string decode(std::string_view bytes) {
  if (isAscii(bytes)) return std::string(bytes);
  thread_local Converter converter("UTF-8", "GBK");
  return converter.convert(bytes, 3, "\uFFFD", brokenGbkLength);
}

std::size_t width(std::string_view utf8) {
  std::size_t columns = 0;
  while (!utf8.empty()) {
    const Utf8Character next = firstUtf8(utf8);
    columns += columnsOf(next);
    utf8.remove_prefix(next.length);
  }
  return columns;
}

std::string cut(std::string_view utf8, std::size_t columns) {
  std::string_view rest = utf8;
  while (!rest.empty()) {
    const Utf8Character next = firstUtf8(rest);
    if (columnsOf(next) > columns) break;
    columns -= columnsOf(next);
    rest.remove_prefix(next.length);
  }
  return std::string(utf8.substr(0, utf8.size() - rest.size()));
}

std::string centred(std::string_view utf8, std::size_t columns, char fill) {
  const std::size_t wide = width(utf8);
  const std::string pad(columns > wide ? (columns - wide) / 2 : 0, fill);
  return pad + std::string(utf8) + pad;
}

}  // namespace gbk
