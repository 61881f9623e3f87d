#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/StoreError.h"

/// What a step throws that the store refuses with a text like that.
inline auto refusal(const std::string& why) {
  return testing::ThrowsMessage<StoreError>(testing::HasSubstr(why));
}

/// A new data file.
class StoreFixture : public testing::Test {
 protected:
  std::size_t count(const std::string& from) {
    return connection->Open("select 1 from " + from).count();
  }

  TemporaryFolder folder;
  DataSource source{folder.file("pos.mdb"), ""};
  std::unique_ptr<Connection> connection = createDataFile(source);
};
