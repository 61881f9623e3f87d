#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

/// Texts for people from the rooms that know no window toolkit: in Chinese, as they stand in the
/// source, or in the language of the catalogue that the program has set. The translator's tool
/// finds them through the names here, as it finds those of the windows. What is printed or stored
/// is none of these: papers and files are Chinese whatever the screens speak.
class Words {
 public:
  /// Gives a text in the catalogue's language, or an empty text where it has none. Called from any
  /// thread.
  using Catalogue = std::string (*)(const char* chinese);
  /// Once, when the program starts, before anything else is done. Without it texts are Chinese.
  static void speak(Catalogue catalogue);

  /// The text in UTF-8, with the parts in place of %1 ... %9. A part may hold such a mark itself;
  /// it stays. Parts are texts and whole numbers.
  template <class... Parts>
  static std::string tr(const char* chinese, const Parts&... parts) {
    return filled(chinese, {partText(parts)...});
  }
  /// A text that stands in a table and is looked up with tr() when it is shown.
  static constexpr const char* mark(const char* chinese) { return chinese; }

 private:
  static std::string filled(const char* chinese, const std::vector<std::string>& parts);
  static std::string partText(std::string_view part) { return std::string(part); }
  static std::string partText(std::integral auto part) { return std::to_string(part); }
};
