#include "base/Utf16.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>

#include "base/Failure.h"
#include "base/Words.h"

namespace {

constexpr std::size_t kGrowth = 2;  // two bytes are at most three, and one for each byte left over

}  // namespace

Utf16Decoder::Utf16Decoder(Order order)
    : descriptor_(iconv_open("UTF-8", order == Order::kBigEndian ? "UTF-16BE" : "UTF-16LE")) {
  if (reinterpret_cast<std::intptr_t>(descriptor_) == -1) {
    throw Failure(Words::tr("这台电脑缺少 UTF-16 字符集的支持。"));
  }
}

Utf16Decoder::~Utf16Decoder() {
  iconv_close(descriptor_);
}

std::string Utf16Decoder::decode(std::string_view bytes) {
  constexpr auto kStopped = static_cast<std::size_t>(-1);
  constexpr std::size_t kUnit = 2;
  waiting_ += bytes;
  std::string text(waiting_.size() * kGrowth, '\0');
  char* in = waiting_.data();
  std::size_t inLeft = waiting_.size();
  char* out = text.data();
  std::size_t outLeft = text.size();
  while (iconv(descriptor_, &in, &inLeft, &out, &outLeft) == kStopped && errno == EILSEQ) {
    const std::size_t broken = std::min(inLeft, kUnit);
    in += broken;
    inLeft -= broken;
    *out++ = '\xFF';
    --outLeft;
  }
  text.resize(static_cast<std::size_t>(out - text.data()));
  waiting_.erase(0, waiting_.size() - inLeft);
  return text;
}
