// The wizard without memory: operations fail with 0, nothing that was there before changes, no exception comes out.
#include "tests/core/FunWizardTest.h"

#include <climits>
#include <cstring>
#include <functional>

#include "core/AppName.h"
#include "tests/core/FailingMemory.h"

namespace
{

/// Everything that the lists hold, as one text.
std::string ListsText(const CFunWizard& wizard)
{
    std::string text = ProgramText(wizard);
    short kind = 0;
    short code = 0;
    int value = 0;
    for (int i = 0; i < wizard.GetContInfoCount(); ++i)
    {
        EXPECT_EQ(wizard.GetContInfo(i, kind, code, value), 1);
        text += "contact " + std::to_string(kind) + " " + std::to_string(code) + " " + std::to_string(value) + "\n";
    }
    for (int i = 0; i < wizard.GetOprdInfoCount(); ++i)
    {
        EXPECT_EQ(wizard.GetOprdInfo(i, code, value), 1);
        text += "operand " + std::to_string(code) + " " + std::to_string(value) + "\n";
    }
    for (int i = 0; i < wizard.GetDataInfoCount(); ++i)
    {
        SFunSetData data = {};
        EXPECT_EQ(wizard.GetDataInfo(i, &data), 1);
        text += "data " + std::to_string(data.code) + " " + std::to_string(data.number) + " " +
                std::to_string(data.type) + " " + std::to_string(data.format) + " " + std::to_string(data.value) + "\n";
    }
    for (int i = 0; i < wizard.GetCmtInfoCount(); ++i)
    {
        char comment[100];
        EXPECT_EQ(wizard.GetCmtInfo(i, comment), 1);
        text += std::string("comment ") + comment + "\n";
    }
    return text;
}

struct SAdd
{
    const char* name;
    int (*add)(CFunWizard& wizard);
    int (CFunWizard::*count)() const;
};

const SAdd kAdds[] = {
    {"contact", [](CFunWizard& wizard) { return wizard.AddContInfo(2, 3, 5); }, &CFunWizard::GetContInfoCount},
    {"operand", [](CFunWizard& wizard) { return wizard.AddOprdInfo(9, 100); }, &CFunWizard::GetOprdInfoCount},
    {"data", [](CFunWizard& wizard) { return wizard.AddDataInfo(9, 100, 1, 1, -5); }, &CFunWizard::GetDataInfoCount},
    {"instruction", [](CFunWizard& wizard) { return wizard.AddInstCodeInfo(8, -1, 168, 1, 2); },
     &CFunWizard::GetInstCodeCount},
    {"comment", [](CFunWizard& wizard) { return wizard.AddCmtInfo("Acceleration/Deceleration time"); },
     &CFunWizard::GetCmtInfoCount},
};

class AddWithoutMemory : public ::testing::TestWithParam<SAdd>
{
};

void PrintTo(const SAdd& add, std::ostream* out) { *out << add.name; }

} // namespace

TEST_P(AddWithoutMemory, FailsAndChangesNothing)
{
    const SAdd& add = GetParam();
    CFunWizard wizard;
    int failures = 0;
    for (int count = 0; count < 60; ++count) // long enough for the list to grow several times
    {
        const std::string before = ListsText(wizard);
        failures += WithEveryAllocationFailing([&] { return add.add(wizard); },
                                               [&](int result) {
                                                   EXPECT_EQ(result, 0);
                                                   EXPECT_EQ((wizard.*add.count)(), count);
                                                   EXPECT_EQ(ListsText(wizard), before);
                                               });
        ASSERT_EQ((wizard.*add.count)(), count + 1);
    }
    EXPECT_GT(failures, 3) << "the list never asked for memory";
}

TEST_P(AddWithoutMemory, LeavesTheOtherListsAlone)
{
    CFunWizard wizard;
    for (const SAdd& add : kAdds)
        add.add(wizard);
    for (int i = 0; i < 40; ++i)
    {
        const std::string before = ListsText(wizard);
        CAllocationFaults memory(0);
        const int added = GetParam().add(wizard);
        memory.Pause();
        if (added == 0)
        {
            EXPECT_EQ(ListsText(wizard), before);
            return;
        }
    }
    FAIL() << "the list never asked for memory";
}

INSTANTIATE_TEST_SUITE_P(EveryList, AddWithoutMemory, ::testing::ValuesIn(kAdds),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(WithoutMemory, GenerationStopsAndKeepsWhatItHas)
{
    CFunWizard wizard;
    SFunWizardTest::SetLastWizard(wizard, 0, 168, 0);
    wizard.AddContInfo(2, 3, 5);
    for (int i = 0; i < 80; ++i)
        wizard.AddDataInfo(9, i, 0, 0, i);
    ASSERT_EQ(wizard.CreateInstCode(), 1);
    const std::string whole = ProgramText(wizard);
    const int failures = WithEveryAllocationFailing([&] { return wizard.CreateInstCode(); },
                                                    [&](int result) {
                                                        EXPECT_EQ(result, 0);
                                                        const std::string part = ProgramText(wizard);
                                                        EXPECT_EQ(part, whole.substr(0, part.size()));
                                                        EXPECT_LT(part.size(), whole.size());
                                                    });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(ProgramText(wizard), whole);
}

TEST(WithoutMemory, RangesStayReadable)
{
    CFunWizard wizard;
    int failures = 0;
    for (short code = 0; code < 40; ++code) // entries come in blocks of ten
    {
        failures += WithEveryAllocationFailing(
            [&] {
                wizard.SetDevRange(-1, code, code, 100 * code);
                return 0;
            },
            [&](int) {
                int low = 0;
                int high = 0;
                for (short other = 0; other < code; ++other)
                {
                    ASSERT_EQ(wizard.GetDevRange(-1, other, low, high), 1);
                    ASSERT_EQ(high, 100 * other);
                }
                ASSERT_EQ(wizard.GetDevRange(-1, code, low, high), 0);
            });
    }
    EXPECT_GT(failures, 3);
    EXPECT_EQ(SFunWizardTest::RangeCount(wizard), 40);
}

TEST(WithoutMemory, AnOverwrittenRangeNeedsNone)
{
    CFunWizard wizard;
    wizard.SetDevRange(-1, 9, 0, 100);
    {
        CAllocationFaults memory(0);
        wizard.SetDevRange(-1, 9, 1, 200);
        memory.Pause();
        EXPECT_EQ(memory.Requests(), 0);
    }
    int low = 0;
    int high = 0;
    ASSERT_EQ(wizard.GetDevRange(-1, 9, low, high), 1);
    EXPECT_EQ(low, 1);
    EXPECT_EQ(high, 200);
}

TEST(WithoutMemory, SupportedInstructionsAreNotHalfRegistered)
{
    CFunWizard wizard;
    int failures = 0;
    for (int instruction = 168; instruction <= 177; ++instruction)
        failures += WithEveryAllocationFailing([&] { return wizard.EntrySupportFunInfo(instruction); },
                                               [&](int result) {
                                                   EXPECT_EQ(result, 1);
                                                   EXPECT_EQ(wizard.FindSupportFun(instruction), 0);
                                               });
    EXPECT_GT(failures, 0);
    for (int instruction = 168; instruction <= 177; ++instruction)
        EXPECT_EQ(wizard.FindSupportFun(instruction), 1);
}

TEST(WithoutMemory, NamesLetNoExceptionOut)
{
    CFunWizard wizard;
    const std::string longText(1000000, 'h');
    const auto failuresOf = [](const std::function<void()>& operation) {
        return WithEveryAllocationFailing(
            [&] {
                EXPECT_NO_THROW(operation());
                return 0;
            },
            [](int) {});
    };
    EXPECT_GT(failuresOf([&] { wizard.SetHelpPath(longText.c_str()); }), 0);
    EXPECT_GT(failuresOf([&] { wizard.SetAppName(longText.c_str()); }), 0);
    EXPECT_STREQ(wizard.GetHelpPath(), longText.c_str());
    failuresOf([&] { PexloDll_SetAppName(longText.c_str()); }); // none when the storage of a longer name is still there
    EXPECT_STREQ(GetAppName(), longText.c_str());
    PexloDll_SetAppName("");
}

TEST(WithoutMemory, TheObjectIsBuilt)
{
    CAllocationFaults memory(0);
    const CFunWizard wizard;
    memory.Pause();
    EXPECT_EQ(memory.Requests(), 0);
    EXPECT_EQ(SFunWizardTest::BucketCount(wizard), 101u);
}

TEST(WithoutMemory, ANewObjectIsNull)
{
    CAllocationFaults memory(0);
    const CFunWizard* const wizard = new CFunWizard;
    memory.Pause();
    EXPECT_EQ(wizard, nullptr);
    EXPECT_EQ(memory.Failures(), 1);
}

TEST(WithoutMemory, TheHelpPathReadsAsEmpty)
{
    CFunWizard wizard;
    wizard.SetHelpPath("C:\\help.chm");
    const int failures = WithEveryAllocationFailing(
        [&] {
            CString path;
            EXPECT_NO_THROW(path = wizard.GetHelpPath());
            return path.GetLength();
        },
        [](int length) { EXPECT_EQ(length, 0); });
    EXPECT_EQ(failures, 1);
    EXPECT_STREQ(wizard.GetHelpPath(), "C:\\help.chm");
}

TEST(WithoutMemory, SameConditionLetsNoExceptionOut)
{
    CFunWizard wizard;
    for (int i = 0; i < 3; ++i)
        wizard.AddContInfo(2, 3, 5);
    WithEveryAllocationFailing(
        [&] {
            EXPECT_NO_THROW(wizard.IsSameCondition());
            return 0;
        },
        [](int) {});
    EXPECT_EQ(wizard.IsSameCondition(), 1);
}

TEST(WithoutMemory, TheFontIsNull)
{
    CFunWizard wizard;
    const int failures = WithEveryAllocationFailing([&] { return wizard.CreateDlgFont(nullptr) != nullptr; },
                                                    [&](int created) {
                                                        if (!created)
                                                        {
                                                            EXPECT_EQ(SFunWizardTest::DialogFont(wizard), nullptr);
                                                        }
                                                    });
    EXPECT_GT(failures, 0) << "the font object is allocated";
    EXPECT_NE(SFunWizardTest::DialogFont(wizard), nullptr);
}
