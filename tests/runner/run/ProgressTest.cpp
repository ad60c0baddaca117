// How long a run is said to go on.
#include "Runner/run/Progress.h"

#include <gtest/gtest.h>

namespace {

std::string Left(long long milliseconds)
{
    return LeftText(std::chrono::milliseconds(milliseconds)).toStdString();
}

TEST(ProgressTest, timeThatIsLeftIsInWholeUnitsThatAreNotTooShort)
{
    EXPECT_EQ(Left(0), "0 s");
    EXPECT_EQ(Left(1), "1 s");
    EXPECT_EQ(Left(59000), "59 s");
    EXPECT_EQ(Left(59001), "1 min");
    EXPECT_EQ(Left(60001), "2 min");
    EXPECT_EQ(Left(59 * 60000), "59 min");
    EXPECT_EQ(Left(59 * 60000 + 1), "1 h 0 min");
    EXPECT_EQ(Left((3 * 60 + 20) * 60000), "3 h 20 min");
}

}  // namespace
