// What the dialog of F355 checks, and in which order.
#include "tests/dialogs/process/PidTest.h"
#include "tests/support/Sampled.h"

namespace
{

using CPidCheckTest = CPidTest;

constexpr size_t kEntries = 2 + kPidParameters; // contact, start, parameters

UINT EditAt(size_t entry)
{
    constexpr UINT kFirst[] = {2052, 2801};
    return entry < 2 ? kFirst[entry] : kPid[entry - 2].edit;
}

UINT MessageAt(size_t entry)
{
    constexpr UINT kFirst[] = {20020, 20003};
    return entry < 2 ? kFirst[entry] : kPid[entry - 2].message;
}

/// Out of range, or null when no text is.
const char* OutsideAt(size_t entry)
{
    constexpr const char* kOutside[kEntries] = {"2560", "99999", "10001", nullptr, "0", "0", "3000.1", "1000.1", "0"};
    return kOutside[entry];
}

// With every set of bad entries, the first of them is pointed at, whether it is no number or out of its range.
TEST_F(CPidCheckTest, PointsAtTheFirstBadEntry)
{
    const SPidEntries good;
    const SResults before = PidResults(PidWith(0x2A));
    WriteResults(m_wizard, before);
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, good);
        for (const unsigned bad : SampledSets(kEntries, 37))
        {
            SCOPED_TRACE(testing::Message() << "bad entries " << bad);
            size_t first = kEntries;
            UINT message = 0;
            for (size_t i = kEntries; i-- > 0;)
            {
                const bool isBad = (bad >> i & 1) != 0;
                const bool isText = (bad + i) % 2 == 0 || OutsideAt(i) == nullptr;
                const std::string right = i == 0 ? good.contact : i == 1 ? good.start : good.texts[i - 2];
                SetTextByProgram(dialog, EditAt(i), !isBad ? right : isText ? "x" : OutsideAt(i));
                if (isBad)
                {
                    first = i;
                    message = isText ? 20001 : MessageAt(i);
                }
            }
            ExpectRefusal(dialog, message, EditAt(first));
        }
        EXPECT_EQ(ReadResults(m_wizard), before);
    });
    EXPECT_EQ(ReadResults(m_wizard), before);
}

// The texts of all parameters are bad: of those that are used, the first is pointed at.
TEST_F(CPidCheckTest, LooksOnlyAtTheParametersInUse)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const SPidParameterRow& parameter : kPid)
            dialog.Type(parameter.edit, "x");
        for (const unsigned used : SampledSets(kPidParameters, 31))
        {
            SCOPED_TRACE(testing::Message() << "used " << used);
            size_t first = kPidParameters;
            for (size_t i = kPidParameters; i-- > 0;)
            {
                dialog.Check(kPid[i].check, (used >> i & 1) != 0);
                if ((used >> i & 1) != 0)
                    first = i;
            }
            ExpectRefusal(dialog, 20001, kPid[first].edit);
        }
    });
    SPidEntries none = PidWith(0);
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, none);
        for (const SPidParameterRow& parameter : kPid)
            SetTextByProgram(dialog, parameter.edit, "x");
    });
    EXPECT_EQ(ReadResults(m_wizard), PidResults(none));
}

TEST_F(CPidCheckTest, KeepsTheContactInTheRangeOfItsDevice)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        const struct
        {
            const char* device;
            const char* text;
            UINT message;
        } kRefused[] = {{"R", "2560", 20020}, {"R", "999F", 20020}, {"R", "", 20001},    {"R", "1G", 20001},
                        {"X", "1100", 20020}, {"T", "1008", 20020}, {"T", "A", 20001},   {"C", "1007", 20020},
                        {"C", "1024", 20020}, {"L", "1280", 20020}, {"Y", "1.0", 20001}, {"Sp.R", "899F", 20020}};
        for (bool only : {false, true}) // without an instruction too
        {
            dialog.Check(2061, only);
            for (const auto& [device, text, message] : kRefused)
            {
                SCOPED_TRACE(testing::Message() << device << text);
                dialog.SelectText(2051, device);
                dialog.Type(2052, text);
                ExpectRefusal(dialog, message, 2052);
            }
        }
    });
}

// Neither limit is compared with the other.
TEST_F(CPidCheckTest, AcceptsALowerLimitAboveTheUpperOne)
{
    SPidEntries entries;
    entries.texts[kLower] = "99.99";
    entries.texts[kUpper] = "0.01";
    EXPECT_EQ(Confirmed(entries), PidResults(entries));
}

TEST_F(CPidCheckTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    const SPidEntries good;
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, good);
        for (size_t i = 0; i < kEntries; ++i)
            dialog.Type(EditAt(i), "");
        for (size_t i = 0; i < kEntries; ++i)
        {
            ExpectRefusal(dialog, 20001, EditAt(i));
            dialog.Type(EditAt(i), i == 0   ? good.contact.c_str()
                                   : i == 1 ? good.start.c_str()
                                            : good.texts[i - 2].c_str());
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), PidResults(good));
}

} // namespace
