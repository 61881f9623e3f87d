#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <cstdlib>

#include "platform/CoreDumps.h"

TEST(CoreDumpsDeathTest, AreOffHoweverTheSystemTakesThem) {
  const auto isOff = [] {
    const rlimit some{1 << 20, 1 << 20};
    setrlimit(RLIMIT_CORE, &some);
    prctl(PR_SET_DUMPABLE, 1);
    turnCoreDumpsOff();
    rlimit left{};
    getrlimit(RLIMIT_CORE, &left);
    std::_Exit(left.rlim_cur == 0 && left.rlim_max == 0 && prctl(PR_GET_DUMPABLE) == 0 ? 0 : 1);
  };
  EXPECT_EXIT(isOff(), testing::ExitedWithCode(0), "");
}
