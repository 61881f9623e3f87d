// Stands in for libFuzzer where there is none: gives a target every file of the folders named.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "Target.h"

int main(int count, char** folders) {
  int inputs = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(folders[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(file), {}};
      std::cout << entry.path().filename().string() << std::endl;  // the last one said is at fault
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++inputs;
    }
  }
  std::cout << inputs << " inputs\n";
  return inputs == 0;  // a corpus that is not found proves nothing
}
