#include "cli/InstructionNames.h"
#include "cli/NearName.h"

#include <gtest/gtest.h>

#include <set>

TEST(InstructionNamesTest, EveryDialogHasANameOfItsOwn)
{
    std::set<std::string> names;
    std::set<std::pair<int, int>> dialogs;
    for (const SFormName& form : FormNames())
    {
        SCOPED_TRACE(form.name);
        EXPECT_TRUE(names.insert(form.name).second);
        EXPECT_TRUE(dialogs.insert({form.instruction, form.variant}).second);
        EXPECT_EQ(FormName(form.instruction, form.variant), form.name);
        EXPECT_STREQ(FindForm(form.name)->name, form.name);
    }
}

TEST(InstructionNamesTest, FindsNamesAndNumbers)
{
    EXPECT_EQ(FindForm("f168")->variant, 0);
    EXPECT_EQ(FindForm("F168:Home")->variant, 1);
    EXPECT_EQ(FindForm("168:1")->variant, 1);
    EXPECT_EQ(FindForm("168")->instruction, 168);
    EXPECT_EQ(FindForm("151:10040")->variant, 10040);
    EXPECT_EQ(FindForm("PID")->instruction, 355);
    EXPECT_EQ(FindForm("F180")->instruction, 180);
    EXPECT_EQ(FindForm("0")->instruction, 0);
    EXPECT_FALSE(FindForm("F16"));
    EXPECT_FALSE(FindForm("151"));
    EXPECT_FALSE(FindForm(""));
}

TEST(InstructionNamesTest, NumbersStandForWhatHasNoName) { EXPECT_EQ(FormName(999, 3), "999:3"); }

TEST(NearNameTest, FindsWhatIsMistyped)
{
    const std::vector<std::string> names = {"max-speed", "initial-speed", "target"};
    EXPECT_EQ(NearestName("max-sped", names), "max-speed");
    EXPECT_EQ(NearestName("MAXSPEED", names), "max-speed");
    EXPECT_EQ(NearestName("initial_sped", names), "initial-speed");
    EXPECT_EQ(NearestName("taregt", names), "target");
    EXPECT_EQ(NearestName("frequency", names), "");
    EXPECT_EQ(NearestName("", names), "");
}

TEST(NearNameTest, SuggestsTheNearestOrAll)
{
    EXPECT_EQ(Suggestion("b1", {"a1", "c22"}), "; did you mean \"a1\"?");
    EXPECT_EQ(Suggestion("frequency", {"a1", "c22"}), "; there are a1, c22");
    EXPECT_EQ(Suggestion("frequency", {}), "");
}
