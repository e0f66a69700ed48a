// What the pulse-output dialogs show of an earlier run: each list position by its rule, and every stored control code.
#include "tests/dialogs/pulse/PulseFormTest.h"
#include "tests/support/Sampled.h"

namespace
{

class CPulseFormRestoreTest : public CPulseFormsTest
{
protected:
    struct SShown
    {
        const char* what;
        SResults stored;
        const char* device = "X";
        const char* contact = "";
        const char* start = "";
        std::vector<std::string> numbers = {}; // those left out are empty
        std::vector<size_t> items = {};        // all of them the first ones unless given
        int output = 0;
    };

    void ExpectShown(const SShown& shown)
    {
        const SPulseForm& form = GetParam();
        SCOPED_TRACE(shown.what);
        WriteResults(m_wizard, shown.stored);
        Leave(form, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2051), CString(shown.device));
            EXPECT_EQ(dialog.Text(2052), CString(shown.contact));
            EXPECT_EQ(dialog.Text(form.start), CString(shown.start));
            if (form.output != kNoOutput)
            {
                EXPECT_EQ(dialog.Selection(form.outputList), shown.output);
            }
            for (size_t i = 0; i < form.lists.size(); ++i)
                EXPECT_EQ(dialog.Selection(form.lists[i].id), i < shown.items.size() ? shown.items[i] : 0)
                    << "of list " << form.lists[i].id;
            for (size_t i = 0; i < form.numbers.size(); ++i)
                EXPECT_EQ(std::string(dialog.Text(form.numbers[i].id)),
                          i < shown.numbers.size() ? shown.numbers[i] : "")
                    << "of edit " << form.numbers[i].id;
        });
        EXPECT_EQ(ReadResults(m_wizard), shown.stored) << "Back keeps the lists";
    }

    /// Values by position, from `first` on, behind the code that makes the form.
    static std::vector<SDataRow> Data(int device, int first, int number = 100)
    {
        std::vector<SDataRow> data;
        if (GetParam().hasCode)
            data.push_back({device, number, 1, 1, ControlCode(GetParam(), {})});
        for (size_t i = 0; i < GetParam().numbers.size(); ++i)
            data.push_back({device, number, 0, 0, first + static_cast<int>(i)});
        return data;
    }
    static std::vector<std::string> Numbers(int first)
    {
        std::vector<std::string> texts;
        for (const SFormNumber& number : GetParam().numbers)
            texts.push_back(ShownNumber(number, first + static_cast<int>(texts.size())));
        return texts;
    }
    static std::vector<size_t> FormItems()
    {
        std::vector<size_t> items;
        for (size_t i = 0; i < GetParam().lists.size(); ++i)
            items.push_back(SelectedItem(GetParam(), {}, i));
        return items;
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, CPulseFormRestoreTest, testing::ValuesIn(SweptForms()), PulseFormName);

} // namespace

TEST_P(CPulseFormRestoreTest, RestoresEachListPositionByItsRule)
{
    ExpectShown({"nothing", {}});
    ExpectShown({"everything",
                 {.contacts = {{2, 1, 170}}, .operands = {{9, 100}, {11, 0}}, .data = Data(9, 500)},
                 "R",
                 "10A",
                 "100",
                 Numbers(500),
                 FormItems()});
    ExpectShown({"positions, not addresses, kinds of contacts or further records",
                 {.contacts = {{3, 2, 31}, {2, 1, 170}},
                  .operands = {{9, 1}, {12, 0}, {9, 7}, {11, 4}},
                  .data = Data(9, 7, -3)},
                 "Y",
                 "1F",
                 "1",
                 Numbers(7),
                 FormItems()});
    ExpectShown({"numbers longer than what can be typed",
                 {.contacts = {{2, 4, 123456}}, .operands = {{9, 2147483647}}, .data = Data(9, 2147483600)},
                 "T",
                 "123456",
                 "2147483647",
                 Numbers(2147483600),
                 FormItems()});
    ExpectShown({"a contact on a device that the controller does not have", {.contacts = {{2, 17, 170}}}, "X", "10A"});
    ExpectShown({"a start in another device", {.operands = {{10, 100}}}});
    ExpectShown({"a start as a constant", {.operands = {{11, 100}}}});
    for (const int device : {10, 11, 0, -1, 20009})
        ExpectShown({"records of another device", {.data = Data(device, 500)}});
    if (GetParam().hasCode)
        ExpectShown({"a control code alone", {.data = {Data(9, 0)[0]}}, "X", "", "", {}, FormItems()});
}

TEST_P(CPulseFormRestoreTest, RestoresRecordsOneByOne)
{
    for (size_t i = 0; i < GetParam().numbers.size(); ++i)
    {
        SResults stored = {.data = Data(9, 41)};
        std::vector<std::string> numbers = Numbers(41);
        stored.data[GetParam().CodeRecords() + i].code = 10;
        numbers[i] = "";
        ExpectShown({"one record of another device", stored, "X", "", "", numbers, FormItems()});
        stored.data.resize(GetParam().CodeRecords() + i);
        numbers.resize(i);
        ExpectShown({"missing records", stored, "X", "", "", numbers, FormItems()});
    }
}

TEST_P(CPulseFormRestoreTest, RestoresTheOutputFromAConstantThatNamesIt)
{
    const SPulseForm& form = GetParam();
    const bool channel = form.output == kChannelOutput;
    const struct
    {
        std::vector<SOperandRow> operands;
        int builtIn, channel;
        const char* start = "1";
    } rows[] = {
        {{{9, 1}, {11, 1}}, 1, 0},
        {{{9, 1}, {12, 1}}, 1, 0},
        {{{9, 1}, {11, 4}}, 0, 1},
        {{{9, 1}, {12, 6}}, 0, 2},
        {{{9, 1}, {11, 11}}, 0, 3},
        {{{9, 1}, {11, 2}}, 0, 0},
        {{{9, 1}, {11, -1}}, 0, 0},
        {{{9, 1}, {11, 65537}}, 0, 0},
        {{{9, 1}, {11, 65540}}, 0, 0},
        {{{9, 1}, {9, 1}}, 0, 0},
        {{{9, 1}, {9, 4}}, 0, 0},
        {{{9, 1}, {20, 4}}, 0, 0},
        {{{9, 1}}, 0, 0},
        {{{10, 1}, {11, 4}}, 0, 1, ""},
        {{{10, 1}, {12, 1}}, 1, 0, ""},
        {{{11, 4}, {9, 4}, {11, 4}}, 0, 0, ""},
    };
    for (const auto& row : Sampled(rows, 4))
        ExpectShown({"an operand",
                     {.operands = row.operands},
                     "X",
                     "",
                     row.start,
                     {},
                     {},
                     channel ? row.channel : row.builtIn});
}

// ---- Every control code ---------------------------------------------------------------------------------------------

namespace
{

int Restored(const SFormList& list, unsigned code)
{
    const int stored = static_cast<int>(code & static_cast<unsigned>(list.mask));
    for (size_t i = 0; i < list.items.size(); ++i)
        if (list.items[i].code == stored || (i < list.otherCodes.size() && list.otherCodes[i] == stored))
            return static_cast<int>(i);
    return 0;
}

/// Fields of the word that no list reads, too.
std::vector<unsigned> Codes()
{
    std::vector<unsigned> codes;
    for (unsigned mode = 0; mode <= 0xFF; ++mode)
        codes.push_back(mode);
    for (const unsigned shift : {8u, 12u, 16u, 20u, 24u, 28u})
        for (unsigned field = 1; field <= 0xF; ++field)
            codes.push_back(field << shift);
    for (const unsigned code : {0x11213u, 0xFFF11122u, 0x80010923u, 0xFFFFFFFFu, 0x7FF20016u, 0xF1112u, 0x2F0A13u})
        codes.push_back(code);
    return codes;
}

} // namespace

// The dialog goes through its opening again with each code.
TEST_P(CPulseFormRestoreTest, RestoresTheListsFromAnyCode)
{
    const SPulseForm& form = GetParam();
    if (form.radio != 0 || form.displayType != 0)
        return; // F173 has its own test; opening again would shorten F175 again
    Leave(form, [&](CDialogRobot& dialog) {
        for (const unsigned code : Sampled(Codes(), 2))
        {
            m_wizard.RemoveAllDataInfo();
            m_wizard.AddDataInfo(9, 100, 1, 1, static_cast<LONG>(code));
            dialog.Dialog()->SendMessage(WM_INITDIALOG);
            for (const SFormList& list : form.lists)
                EXPECT_EQ(dialog.Selection(list.id), Restored(list, code))
                    << "of list " << list.id << " from " << std::hex << code;
        }
    });
}
