#include "bench/ResidentMemory.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace fs = std::filesystem;

namespace {

std::string firstLineOf(const fs::path& file) {
  std::ifstream open(file);
  std::string line;
  std::getline(open, line);
  return line;
}

}  // namespace

double residentMiB(int process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    constexpr std::string_view kName = "VmRSS:";
    if (line.starts_with(kName)) return std::stod(line.substr(kName.size())) / 1024;
  }
  throw std::runtime_error("no VmRSS");
}

int processOf(const std::string& program, const std::string& text) {
  for (const auto& process : fs::directory_iterator("/proc")) {
    if (firstLineOf(process.path() / "comm") == program &&
        firstLineOf(process.path() / "cmdline").find(text) != std::string::npos)
      return std::stoi(process.path().filename().string());
  }
  return -1;
}
