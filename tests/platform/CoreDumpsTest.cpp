#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include "platform/CoreDumps.h"

TEST(CoreDumpsDeathTest, AreOffHoweverTheSystemTakesThem) {
  const auto codeWhenOff = [] {
    rlimit limit{1 << 20, 1 << 20};
    setrlimit(RLIMIT_CORE, &limit);
    prctl(PR_SET_DUMPABLE, 1);
    turnCoreDumpsOff();
    getrlimit(RLIMIT_CORE, &limit);
    return limit.rlim_cur == 0 && limit.rlim_max == 0 && prctl(PR_GET_DUMPABLE) == 0 ? 0 : 1;
  };
  EXPECT_EXIT(std::_Exit(codeWhenOff()), testing::ExitedWithCode(0), "");
}
