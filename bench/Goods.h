#pragma once

#include <string>
#include <vector>

/// The goods of the measured shops, by their number from 0; the same number is the same item in a
/// shop of any size. Texts are as long as those of a real assortment.
namespace goods {

std::string barcode(int item);   ///< thirteen digits
std::string itemCode(int item);  ///< nine characters
std::string name(int item);
/// Specification and item number alike: a brand in letters and four characters of its own. One item
/// in a hundred begins with a word of three rare Chinese characters; ten thousand (all of a small
/// shop's) begin with kLoose.
std::string specification(int item, int shopGoods);

/// The beginning of ten thousand specifications.
inline constexpr const char* kLoose = "散称";
inline constexpr int kLooseGoods = 10'000;
/// A piece of that item's specification with this many characters (2 to 5), which few others have.
std::string fragment(int item, int characters);
/// The items that were made to have that piece of that item.
std::vector<int> itemsWithFragment(int item, int characters, int shopGoods);
/// The n-th item that has a rare word.
int itemWithRareWord(int n);

}  // namespace goods
