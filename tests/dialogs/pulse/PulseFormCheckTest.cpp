// What the pulse-output dialogs refuse: every bound on both sides, texts that are no numbers, and the order of the
// checks. Whatever is refused changes nothing.
#include "tests/dialogs/pulse/PulseFormTest.h"
#include "tests/support/Sampled.h"

#include <algorithm>

namespace
{

class CPulseFormCheckTest : public CPulseFormsTest
{
protected:
    /// Refuses what the scene enters, and leaves; the lists must be as they were.
    void Refuse(const Scene& scene)
    {
        const SResults before = {.contacts = {{2, 3, 1}, {3, 2, 5}},
                                 .operands = {{10, 7}, {11, 4}},
                                 .data = {{10, 1, 0, 0, 7}, {9, 2, 1, 0, 9}},
                                 .comments = {"of the host"},
                                 .instructions = {{8, -1, 1, 0, 0}}};
        WriteResults(m_wizard, before);
        m_wizard.SetOnlyDataTable(1);
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            FillIn(dialog, GetParam());
            scene(dialog);
            EXPECT_EQ(ReadResults(m_wizard), before);
            EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
        });
        EXPECT_EQ(ReadResults(m_wizard), before);
    }

    /// All but the last entry is right: the check has come so far.
    static void ExpectAcceptedUpToTheLast(CDialogRobot& dialog)
    {
        const UINT last = GetParam().numbers.back().id;
        const CString text = dialog.Text(last);
        dialog.Type(last, "");
        ExpectRefusal(dialog, 20001, last);
        dialog.Type(last, text);
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, CPulseFormCheckTest, testing::ValuesIn(PulseForms()), PulseFormName);

/// Texts that are no numbers of the edit's notation.
std::vector<const char*> Malformed(const SPulseForm& form, UINT edit)
{
    if (edit == 2052)
        return {"", " ", "g", "1-2", "-1", "+1", "1.5", "0x1", ".", "1A0"};
    for (const SFormNumber& number : form.numbers)
    {
        if (number.id != edit)
            continue;
        if (number.notation == kTenths)
            return {"", " ", "a", ".", "100", "99.95", "12.50", "0.05", "1..0", "1.0.", "-1", "+5", "5,0", "1 2", "-"};
        if (number.notation == kAnyTenths)
            return {"",     " ",    "a",    ".",  "100", "100.0", "99.95", "50.05",
                    "0.05", "1..0", "1.0.", "-1", "+5",  "5,0",   "1 2",   "-"};
        if (number.notation == kWhole)
            return {"", " ", "a", ".", "5.5", "99.95", "-", "-1", "+5", "5.0.", "5,0", "1 2", "0.1"};
    }
    return {"", " ", "a", "12a", "1-2", "--1", "+1", "1 2", "1.5", "0x1", "1e3", ".", "1,5"};
}

} // namespace

TEST_P(CPulseFormCheckTest, TakesEveryBoundAndStoresIt)
{
    const SPulseForm& form = GetParam();
    size_t entries = 0;
    for (const SFormNumber& number : form.numbers)
        entries = std::max(entries, number.good.size());
    for (size_t entry = 0; entry < entries; ++entry)
    {
        EXPECT_EQ(Confirmed(form, {.entry = entry}), FormResults(form, {.entry = entry}));
    }
}

TEST_P(CPulseFormCheckTest, RefusesWhatIsOutsideOfTheBounds)
{
    Refuse([](CDialogRobot& dialog) {
        for (const SFormNumber& number : GetParam().numbers)
        {
            const CString good = dialog.Text(number.id);
            for (const char* text : number.outside)
            {
                SCOPED_TRACE(testing::Message() << text << " in edit " << number.id);
                SetTextByProgram(dialog, number.id, text);
                ExpectRefusal(dialog, number.message, number.id);
            }
            dialog.Type(number.id, good);
        }
    });
}

TEST_P(CPulseFormCheckTest, KeepsTheWholeTableInTheRegisters)
{
    const SPulseForm& form = GetParam();
    SetDeviceRange(m_wizard, kDT, 100, 1000);
    const int last = 1000 - form.words + 1;
    for (const int start : {100, last})
    {
        Confirm(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form);
            EXPECT_EQ(dialog.Text(form.startLabel), RangeText(100, last));
            dialog.Type(form.start, std::to_string(start).c_str());
        });
        SResults expected = FormResults(form, {});
        expected.operands[0].value = start;
        for (SDataRow& row : expected.data)
            row.number += start - 100;
        EXPECT_EQ(ReadResults(m_wizard), expected);
    }
    Refuse([&](CDialogRobot& dialog) {
        for (const int start : {99, last + 1, 0, 1000})
        {
            SCOPED_TRACE(start);
            SetTextByProgram(dialog, form.start, std::to_string(start));
            ExpectRefusal(dialog, 20003, form.start);
        }
        for (const char* text : {"-", "-5"}) // F173 reads no sign; for the others a lone one is 0
        {
            SCOPED_TRACE(text);
            dialog.Type(form.start, text);
            ExpectRefusal(dialog, form.instruction == 173 ? 20001 : 20003, form.start);
        }
    });
}

TEST_P(CPulseFormCheckTest, KeepsTheContactInTheRangeOfItsDevice)
{
    Refuse([](CDialogRobot& dialog) {
        for (const char* text : {"0", "255F", "a", "1 2"})
        {
            dialog.Type(2052, text);
            ExpectAcceptedUpToTheLast(dialog);
        }
        for (const char* text : {"2560", "999F"})
        {
            dialog.Type(2052, text);
            ExpectRefusal(dialog, 20020, 2052);
        }
        dialog.SelectText(2051, "C");
        EXPECT_EQ(dialog.Text(2053), CString("(1008 - 1023)"));
        for (const char* text : {"1008", "1023"})
        {
            dialog.Type(2052, text);
            ExpectAcceptedUpToTheLast(dialog);
        }
        for (const char* text : {"1007", "1024"})
        {
            dialog.Type(2052, text);
            ExpectRefusal(dialog, 20020, 2052);
        }
        dialog.Check(2061, !dialog.Checked(2061));
        ExpectRefusal(dialog, 20020, 2052); // checked with an instruction and without one
        dialog.Type(2052, "1010");
        ExpectAcceptedUpToTheLast(dialog);
        SelectByProgram(dialog, 2051, -1);
        ExpectRefusal(dialog, 20020, 2052);
    });
}

TEST_P(CPulseFormCheckTest, RefusesWhatIsNoNumber)
{
    Refuse([](CDialogRobot& dialog) {
        for (const auto& [edit, message] : CheckedEdits(GetParam()))
        {
            const CString good = dialog.Text(edit);
            for (const char* text : Sampled(Malformed(GetParam(), edit), 3))
            {
                SCOPED_TRACE(testing::Message() << '"' << text << "\" in edit " << edit);
                SetTextByProgram(dialog, edit, text);
                ExpectRefusal(dialog, 20001, edit);
            }
            dialog.Type(edit, good);
        }
    });
}

// Numbers that no register holds, and some that no integer type holds, are outside of every range.
TEST_P(CPulseFormCheckTest, RefusesHugeNumbersAsOutOfRange)
{
    const char* kHuge[] = {"4294967396", "18446744073709551716", "9223372036854775808", "-9223372036854775809",
                           "-18446744073709551516"};
    Refuse([&](CDialogRobot& dialog) {
        const auto refuse = [&](UINT edit, UINT message) {
            const CString good = dialog.Text(edit);
            for (const char* text : Sampled(kHuge, 3))
            {
                if (text[0] == '-' && (edit == 2052 || GetParam().instruction == 173))
                    continue; // no sign there
                SCOPED_TRACE(testing::Message() << text << " in edit " << edit);
                SetTextByProgram(dialog, edit, text);
                ExpectRefusal(dialog, message, edit);
            }
            dialog.Type(edit, good);
        };
        refuse(2052, 20020);
        refuse(GetParam().start, 20003);
        for (const SFormNumber& number : GetParam().numbers)
            if (number.notation == kDecimal)
                refuse(number.id, number.message);
    });
}

// ---- Order ----------------------------------------------------------------------------------------------------------

// With every set of bad entries, the first of them is pointed at, whether it is no number or out of its range.
TEST_P(CPulseFormCheckTest, PointsAtTheFirstBadEntry)
{
    const SPulseForm& form = GetParam();
    std::vector<const char*> good = {"10A", "100"}, outside = {"2560", "99999"};
    for (const SFormNumber& number : form.numbers)
    {
        good.push_back(number.good[2].text);
        outside.push_back(number.outside.empty() ? nullptr : number.outside[0]);
    }
    Refuse([&](CDialogRobot& dialog) {
        const auto edits = CheckedEdits(form);
        for (const unsigned bad : SampledSets(edits.size(), 29))
        {
            SCOPED_TRACE(testing::Message() << "bad entries " << bad);
            size_t first = edits.size();
            UINT message = 0;
            for (size_t i = edits.size(); i-- > 0;)
            {
                const bool isBad = (bad >> i & 1) != 0, isText = (bad + i) % 2 == 0 || outside[i] == nullptr;
                SetTextByProgram(dialog, edits[i].first, !isBad ? good[i] : isText ? "x" : outside[i]);
                if (isBad)
                {
                    first = i;
                    message = isText ? 20001 : edits[i].second;
                }
            }
            ExpectRefusal(dialog, message, edits[first].first);
        }
    });
}

TEST_P(CPulseFormCheckTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    const SPulseForm& form = GetParam();
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form);
        for (const auto& [edit, message] : CheckedEdits(form))
            dialog.Type(edit, "");
        ExpectRefusal(dialog, 20001, 2052);
        dialog.Type(2052, "10A");
        ExpectRefusal(dialog, 20001, form.start);
        dialog.Type(form.start, "100");
        for (const SFormNumber& number : form.numbers)
        {
            ExpectRefusal(dialog, 20001, number.id);
            dialog.Type(number.id, number.good[2].text);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(form, {}));
}

TEST_P(CPulseFormCheckTest, TakesBlanksZerosAndALoneSign)
{
    const SPulseForm& form = GetParam();
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form);
        SetTextByProgram(dialog, 2052, " 10A ");
        SetTextByProgram(dialog, form.start, " 00100 ");
        for (const SFormNumber& number : form.numbers)
        {
            const std::string text = number.good[2].text;
            const bool negative = text[0] == '-';
            const std::string zeros = number.notation == kTenths || number.notation == kAnyTenths ? "" : "000";
            SetTextByProgram(dialog, number.id,
                             (negative ? "  -" : "  ") + zeros + text.substr(negative ? 1 : 0) + " ");
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(form, {}));
    if (form.instruction < 175)
        return;
    Confirm(form, [&](CDialogRobot& dialog) { dialog.Type(form.numbers.back().id, "-"); });
    EXPECT_EQ(ReadResults(m_wizard).data.back().value, 0);
}
