#include <chrono>

#include "sync/ShopServerFixture.h"

using std::chrono::steady_clock;
using testing::HasSubstr;

struct LineTest : ShopServerFixture {};

TEST_F(LineTest, SaysWhatIsKnownOfAQuestionWithinItsTime) {
  EXPECT_EQ(owner->ask("select 1 / 0").state, "22012");
  const auto warned = owner->ask("do $$ begin raise warning 'not copied'; end $$");
  EXPECT_EQ(warned.kind, ServerAnswer::kUnknown) << "it may be forgotten by a fail-over";
  EXPECT_THAT(warned.text, HasSubstr("not copied"));
  EXPECT_TRUE(owner->ask("select 1").isDone()) << "the line is opened anew";
  const auto begun = steady_clock::now();
  const auto silent = owner->ask("select pg_sleep(3)", {}, std::chrono::milliseconds(200));
  EXPECT_EQ(silent.kind, ServerAnswer::kUnknown);
  EXPECT_LT(steady_clock::now() - begun, std::chrono::seconds(10));
  const auto ended = owner->ask("select pg_terminate_backend(pg_backend_pid())");
  EXPECT_EQ(ended.kind, ServerAnswer::kUnknown);
}
