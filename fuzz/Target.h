#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What a fuzzer does with one input: it must come back, and what it checks on the way (ensure)
/// must hold. The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}
