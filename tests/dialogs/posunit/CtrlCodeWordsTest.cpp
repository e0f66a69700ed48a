// What the dialog of the control code shows of a word, and what it makes of the choices.
#include "dialogs/posunit/PosCtrlCodeDlg.h"
#include "tests/dialogs/posunit/CtrlCodeTest.h"
#include "tests/support/Sampled.h"

#include <random>

namespace
{

constexpr DWORD kAllFirst = 0;
constexpr DWORD kAllLast = 0xF32B37FF;
constexpr DWORD kBitsOfNoField = 0x0CC0C800;

TEST_F(CCtrlCodeTest, EveryItemSetsItsBitsInTheReadOut)
{
    Look(kAllFirst, [](CDialogRobot& dialog) {
        for (const SCodeCombo& combo : kCodeCombos)
        {
            const int count = static_cast<int>(AxisFieldAt(combo.shift).items.size());
            for (int item = count; item-- > 0;)
            {
                dialog.Select(combo.id, item);
                EXPECT_EQ(dialog.Text(kReadOut), CString(HexText(static_cast<DWORD>(item) << combo.shift).c_str()))
                    << "item " << item << " of list " << combo.id;
            }
        }
    });
}

TEST_F(CCtrlCodeTest, EveryItemSetsItsBitsInTheResult)
{
    for (const SCodeCombo& combo : kCodeCombos)
    {
        const int count = static_cast<int>(AxisFieldAt(combo.shift).items.size());
        for (int item = 0; item < count; ++item)
        {
            const auto select = [&](CDialogRobot& dialog) { dialog.Select(combo.id, item); };
            EXPECT_EQ(Confirm(kAllFirst, select), static_cast<DWORD>(item) << combo.shift)
                << "item " << item << " of list " << combo.id;
        }
    }
}

// Each choice replaces the bits of its own field and no others.
TEST_F(CCtrlCodeTest, EveryItemLeavesTheOtherFieldsAlone)
{
    Look(kAllLast | kBitsOfNoField, [](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(kReadOut), CString("FFEBFFFF"));
        for (const SCodeCombo& combo : kCodeCombos)
        {
            const SAxisField& field = AxisFieldAt(combo.shift);
            const int last = static_cast<int>(field.items.size()) - 1;
            for (int item = 0; item <= last; ++item)
            {
                dialog.Select(combo.id, item);
                const DWORD expected = 0xFFEBFFFF - (static_cast<DWORD>(last - item) << combo.shift);
                EXPECT_EQ(dialog.Text(kReadOut), CString(HexText(expected).c_str()))
                    << "item " << item << " of list " << combo.id;
            }
        }
    });
}

struct SWord
{
    DWORD word;
    const char* shown;
    DWORD returned;
};

constexpr SWord kWords[] = {
    {0x00000000, "00000000", 0x00000000}, {0xFFFFFFFF, "FFC3FFFF", 0xF30337FF},
    {0x0CC0C800, "0CC0C800", 0x00000000}, // bits of no field
    {0x00000800, "00000800", 0x00000000}, {0x00004000, "00004000", 0x00000000},
    {0x00008000, "00008000", 0x00000000}, {0x00400000, "00400000", 0x00000000},
    {0x00800000, "00800000", 0x00000000}, {0x04000000, "04000000", 0x00000000},
    {0x08000000, "08000000", 0x00000000}, {0x000C0000, "00000000", 0x00000000}, // values without an item
    {0x00300000, "00000000", 0x00000000}, {0x003C0000, "00000000", 0x00000000},
    {0x00080000, "00080000", 0x00080000}, {0x00200000, "00200000", 0x00200000},
    {0x80000000, "80000000", 0x80000000}, {0x70000000, "70000000", 0x70000000},
    {0x00003000, "00003000", 0x00003000}, {0x00000700, "00000700", 0x00000700},
    {0x12345678, "12045678", 0x12041678},
};

TEST_F(CCtrlCodeTest, ShowsAWordAndReturnsWhatItsListsSay)
{
    for (const SWord& row : kWords)
    {
        SCOPED_TRACE(HexText(row.word));
        EXPECT_EQ(
            Confirm(row.word, [&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(kReadOut), CString(row.shown)); }),
            row.returned);
    }
}

TEST_F(CCtrlCodeTest, ShowsEveryBitOnItsOwn)
{
    for (int bit = 0; bit < 32; ++bit)
    {
        const DWORD word = DWORD{1} << bit;
        EXPECT_EQ(Confirm(word, [&](CDialogRobot& dialog) { ExpectShown(dialog, word); }), ComposedOf(word));
    }
}

// A 0 means the opposite of what it means for the two other inputs.
TEST_F(CCtrlCodeTest, HasTheNearHomeInputTheOtherWayRound)
{
    Look(0, [](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(3051), CString("Non-electric conduction ON"));
        EXPECT_EQ(dialog.Text(3052), CString("Electric conduction ON"));
        EXPECT_EQ(dialog.Text(3054), CString("Non-electric conduction ON"));
        dialog.SelectText(3052, "Non-electric conduction ON");
        EXPECT_EQ(dialog.Text(kReadOut), CString("00000020"));
    });
    Look(0x20, [](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(3052), CString("Non-electric conduction ON")); });
}

TEST_F(CCtrlCodeTest, ComposesAsFarAsTheFirstListWithoutSelection)
{
    for (const SCodeCombo& combo : kCodeCombos)
    {
        const DWORD below = (DWORD{1} << combo.shift) - 1;
        EXPECT_EQ(Confirm(kAllLast | kBitsOfNoField,
                          [&](CDialogRobot& dialog) {
                              SelectByProgram(dialog, combo.id, -1);
                              EXPECT_EQ(dialog.Text(kReadOut),
                                        CString(HexText((kAllLast & below) | kBitsOfNoField).c_str()));
                          }),
                  kAllLast & below)
            << "list " << combo.id;
    }
}

// ---- Random words ---------------------------------------------------------------------------------------------------

// A hundred thousand words by three ways, or a part of them where one opening takes long.
const int kOpenings = IsThorough() ? 5000 : 20;
const int kRefreshes = IsThorough() ? 90000 : 300;
const int kInputs = IsThorough() ? 5000 : 60;

DWORD NextWord(std::mt19937& random) { return static_cast<DWORD>(random()); }

TEST_F(CCtrlCodeTest, ReturnsWhatItShowsOfRandomWords)
{
    std::mt19937 random(1051);
    for (int i = 0; i < kOpenings && !HasFailure(); ++i)
    {
        const DWORD word = NextWord(random);
        EXPECT_EQ(Confirm(word, [&](CDialogRobot& dialog) { ExpectShown(dialog, word); }), ComposedOf(word));
    }
}

// One dialog goes through its opening again for every word.
TEST_F(CCtrlCodeTest, ShowsRandomWords)
{
    std::mt19937 random(1057);
    CPosCtrlCodeDlg code(&m_wizard, nullptr);
    Play([&] { return static_cast<int>(code.DoModal()); }, {[&](CDialogRobot& dialog) {
             for (int i = 0; i < kRefreshes && !HasFailure(); ++i)
             {
                 const DWORD word = NextWord(random);
                 code.SetCode(word);
                 dialog.Dialog()->SendMessage(WM_INITDIALOG);
                 ExpectShown(dialog, word);
             }
             dialog.Click(IDCANCEL);
         }});
}

TEST_F(CCtrlCodeTest, ShowsRandomWordsOfTheDirectInput)
{
    std::mt19937 random(1058);
    DWORD word = NextWord(random);
    std::vector<DWORD> words;
    std::vector<Scene> inputs;
    for (int i = 0; i < kInputs; ++i)
    {
        words.push_back(NextWord(random));
        inputs.push_back([shown = word, next = words.back()](CDialogRobot& input) {
            EXPECT_EQ(input.Text(kHexEdit), CString(HexText(ShownOf(shown)).c_str()));
            input.SetText(kHexEdit, HexText(next).c_str());
            input.Click(IDOK);
        });
        word = words.back();
    }
    std::mt19937 again(1058);
    const DWORD returned = Confirm(
        NextWord(again),
        [&](CDialogRobot& dialog) {
            for (const DWORD shown : words)
            {
                dialog.Click(kDirectInput);
                ExpectShown(dialog, shown);
            }
        },
        std::move(inputs));
    EXPECT_EQ(returned, ComposedOf(word));
}

} // namespace
