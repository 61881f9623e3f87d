#include "base/Words.h"

namespace {

Words::Catalogue spoken = nullptr;

std::string inSpokenLanguage(const char* chinese) {
  std::string text = spoken ? spoken(chinese) : std::string();
  return text.empty() ? chinese : text;
}

}  // namespace

void Words::speak(Catalogue catalogue) {
  spoken = catalogue;
}

std::string Words::filled(const char* chinese, const std::vector<std::string>& parts) {
  const std::string text = inSpokenLanguage(chinese);
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t part =
        at + 1 < text.size() ? static_cast<std::size_t>(text[at + 1] - '1') : 9;
    if (text[at] == '%' && part < parts.size()) {
      filled += parts[part];
      ++at;
    } else {
      filled += text[at];
    }
  }
  return filled;
}
