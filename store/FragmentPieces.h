#pragma once

#include <optional>
#include <string>
#include <string_view>

struct sqlite3;

/// How a text stands in a fragment index: at each of its characters but the last begins one word,
/// the piece of up to five characters from there. A fragment of two to five characters is then the
/// beginning of a word, so a look-up reads the words it finds and no others; a longer fragment is a
/// row of words. Words of two characters would be fewer, but among a million goods each of them
/// stands in tens of thousands (6 to 13 ms a look-up instead of 0.4).
///
/// Characters are read and ASCII letters folded as the engine's own LIKE does it. All that is not
/// an ASCII letter or digit becomes a character above ASCII, so that no text can be taken for the
/// index's query language. Two texts may share their words; LIKE itself decides.

/// The words of a text, each followed by a blank.
std::string fragmentPieces(std::string_view text);

/// The query for all texts that a LIKE pattern may match. Nothing when the pattern has no two
/// characters side by side between its wildcards, or a NUL, which ends a pattern for the engine.
std::optional<std::string> fragmentQuery(std::string_view pattern);

/// Makes fragmentPieces known to the engine as the function fragment_pieces.
void addFragmentPieces(sqlite3* engine);
