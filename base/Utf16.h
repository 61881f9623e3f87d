#pragma once

#include <string>
#include <string_view>

/// UTF-16 bytes, given piece by piece, as UTF-8 (RFC 2781). What is no character becomes the byte
/// FF, which no UTF-8 holds.
class Utf16Decoder {
 public:
  enum class Order { kLittleEndian, kBigEndian };
  /// Throws Failure when the system has no tables for it.
  explicit Utf16Decoder(Order order);
  ~Utf16Decoder();
  Utf16Decoder(const Utf16Decoder&) = delete;
  Utf16Decoder& operator=(const Utf16Decoder&) = delete;

  /// The UTF-8 of the characters that are whole by now; the rest waits for the next piece.
  std::string decode(std::string_view bytes);

 private:
  void* descriptor_;
  std::string waiting_;
};
