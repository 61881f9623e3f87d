#include "driver/OffscreenScreen.h"

#include <fstream>

std::string offscreenPlatform(const std::filesystem::path& folder, int width, int height) {
  const auto file = folder / "screen.json";
  std::ofstream(file) << R"({"screens":[{"name":"till","x":0,"y":0,"width":)" << width
                      << R"(,"height":)" << height
                      << R"(,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";
  return "offscreen:configfile=" + file.string();
}
