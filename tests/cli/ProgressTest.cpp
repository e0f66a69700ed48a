#include "cli/Progress.h"

#include <gtest/gtest.h>

namespace
{
constexpr auto kLater = std::chrono::seconds(1);
}

TEST(ProgressTest, DrawsAFewTimesASecond)
{
    std::string drawn;
    CProgress progress(200, [&](const std::string& text) { drawn += text; });
    auto now = CProgress::CClock::now() + kLater;
    progress.Advance(now);
    EXPECT_EQ(drawn, "\r[                                        ] 1 of 200");
    drawn.clear();
    for (int i = 0; i < 98; ++i)
        progress.Advance(now);
    EXPECT_EQ(drawn, "") << "not again at the same time";
    progress.Advance(now + kLater);
    EXPECT_EQ(drawn, "\r[####################                    ] 100 of 200");
}

TEST(ProgressTest, MakesRoomForMessagesAndLeavesNothing)
{
    std::string drawn;
    {
        CProgress progress(2, [&](const std::string& text) { drawn += text; });
        progress.Hide();
        EXPECT_EQ(drawn, "") << "nothing is shown yet";
        progress.Advance(CProgress::CClock::now() + kLater);
        drawn.clear();
        progress.Hide();
        EXPECT_EQ(drawn, "\r" + std::string(49, ' ') + "\r");
        drawn.clear();
    }
    EXPECT_EQ(drawn, "") << "it was hidden already";
    {
        CProgress progress(2, [&](const std::string& text) { drawn = text; });
        progress.Advance(CProgress::CClock::now() + kLater);
    }
    EXPECT_EQ(drawn, "\r" + std::string(49, ' ') + "\r");
}

TEST(ProgressTest, IsNotDrawnWhereNobodyLooksOn)
{
    CProgress progress(1, nullptr);
    progress.Advance(CProgress::CClock::now() + kLater);
    progress.Hide();
}
