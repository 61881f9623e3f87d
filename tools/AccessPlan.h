#pragma once

#include <optional>
#include <string>
#include <vector>

#include "access/AccessFile.h"
#include "tools/AccessTargets.h"

/// What the owner says about the other file's tables.
struct AccessChoices {
  std::vector<std::string> maps;   ///< "OLD_TABLE=NEW_TABLE" or "OLD_TABLE.OLD_COLUMN=NEW_COLUMN"
  std::vector<std::string> skips;  ///< tables of ours that stay empty
};

/// A table of the other file that becomes one of ours.
struct PlannedTable {
  const AccessTable* source = nullptr;
  TargetTable target;
  /// For each column of ours, its place in the other file's rows.
  std::vector<std::optional<std::size_t>> from;

  /// The column of ours that one of the other file's becomes.
  const TargetColumn* targetOf(std::size_t column) const;
  bool has(std::string_view column) const;
  /// The columns that ours must have and nothing of the other file's becomes.
  std::vector<std::string> lacking() const;
};

/// Which tables of a file become which of ours; the others are left out.
struct AccessPlan {
  std::vector<PlannedTable> tables;  ///< what others refer to first
  std::vector<const AccessTable*> left;

  const PlannedTable* target(std::string_view name) const;
  const PlannedTable* source(const AccessTable& table) const;
};

/// Tables and columns of the same name belong together, without regard to ASCII case, unless the
/// owner says otherwise; a column with pictures or the like belongs to none. Throws Refusal for a
/// choice that names what is not there, and for two that want the same place.
AccessPlan planned(const AccessFile& file, const AccessChoices& choices, const DateTime& now);
/// Throws Refusal that says what the owner can do when nothing is taken over, or when one of the
/// tables lacks a column.
void requireComplete(const AccessPlan& plan);
