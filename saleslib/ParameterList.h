#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What values a shop parameter has.
struct ParameterKind {
  /// The value in the form that is kept, or nothing for a text that is no such value.
  std::optional<std::string> (*read)(std::string_view text);
  const char* refusal;  ///< for Words::tr
};

struct ParameterDefinition {
  const char* name;
  const ParameterKind* kind;
  const char* byDefault;
  const char* meaning;  ///< for Words::tr
};

/// All that there are, in the order in which people are shown them.
std::span<const ParameterDefinition> parameterDefinitions();
/// By its name, whatever the case of its letters; null where there is none.
const ParameterDefinition* parameterDefinition(std::string_view name);
