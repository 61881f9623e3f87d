#include "backups/MediumCopy.h"

#include <fstream>
#include <string>
#include <string_view>

#include "base/WholeFile.h"
#include "base/Words.h"

namespace {

constexpr std::size_t kPiece = 1 << 18;

/// The next bytes of the file, fewer than asked for at its end only.
std::string_view nextPiece(std::ifstream& file, std::string& into) {
  into.resize(kPiece);
  file.read(into.data(), static_cast<std::streamsize>(into.size()));
  return std::string_view(into).substr(0, static_cast<std::size_t>(file.gcount()));
}

bool isEqual(std::ifstream one, std::ifstream other, const std::function<bool()>& stop) {
  std::string left, right;
  while (!stop()) {
    const std::string_view piece = nextPiece(one, left);
    if (piece != nextPiece(other, right) || one.bad() || other.bad()) return false;
    if (piece.empty()) return one.eof() && other.eof();
  }
  return false;
}

}  // namespace

bool copyToMedium(const std::filesystem::path& from, const std::filesystem::path& to,
                  const std::function<bool()>& stop) {
  WholeFile copy(to);
  std::ifstream original(from, std::ios::binary);
  std::string piece;
  for (std::string_view bytes = nextPiece(original, piece); !bytes.empty();
       bytes = nextPiece(original, piece)) {
    copy.append(bytes);
    copy.flush();
    if (stop()) return false;
  }
  copy.forget();
  const bool same = isEqual(std::ifstream(from, std::ios::binary),
                            std::ifstream(copy.path(), std::ios::binary), stop);
  if (stop()) return false;
  if (!same) copy.fail(Words::tr("写进去的和读出来的不一样。"));
  copy.finish();
  return true;
}
