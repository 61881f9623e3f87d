#include "saleslib/MasterTables.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "base/Words.h"
#include "store/Row.h"
#include "store/StoreError.h"

namespace {

using Json = nlohmann::json;

void add(Json& body, const std::string& column, std::monostate) {
  body[column] = nullptr;
}
template <class T>
void add(Json& body, const std::string& column, const T& value) {
  body[column] = value;
}

Value valueOf(const Json& field) {
  if (field.is_null()) return {};
  if (field.is_string()) return field.get<std::string>();
  if (field.is_number_integer()) return field.get<std::int64_t>();
  if (field.is_number()) return field.get<double>();
  return field.dump();
}

// The journal is what a till brings to the server, backups are made where the medium is, and goods
// come from the office.
constexpr std::array kOfTill = {"Journal", "BackupOnExit", "GoodsImport"};

}  // namespace

std::string MasterTable::keyText() const {
  std::string text;
  for (std::size_t place = 0; place < keyColumns; ++place)
    text += (place == 0 ? "lower(" : " || char(31) || lower(") + columns[place] + ")";
  return text;
}

std::string MasterTable::bodyOf(const Row& row) const {
  Json body = Json::object();
  for (const std::string& column : columns) {
    std::visit([&](const auto& value) { add(body, column, value); }, row.value(column));
  }
  return body.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Value> MasterTable::valuesOf(const std::string& body) const {
  const Json row = Json::parse(body, nullptr, false);
  if (!row.is_object()) throw StoreError(Words::tr("服务器传来的 %1 读不懂：%2", name, body));
  std::vector<Value> values;
  for (const std::string& column : columns)
    values.push_back(row.contains(column) ? valueOf(row.at(column)) : Value());
  return values;
}

const std::vector<MasterTable>& masterTables() {
  static const std::vector<MasterTable> tables = {
      {"SP_LB", 1, {"SPLB_ID", "SPLBMC"}},
      {"member",
       1,
       {"bh", "name", "hyzklb", "password", "sex", "age", "phone", "address", "other", "enabled",
        "discount", "birthday", "join_date"}},
      {"operator_cards", 1, {"operator_id", "track"}},
      {"operator_rights", 2, {"operator_id", "right_key"}},
      {"operators", 1, {"id", "name", "code", "password"}},
      {"spda",
       1,
       {"f_spbm", "f_spmc", "f_sphh", "f_sptm", "f_Ggxh", "f_jldw", "f_xsdj", "f_pfj", "f_zk",
        "f_zhjj", "f_spcd", "f_splbmc"}},
      {"sys_param", 1, {"name", "value"}},
      {"tmda",
       2,
       {"sptm", "spbm", "ggxh", "spmc", "spcd", "jldw", "xsdj", "pfj", "zk", "cxj", "kssj", "jssj",
        "dwbl", "zhjj", "splbmc"}}};
  return tables;
}

const MasterTable* masterTable(const std::string& name) {
  const auto found = std::ranges::find(masterTables(), name, &MasterTable::name);
  return found == masterTables().end() ? nullptr : &*found;
}

bool isOfTill(const std::string& parameter) {
  return std::ranges::any_of(kOfTill,
                             [&](const char* name) { return equalIgnoringCase(name, parameter); });
}
