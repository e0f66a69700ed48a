// What the selection dialog shows in every language: columns that are apart, explanations that are seen whole.
#include "tests/resources/LanguageTest.h"
#include "tests/resources/RoomForText.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"

#include <numeric>

namespace
{

constexpr UINT kList = 2001;
constexpr UINT kExplanation = 2002;

/// What is listed: the instructions of a PLC type, or the operations of the unit.
struct SSelection
{
    int plcType;
    int mode;
    std::vector<int> instructions;
};

const std::vector<SSelection> kSelections = {{kPlcFamilyA, 0, {168, 169, 170, 171, 172, 173, 174, 175, 176, 355}},
                                             {kPlcFamilyB, 0, {171, 172, 173, 174, 175, 177}},
                                             {kPlcFamilyC, 0, {171, 172, 173, 174, 175}},
                                             {kPlcFamilyA, 1, {}}};

class CSelectionTextsTest : public CDesktopTest, public testing::WithParamInterface<SExpectedLanguage>
{
protected:
    template <typename TLook>
    void Open(const SSelection& selection, TLook look)
    {
        SCOPED_TRACE(testing::Message() << "PLC type " << selection.plcType << ", mode " << selection.mode);
        CFunWizard wizard;
        ASSERT_NE(wizard.SetLanguageInfo(GetParam().index), nullptr);
        SetUpController(wizard, selection.plcType);
        wizard.ClearSuppportFunInfo();
        for (const int instruction : selection.instructions)
            wizard.EntrySupportFunInfo(instruction);
        Play([&] { return wizard.DoOpenPosDlg(static_cast<BYTE>(selection.mode), 1, nullptr); },
             {[&](CDialogRobot& robot) {
                 look(robot);
                 robot.Click(IDCANCEL);
             }});
    }
};

int ClientWidth(CDialogRobot& robot, UINT id)
{
    CRect client;
    robot.Dialog()->GetDlgItem(static_cast<int>(id))->GetClientRect(&client);
    return client.Width();
}

// Tab stops put a gap behind the widest text of a column. They are dialog units of the system's font, which may be a
// pixel or two wider.
int WidthOfColumns(const CTextRuler& ruler, const std::vector<CString>& items)
{
    constexpr int kGaps = 20 + 15 + 2;
    std::vector<int> widest(3);
    for (const CString& item : items)
    {
        const std::vector<std::string> columns = Columns(Plain(item));
        EXPECT_EQ(columns.size(), widest.size());
        for (size_t i = 0; i < std::min(columns.size(), widest.size()); ++i)
            widest[i] = std::max(widest[i], ruler.Width(columns[i]));
    }
    return std::accumulate(widest.begin(), widest.end(), kGaps);
}

int WidthOfItems(const CTextRuler& ruler, const std::vector<CString>& items)
{
    int widest = 0;
    for (const CString& item : items)
        widest = std::max(widest, ruler.Width(Plain(item)));
    return widest;
}

TEST_P(CSelectionTextsTest, ShowWholeItems)
{
    for (const SSelection& selection : kSelections)
        Open(selection, [&](CDialogRobot& robot) {
            const CTextRuler ruler(robot.Dialog()->GetFont());
            const std::vector<CString> items = robot.Items(kList);
            EXPECT_FALSE(items.empty());
            EXPECT_LE(selection.mode == 0 ? WidthOfColumns(ruler, items) : WidthOfItems(ruler, items),
                      ClientWidth(robot, kList));
        });
}

std::vector<std::string> LinesOf(const CString& text)
{
    std::vector<std::string> lines(1);
    for (const char c : Plain(text))
    {
        if (c == '\n')
            lines.emplace_back();
        else if (c != '\r')
            lines.back() += c;
    }
    return lines;
}

/// Expects that the explanation shown needs no scrolling, and that its lines together are one of the texts again: no
/// character was cut in two where a line ends.
void ExpectWholeExplanation(CDialogRobot& robot, const std::vector<SPlacedText>& texts)
{
    CRect client;
    robot.Dialog()->GetDlgItem(kExplanation)->GetClientRect(&client);
    const CTextRuler ruler(robot.Dialog()->GetFont());
    const std::vector<std::string> lines = LinesOf(robot.Text(kExplanation));
    EXPECT_LE(static_cast<int>(lines.size()), client.Height() / ruler.LineHeight());

    std::u16string whole;
    for (const std::string& line : lines)
    {
        EXPECT_LE(ruler.Width(line), client.Width()) << Utf8(FromPage(line, AfxGetTextPage()));
        whole += FromPage(line, AfxGetTextPage());
    }
    EXPECT_FALSE(whole.empty());
    const auto isWhole = [&](const SPlacedText& text) { return text.text == whole; };
    EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), isWhole)) << Utf8(whole);
}

TEST_P(CSelectionTextsTest, ShowWholeExplanations)
{
    const std::vector<SPlacedText>& texts = TextsIn(GetParam().index);
    for (const SSelection& selection : kSelections)
        Open(selection, [&](CDialogRobot& robot) {
            const int items = static_cast<int>(robot.Items(kList).size());
            for (int item = 0; item < items; ++item)
            {
                SCOPED_TRACE("item " + std::to_string(item));
                robot.Select(kList, item);
                ExpectWholeExplanation(robot, texts);
            }
        });
}

INSTANTIATE_TEST_SUITE_P(Languages, CSelectionTextsTest, testing::ValuesIn(kExpectedLanguages), NameOf);

} // namespace
