// The texts of the lines: up to five bytes in any code page, whole characters.
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/robust/CodePage.h"
#include "tests/support/Sampled.h"

#include "dialogs/process/ScreenSettings.h"

namespace
{

class CScrDispTextTest : public CScrDispTest
{
protected:
    ~CScrDispTextTest() override { UseCodePage(kCodePages[0]); }

    /// What becomes of a text that is typed or pasted into a line: shown, and stored.
    void ExpectEntered(ELine line, const std::string& entered, const std::string& kept, bool pasted = false)
    {
        SCOPED_TRACE(testing::Message() << testing::PrintToString(entered) << (pasted ? " pasted" : " typed"));
        Forget();
        SScrDispEntries entries;
        entries.lines[line].mode = 3;
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            EditLine(dialog, line);
            if (pasted)
            {
                dialog.Focus(2872);
                dialog.Paste(entered.c_str());
            }
            else
                dialog.Type(2872, entered.c_str());
            EXPECT_EQ(dialog.Text(2872), CString(kept.c_str()));
            entries.lines[line].text = kept;
            ExpectPreview(dialog, entries);
        });
        EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(entries));
        EXPECT_EQ(Block(), BlockOf(entries));
        Leave([&](CDialogRobot& dialog) {
            EditLine(dialog, line);
            EXPECT_EQ(dialog.Text(2872), CString(kept.c_str())) << "reopened";
        });
    }
};

TEST_F(CScrDispTextTest, HoldUpToFiveCharacters)
{
    for (const ELine line : {kUpside, kDownside})
        for (const char* text : {"", "A", "AB", "ABC", "ABCD", "ABCDE"})
            ExpectEntered(line, text, text);
    ExpectEntered(kUpside, "ABCDEF", "ABCDE");
    ExpectEntered(kDownside, "ABCDEFGHIJ", "ABCDE", true);
    ExpectEntered(kUpside, "A C", "A C", true);
    ExpectEntered(kDownside, "  ", "  ");
    ExpectEntered(kUpside, " a-&% ", " a-&%");
}

// The words in full, so that the model is checked, too.
TEST_F(CScrDispTextTest, GoToTheDisplayDataOfTheirLine)
{
    struct SRow
    {
        const char* text;
        std::vector<int> words;
    };
    const SRow kRows[] = {{"", {}},
                          {"1", {0x0031}},
                          {"12", {0x3231}},
                          {"123", {0x3231, 0x0033}},
                          {"1234", {0x3231, 0x3433}},
                          {"12345", {0x3231, 0x3433, 0x0035}}};
    for (const SRow& row : kRows)
        for (const ELine line : {kUpside, kDownside})
        {
            SScrDispEntries entries;
            entries.devices[1] = {kWR, 20, "20"};
            entries.devices[2] = {kR, 63, "3F"};
            entries.lines[line] = {.mode = 3, .text = row.text};
            const SResults results = Confirmed(entries);
            std::vector<SDataRow> expected = {{9, 100, 0, 1, 0},
                                              {9, 101, 0, 1, line == kUpside ? 0x2060 : 0x2000},
                                              {9, 102, 0, 1, line == kDownside ? 0x2060 : 0x2000}};
            int number = line == kUpside ? 20 : 63;
            for (const int word : row.words)
                expected.push_back({line == kUpside ? 65 : 1, number++, 0, 1, word});
            EXPECT_EQ(results.data, expected) << row.text;
        }
}

TEST_F(CScrDispTextTest, StandOneBehindTheOther)
{
    SScrDispEntries entries;
    entries.devices[1] = {kWL, 7, "7"};
    entries.lines[kUpside] = {.mode = 3, .text = "HELLO"};
    entries.lines[kDownside] = {.mode = 3, .text = "you"};
    EXPECT_EQ(Confirmed(entries).data, (std::vector<SDataRow>{{9, 100, 0, 1, 0},
                                                              {9, 101, 0, 1, 0x2060},
                                                              {9, 102, 0, 1, 0x2060},
                                                              {64, 7, 0, 1, 0x4548},
                                                              {64, 8, 0, 1, 0x4C4C},
                                                              {64, 9, 0, 1, 0x004F},
                                                              {9, 300, 0, 1, 0x6F79},
                                                              {9, 301, 0, 1, 0x0075}}));
}

TEST_F(CScrDispTextTest, HoldTheBytesOfSingleByteCodePages)
{
    const struct
    {
        unsigned codePage;
        const char* entered;
        const char* kept;
    } kRows[] = {{1252, "\xE4\xF6\xFC\xDF\xA7", "\xE4\xF6\xFC\xDF\xA7"},
                 {1252, "\x80\x9F", "\x80\x9F"},
                 {874, "\xA1\xA2\xE0\xC0\xC1\xC2", "\xA1\xA2\xE0\xC0\xC1"}};
    for (const auto& row : kRows)
    {
        UseCodePage(row.codePage);
        if (::GetACP() != row.codePage)
            continue; // the desktop stays with its own
        ExpectEntered(kUpside, row.entered, row.kept);
        ExpectEntered(kDownside, row.entered, row.kept, true);
    }
}

/// Code pages with characters of two bytes, and one of these.
struct SDoubleByte
{
    unsigned codePage;
    std::string character;
};

const SDoubleByte kDoubleByte[] = {{932, "\x8E\xA0"}, {936, "\xB0\xA1"}, {949, "\xB0\xA1"}, {950, "\xB0\xA1"}};

/// A text of single characters and double ones, 'X', and what fits of it.
struct SCutText
{
    std::string entered;
    std::string kept;

    std::string Entered(const std::string& character) const { return With(entered, character); }
    std::string Kept(const std::string& character) const { return With(kept, character); }

    static std::string With(std::string text, const std::string& character)
    {
        for (size_t at = 0; (at = text.find('X', at)) != std::string::npos; at += character.size())
            text.replace(at, 1, character);
        return text;
    }
};

const SCutText kCutTexts[] = {{"X", "X"},        {"XX", "XX"},     {"XXX", "XX"},   {"XXz", "XXz"},
                              {"abcdX", "abcd"}, {"abcX", "abcX"}, {"abXX", "abX"}, {"aXbX", "aXb"}};

TEST_F(CScrDispTextTest, NeverEndInsideACharacter)
{
    int codePages = 0;
    for (const auto& [codePage, character] : kDoubleByte)
    {
        UseCodePage(codePage);
        if (::GetACP() != codePage)
            continue; // the desktop stays with its own
        ++codePages;
        SCOPED_TRACE(testing::Message() << "code page " << codePage);
        for (const SCutText& row : kCutTexts)
            ExpectEntered(row.entered.size() % 2 == 0 ? kUpside : kDownside, row.Entered(character),
                          row.Kept(character), true);
    }
    if (codePages == 0)
        GTEST_SKIP() << "this desktop has one code page";
}

// Where the code page is the system's, it takes a keyboard of that language to type such a character.
TEST_F(CScrDispTextTest, NeverEndInsideACharacterThatIsTyped)
{
    UseCodePage(932);
    const UINT first = ::GetACP();
    UseCodePage(936);
    if (::GetACP() == first)
        GTEST_SKIP() << "this desktop has one code page";
    for (const auto& [codePage, character] : kDoubleByte)
    {
        UseCodePage(codePage);
        SCOPED_TRACE(testing::Message() << "code page " << codePage);
        for (const SCutText& row : kCutTexts)
            ExpectEntered(kUpside, row.Entered(character), row.Kept(character));
    }
}

// Past the limit of the edit, as where it counts characters: the text is cut at once, the caret behind it.
TEST_F(CScrDispTextTest, AreCutWhenTheyAreTooLong)
{
    Confirm([](CDialogRobot& dialog) {
        SScrDispEntries entries;
        entries.lines[kUpside].mode = 3;
        FillIn(dialog, entries);
        SetTextByProgram(dialog, 2872, "ABCDEFGH");
        EXPECT_EQ(dialog.Text(2872), CString("ABCDE"));
        EXPECT_EQ(dialog.SelectedRange(2872), (std::pair{5, 5}));
        entries.lines[kUpside].text = "ABCDE";
        ExpectPreview(dialog, entries);
        dialog.Select(2869, 1);
        SetTextByProgram(dialog, 2872, std::string(3000, 'x'));
        EXPECT_EQ(dialog.Text(2872), CString("xxxxx"));
    });
    EXPECT_EQ(Block(), (CScreenBlock{0, 0x2020, 0x2000, 0x7878, 0x7878, 0x0078, 0, 0, 0, 0}));
}

TEST_F(CScrDispTextTest, AreCutBehindAWholeCharacter)
{
    for (const auto& [codePage, character] : kDoubleByte)
    {
        UseCodePage(codePage);
        if (::GetACP() != codePage)
            continue; // the desktop stays with its own
        Leave([&, text = character](CDialogRobot& dialog) {
            dialog.Select(2869, 3);
            for (const SCutText& row : kCutTexts)
            {
                SetTextByProgram(dialog, 2872, "");
                SetTextByProgram(dialog, 2872, row.Entered(text));
                EXPECT_EQ(dialog.Text(2872), CString(row.Kept(text).c_str())) << row.entered;
            }
        });
    }
}

// Every keystroke changes the picture.
TEST_F(CScrDispTextTest, AreShownWhileTheyAreTyped)
{
    Leave([](CDialogRobot& dialog) {
        SScrDispEntries entries;
        entries.lines[kUpside].mode = 3;
        dialog.Select(2869, 3);
        dialog.Focus(2872);
        for (const char key : std::string("HELP5"))
        {
            dialog.Dialog()->GetDlgItem(2872)->SendMessage(WM_CHAR, static_cast<WPARAM>(key), 1);
            entries.lines[kUpside].text += key;
            EXPECT_EQ(dialog.Text(2872), CString(entries.lines[kUpside].text.c_str()));
            ExpectPreview(dialog, entries);
        }
        while (!entries.lines[kUpside].text.empty())
        {
            dialog.Dialog()->GetDlgItem(2872)->SendMessage(WM_CHAR, '\b', 1);
            entries.lines[kUpside].text.pop_back();
            ExpectPreview(dialog, entries);
        }
    });
}

// Changes in the middle leave the caret where it is.
TEST_F(CScrDispTextTest, AreEditedInTheMiddle)
{
    Leave([](CDialogRobot& dialog) {
        dialog.Select(2869, 3);
        dialog.Type(2872, "ABD");
        CWnd* edit = dialog.Dialog()->GetDlgItem(2872);
        edit->SendMessage(EM_SETSEL, 2, 2);
        edit->SendMessage(WM_CHAR, 'C', 1);
        EXPECT_EQ(dialog.Text(2872), CString("ABCD"));
        EXPECT_EQ(dialog.SelectedRange(2872), (std::pair{3, 3}));
    });
}

// What is typed before other characters finds no room, and pushes none of them out.
TEST_F(CScrDispTextTest, KeepTheirEnd)
{
    for (const auto& [codePage, character] : kDoubleByte)
    {
        UseCodePage(codePage);
        if (::GetACP() != codePage)
            continue; // the desktop stays with its own
        Leave([&, text = std::string(character)](CDialogRobot& dialog) {
            dialog.Select(2869, 3);
            SetTextByProgram(dialog, 2872, "abcd");
            for (const std::string& entered : {text + "abcd", "ab" + text + "cd", "abc" + text + "d"})
            {
                SetTextByProgram(dialog, 2872, entered);
                EXPECT_EQ(dialog.Text(2872), CString("abcd")) << entered;
            }
            SetTextByProgram(dialog, 2872, "abcd" + text);
            EXPECT_EQ(dialog.Text(2872), CString("abcd"));
            SetTextByProgram(dialog, 2872, "abc" + text);
            EXPECT_EQ(dialog.Text(2872), CString(("abc" + text).c_str()));
        });
    }
}

} // namespace
