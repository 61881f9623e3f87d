#pragma once

#include <memory>

#include "TemporaryFolder.h"
#include "app/posMod.h"
#include "base/Failure.h"
#include "saleslib/ClsOperator.h"
#include "store/Connection.h"
#include "store/DataFile.h"

/// A till on a data file of its own: operator 1 may sell with password 111, operator 3 may not with
/// password 333.
class TestTill {
 public:
  TestTill() : pos(folder.path()) {
    std::filesystem::create_directory(folder.path() / "data");
    createDataFile({folder.path() / "data/POS.mdb", kBuiltInPassword});
    ensure(pos.OpenDataStore().empty(), "the data file opens");
    pos.start();
    addOperator(1, "111", {kRightSell});
    addOperator(3, "333", {});
  }

  TemporaryFolder folder;
  posMod pos;

 private:
  void addOperator(std::int16_t number, const char* password, std::set<std::string> rights) {
    ClsOperator person;
    person.Init(*pos.gConn, number);
    person.setName("操作员");
    person.setPassword(password);
    person.setRights(ClsRights(std::move(rights)));
    person.Save();
  }
};
