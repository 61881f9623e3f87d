#pragma once

class Connection;

/// The fragment indexes of the goods tables. Beside a table T stand
///   T_fragments  the index: for every word (store/FragmentPieces.h) the rows that hold it;
///   T_written    the rows written since the index was last brought up to date, each with the texts
///                that the index still has of it (Null: none). Triggers keep this list, in plain
///                SQL: any program may write goods, knowing nothing of the words;
///   T_indexed    what the index holds, as a view: the texts of T but for the rows in T_written.
/// A look-up takes the rows that the index finds and all of T_written, and lets LIKE decide. It is
/// right at every moment, and quick as long as T_written is short.

/// Takes the written rows into the index, in one transaction (or inside the one that runs). An
/// import calls it once, behind its last row: the index of a million rows then takes 12 s. Taken in
/// row by row it would be minutes, since the engine ends a piece of the index with each statement.
/// An import should also write through store/RowWriter.h.
void updateFragmentIndex(Connection& connection);
/// The same for one of many short transactions beside a till that rings: merges what it adds step
/// by step, where the engine would else now and then merge sixteen pieces at once, for a second.
void updateFragmentIndexInSteps(Connection& connection);
/// As the first, when there are enough written rows for a look-up to feel them.
void updateLongFragmentIndex(Connection& connection);

/// Whether the indexes hold exactly what the tables say. Reads both whole.
[[nodiscard]] bool fragmentIndexIsRight(Connection& connection);
/// Makes the indexes new from the tables, whatever state they are in.
void rebuildFragmentIndex(Connection& connection);
