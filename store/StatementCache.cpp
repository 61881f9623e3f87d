#include "store/StatementCache.h"

#include "store/Statement.h"

std::shared_ptr<Statement> StatementCache::take(std::string_view text) {
  const auto found = byText_.find(text);
  if (found != byText_.end()) {
    const Recent::iterator place = found->second;
    if (place->use_count() > 1) return std::make_shared<Statement>(engine_, text);
    recent_.splice(recent_.begin(), recent_, place);
    return *place;
  }
  recent_.push_front(std::make_shared<Statement>(engine_, text));
  byText_.emplace(recent_.front()->text(), recent_.begin());
  std::shared_ptr<Statement> taken = recent_.front();
  if (recent_.size() > kMostStatements) {
    byText_.erase(recent_.back()->text());
    recent_.pop_back();
  }
  return taken;
}
