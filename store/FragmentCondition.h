#pragma once

#include <string>
#include <string_view>
#include <vector>

struct FragmentColumn;

/// Follows a statement of the dialect from left to right and finds where `column like 'pattern'`
/// may be answered by the fragment index of that column: where it is one of the conditions that
/// stand side by side under "where", joined by "and" and "or". There, and only there, can a second
/// condition that follows from the first be added with "and": neither what binds tighter nor
/// whether a Null counts as false can change the meaning. Everywhere else (in parentheses, behind
/// "not", in a "case", on an alias, in a query inside a query) the statement stays as it is, right
/// but without the index.
class FragmentCondition {
 public:
  /// What has been read, piece by piece.
  void word(std::string_view word);
  void sign(char sign);
  void valueOrQuotedName();

  /// The column whose index may answer the text literal that stands here; nullptr for none. `after`
  /// is the statement behind the literal.
  const FragmentColumn* at(std::string_view after) const;

  /// The condition to add, with one "?" for the fragmentQuery of the pattern.
  std::string added(const FragmentColumn& column) const;

 private:
  enum class Place { kElsewhere, kStart, kName, kDot, kLike };

  Place placeAfter(const std::string& word);
  bool isInScope(std::string_view table) const;

  static constexpr int kNone = -1;

  int depth_ = 0;               ///< of parentheses
  int conditionDepth_ = kNone;  ///< depth of the conditions being read
  int selects_ = 0;
  bool joins_ = false;
  bool betweenOpen_ = false;  ///< the next "and" belongs to a "between"
  Place place_ = Place::kElsewhere;
  std::string lastWord_;
  std::string qualifier_, name_;     ///< of the column that a condition begins with
  std::string table_;                ///< read behind "from" or "join"; an alias may follow
  std::vector<std::string> tables_;  ///< with an index, under their own names
};
