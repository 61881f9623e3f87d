#include "store/DataSource.h"

#include "base/Text.h"

namespace {

constexpr std::string_view kPasswordMark = ";jet oledb:database password=";

}  // namespace

// The password is the whole rest: it may hold ";", "=" and blanks.
DataSource DataSource::parse(std::string_view text) {
  const std::size_t mark = asciiLower(text).find(kPasswordMark);
  DataSource source{trimmed(text.substr(0, text.find(';'))), {}};
  if (mark != std::string_view::npos) source.password = text.substr(mark + kPasswordMark.size());
  return source;
}
