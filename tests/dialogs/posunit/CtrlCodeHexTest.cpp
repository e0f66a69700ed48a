// The direct input of the control code.
#include "dialogs/posunit/CtrlCodeHexDlg.h"
#include "tests/dialogs/posunit/CtrlCodeTest.h"

namespace
{

class CCtrlCodeHexTest : public CCtrlCodeTest
{
protected:
    static void ClickDirectInput(CDialogRobot& dialog) { dialog.Click(kDirectInput); }

    /// Plays a scene in the direct input of a word and cancels it when it is still open.
    void InInput(DWORD word, const Scene& scene)
    {
        Look(word, ClickDirectInput, {[&](CDialogRobot& input) {
                 scene(input);
                 if (input.IsOpen())
                     input.Click(IDCANCEL);
             }});
    }
};

TEST_F(CCtrlCodeHexTest, ComesUpWithTheWordThatIsShown)
{
    for (const bool library : {false, true})
    {
        if (library)
            UseLibrary();
        InInput(0xFFFFFFFF, [](CDialogRobot& input) {
            EXPECT_EQ(input.Caption(), CString("Control code direct input"));
            ExpectControls(input, {{kSharedId, "Static", "Control code (Hex)"},
                                   {3358, "Edit", "FFC3FFFF"},
                                   {1, "Button", "&OK"},
                                   {2, "Button", "Cancel"}});
            EXPECT_EQ(input.Limit(kHexEdit), 8);
            const DWORD style = input.Dialog()->GetDlgItem(kHexEdit)->GetStyle();
            EXPECT_EQ(style & (ES_LEFT | ES_CENTER | ES_RIGHT), DWORD{ES_RIGHT});
            EXPECT_NE(style & ES_UPPERCASE, 0u);
            EXPECT_EQ(input.FocusId(), kHexEdit);
        });
    }
}

TEST_F(CCtrlCodeHexTest, ComesUpWithWhatIsSelectedAtTheMoment)
{
    Look(0x00000800,
         [](CDialogRobot& dialog) {
             dialog.Select(3071, 5);
             dialog.Select(3072, 1);
             dialog.Click(kDirectInput);
         },
         {[](CDialogRobot& input) {
             EXPECT_EQ(input.Text(kHexEdit), CString("D0000800"));
             input.Click(IDCANCEL);
         }});
}

TEST_F(CCtrlCodeHexTest, TakesEightCharactersInUpperCase)
{
    InInput(0, [](CDialogRobot& input) {
        input.Type(kHexEdit, "abcdef0123");
        EXPECT_EQ(input.Text(kHexEdit), CString("ABCDEF01"));
    });
}

struct SInput
{
    const char* text;
    DWORD word;
};

constexpr SInput kAccepted[] = {
    {"", 0},
    {" ", 0},
    {"        ", 0},
    {"0", 0},
    {"1a2b", 0x1A2B},
    {"1A2B", 0x1A2B},
    {" 1a2b ", 0x1A2B},
    {"  1a2b  ", 0x1A2B},
    {"\t1a2b\r\n", 0x1A2B},
    {"7", 7},
    {"00000001", 1},
    {"ffffffff", 0xFFFFFFFF},
    {"FfFf3700", 0xFFFF3700},
    {"800", 0x800},
    {"89abcdef", 0x89ABCDEF},
};

TEST_F(CCtrlCodeHexTest, AcceptsHexadecimalNumbers)
{
    for (const SInput& row : kAccepted)
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Confirm(0x70000000 | 0x08000000,
                          [&](CDialogRobot& dialog) {
                              dialog.Click(kDirectInput);
                              ExpectShown(dialog, row.word);
                          },
                          {[&](CDialogRobot& input) {
                              input.SetText(kHexEdit, row.text);
                              EXPECT_EQ(input.ClickAndAnswer(IDOK), CString());
                          }}),
                  ComposedOf(row.word));
    }
}

TEST_F(CCtrlCodeHexTest, AcceptsWhatIsTyped)
{
    for (const SInput& row : {SInput{"", 0}, {"1a2b", 0x1A2B}, {"  1a2b", 0x1A2B}, {" 1a2b ", 0x1A2B}, {"c", 0xC}})
    {
        EXPECT_EQ(Confirm(0xFFFFFFFF, ClickDirectInput, {Input(row.text)}), ComposedOf(row.word)) << row.text;
    }
}

constexpr const char* kRefused[] = {"12G4", "G",   "-1",   "+1", "0x1",      "1 2",     "1,2", "1.2",
                                    "h",    "1h",  "12g4", "@",  ":",        "/",       "`",   "1234 567",
                                    "\x80", "_12", "12_",  "#1", "1234567g", "g234567", "$FF", "0:"};

TEST_F(CCtrlCodeHexTest, RefusesWhatIsNoHexadecimalNumber)
{
    InInput(0x12041678, [](CDialogRobot& input) {
        for (const char* text : kRefused)
        {
            SCOPED_TRACE(text);
            input.SetText(kHexEdit, text);
            ExpectRefusal(input, 20101, kHexEdit);
        }
    });
}

TEST_F(CCtrlCodeHexTest, TakesTheRightWordAfterAWrongOne)
{
    EXPECT_EQ(Confirm(0xFFFFFFFF, ClickDirectInput, {[](CDialogRobot& input) {
                          input.Type(kHexEdit, "12g4");
                          EXPECT_EQ(input.Text(kHexEdit), CString("12G4"));
                          ExpectRefusal(input, 20101, kHexEdit);
                          // What is typed replaces the wrong word.
                          for (const char c : {'3', '0'})
                              input.Dialog()->GetDlgItem(kHexEdit)->PostMessage(WM_CHAR, static_cast<WPARAM>(c), 1);
                          input.Pump();
                          EXPECT_EQ(input.Text(kHexEdit), CString("30"));
                          EXPECT_EQ(input.ClickAndAnswer(IDOK), CString());
                      }}),
              0x30u);
}

TEST_F(CCtrlCodeHexTest, ChangesNothingOnCancel)
{
    const auto leave = [](const char* text) {
        return [text](CDialogRobot& input) {
            input.Type(kHexEdit, text);
            input.Click(IDCANCEL);
        };
    };
    const DWORD word = 0x92021678;
    EXPECT_EQ(Confirm(word | 0x0CC0C800,
                      [&](CDialogRobot& dialog) {
                          for (int i = 0; i < 3; ++i)
                          {
                              dialog.Click(kDirectInput);
                              ExpectShown(dialog, word | 0x0CC0C800);
                          }
                      },
                      {leave("0"), leave("12G4"),
                       [](CDialogRobot& input) {
                           input.Type(kHexEdit, "xyz");
                           ExpectRefusal(input, 20101, kHexEdit);
                           input.PressKey(VK_ESCAPE);
                           EXPECT_FALSE(input.IsOpen());
                       }}),
              word);
}

TEST_F(CCtrlCodeHexTest, KeepsTheChoicesOnCancel)
{
    EXPECT_EQ(Confirm(0,
                      [](CDialogRobot& dialog) {
                          dialog.Select(3355, 6);
                          dialog.Click(kDirectInput);
                          ExpectShown(dialog, 0x600);
                      },
                      {[](CDialogRobot& input) {
                          input.Type(kHexEdit, "FF");
                          input.Click(IDCANCEL);
                      }}),
              0x600u);
}

// The bits that belong to no field come from the word that was typed last, and are not returned.
TEST_F(CCtrlCodeHexTest, ReplacesTheBitsThatBelongToNoField)
{
    EXPECT_EQ(Confirm(0x0CC00000,
                      [](CDialogRobot& dialog) {
                          EXPECT_EQ(dialog.Text(kReadOut), CString("0CC00000"));
                          dialog.Click(kDirectInput);
                          EXPECT_EQ(dialog.Text(kReadOut), CString("00000800"));
                          dialog.Select(3351, 1);
                          EXPECT_EQ(dialog.Text(kReadOut), CString("00000801"));
                          dialog.Select(3351, 0);
                      },
                      {Input("00000800")}),
              0u);
}

TEST_F(CCtrlCodeHexTest, FillsTheListsAgain)
{
    Look(0,
         [](CDialogRobot& dialog) {
             SelectByProgram(dialog, 3351, -1);
             dialog.Click(kDirectInput);
             ExpectShown(dialog, 0xFFFFFFFF);
             for (const SCodeCombo& combo : kCodeCombos)
                 EXPECT_EQ(dialog.Items(combo.id).size(), AxisFieldAt(combo.shift).items.size());
         },
         {Input("FFFFFFFF")});
}

TEST_F(CCtrlCodeHexTest, EnterConfirms)
{
    EXPECT_EQ(Confirm(0, ClickDirectInput, {[](CDialogRobot& input) {
                          input.Type(kHexEdit, "41");
                          input.PressKey(VK_RETURN);
                          EXPECT_FALSE(input.IsOpen());
                      }}),
              0x41u);
}

TEST_F(CCtrlCodeHexTest, KeepsTheWordUnlessItIsConfirmed)
{
    CCtrlCodeHexDlg input(&m_wizard, nullptr);
    input.SetCode(0xABC);
    const auto open = [&] { return static_cast<int>(input.DoModal()); };
    EXPECT_EQ(Play(open, {[](CDialogRobot& dialog) {
                       EXPECT_EQ(dialog.Text(kHexEdit), CString("00000ABC"));
                       dialog.Type(kHexEdit, "1");
                       dialog.Click(IDCANCEL);
                   }}),
              2);
    EXPECT_EQ(input.GetCode(), 0xABCu);
    EXPECT_EQ(Play(open, {Input("1")}), 1);
    EXPECT_EQ(input.GetCode(), 1u);
}

TEST_F(CCtrlCodeHexTest, DoesNotOpenWithoutItsTemplate)
{
    UseLibraryWithoutDialogs();
    CCtrlCodeHexDlg input(&m_wizard, nullptr);
    input.SetCode(0xABC);
    EXPECT_EQ(Play([&] { return static_cast<int>(input.DoModal()); }, {}), -1);
    EXPECT_EQ(input.GetCode(), 0xABCu);
}

} // namespace
