#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/Value.h"

/// The program's own statements are written as Access understands them:
///   'text' with '' for a quote inside; #2026-11-22 09:05:03# and #2026-11-22#; [names]; bare
///   numbers; like '%fragment%' with % and _ as wildcards; names without regard to case.
/// This is the one place that turns them into the engine's form: every literal becomes a bound
/// value, and `like` on a goods column that has a fragment index is answered by it
/// (store/FragmentCondition.h) where the meaning allows; such rows come in the order of their id,
/// which is that of their import, as they do from a scan of the table.
struct EngineStatement {
  std::string text;
  std::vector<Value> values;
};

/// Throws StoreError for text that no statement can be: an open quote, a date that does not exist,
/// a second statement after ";", a comment mark outside quotes.
EngineStatement translate(std::string_view statement);
