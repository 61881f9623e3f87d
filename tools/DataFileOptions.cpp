#include "tools/DataFileOptions.h"

#include <CLI/CLI.hpp>

void DataFileOptions::addTo(CLI::App& command) {
  command.add_option("FILE", path, "数据文件")->required();
  command.add_option("--file-password", password, "数据文件的密码；不写用内置的，空的表示没有密码");
}
