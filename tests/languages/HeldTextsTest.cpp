// Whatever the code page of the system is, the windows of every dialog hold the texts of the language exactly.
#include "tests/languages/HeldTexts.h"
#include "tests/languages/KnownTexts.h"
#include "tests/languages/LineBreaks.h"
#include "tests/languages/Translations.h"

#include "tests/dialogs/InstructionDialogs.h"
#include "tests/robust/CodePage.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

#include "core/ResourceScope.h"
#include "resources/resource.h"

#include <cstdlib>

namespace
{

/// The code page that a run on the system of a country is to find; null in other runs.
const char* SystemAskedFor() { return std::getenv("PEXLO_CODE_PAGE"); }

void WithoutEmpty(std::vector<std::string>& texts)
{
    std::erase_if(texts, [](const std::string& text) { return text.empty(); });
}

class CHeldTextsTest : public CDesktopTest, public testing::WithParamInterface<SLanguageOnSystem>
{
protected:
    CHeldTextsTest()
    {
        UseCodePage(GetParam().page);
        EXPECT_EQ(::GetACP(), GetParam().page);
        SetUpController(m_wizard);
        EXPECT_NE(m_wizard.SetLanguageInfo(GetParam().translation.index), nullptr);
    }
    ~CHeldTextsTest() override { UseCodePage(kWesternPage); }

    /// Looks at every text of the dialog that is open. Returns how many there were that code pages differ in.
    int ExpectKnownTexts(const CDialogRobot& dialog)
    {
        int count = 0;
        for (const SHeldText& held : HeldTexts(dialog.Dialog()->GetSafeHwnd()))
        {
            if (IsPlain(held.text))
                continue;
            ++count;
            EXPECT_TRUE(m_known.Contains(held.text))
                << held.className << ' ' << held.control << " holds \"" << held.text << '"';
        }
        return count;
    }

    /// Opens a dialog, looks at it, has it refuse what it holds where it does, and leaves it.
    void ExpectKnownTextsIn(const std::string& name, const std::function<int()>& open)
    {
        SCOPED_TRACE(name);
        int count = 0;
        Play(open, {[&](CDialogRobot& dialog) {
                 count = ExpectKnownTexts(dialog);
                 const std::string message = ToUtf8(dialog.ClickAndAnswer(IDOK));
                 EXPECT_TRUE(message.empty() || !m_texts.MessagesThatRead(message).empty()) << message;
                 if (dialog.IsOpen())
                     dialog.Click(IDCANCEL);
             }});
        EXPECT_GT(count, 0) << "no text of the language";
    }

    static std::string ToUtf8(const CString& text)
    {
        const CWideText wide(text);
        return Utf8(wide, wide.GetLength());
    }

    /// As a sample, a third of the dialogs stands for the rest, another one in the next language.
    bool IsInSample(size_t i) const
    {
        const bool isWhole = IsThorough() || SystemAskedFor() != nullptr;
        return isWhole || (i + static_cast<size_t>(GetParam().translation.index)) % 3 == 0;
    }

    CLibraryTexts m_texts{GetParam().translation.index};
    CKnownTexts m_known{m_texts};
    CFunWizard m_wizard;
};

TEST_P(CHeldTextsTest, OfTemplates)
{
    size_t templates = 0;
    const CResourceScope scope(m_texts.Library());
    for (UINT id = IDD_SELECT; id < IDD_SELECT + 100; ++id)
    {
        std::vector<std::string> expected = TemplateTexts(m_texts.Library(), id);
        if (expected.empty() || !IsInSample(templates++))
            continue;
        SCOPED_TRACE(testing::Message() << "template " << id);
        WithoutEmpty(expected); // an empty list has no text
        CDialog dialog(id);
        Play([&] { return static_cast<int>(dialog.DoModal()); }, {[&](CDialogRobot& robot) {
                 std::vector<std::string> held;
                 for (const SHeldText& text : HeldTexts(robot.Dialog()->GetSafeHwnd()))
                     held.push_back(text.text);
                 WithoutEmpty(held);
                 EXPECT_EQ(held, expected);
                 robot.Click(IDCANCEL);
             }});
    }
    EXPECT_GT(templates, 30u);
}

TEST_P(CHeldTextsTest, OfInstructionDialogs)
{
    for (size_t i = 0; i < std::size(kInstructionDialogs); ++i)
    {
        if (!IsInSample(i))
            continue;
        const auto dialog = kInstructionDialogs[i].make(&m_wizard);
        ExpectKnownTextsIn(kInstructionDialogs[i].name, [&] { return static_cast<int>(dialog->DoModal()); });
    }
}

TEST_P(CHeldTextsTest, OfTheControlCode)
{
    ULONG code = 0;
    ExpectKnownTextsIn("control code", [&] { return m_wizard.DoInputPosCtrlDlg(code, nullptr); });
}

// Every item with its explanation.
TEST_P(CHeldTextsTest, OfTheSelection)
{
    for (const BYTE mode : {BYTE{0}, BYTE{1}})
    {
        int texts = 0;
        Play([&] { return m_wizard.DoOpenPosDlg(mode, 1, nullptr); }, {[&](CDialogRobot& dialog) {
                 const int items = static_cast<int>(dialog.Items(IDC_SELECT_LIST).size());
                 EXPECT_GT(items, 5);
                 for (int item = 0; item < items; ++item)
                 {
                     SCOPED_TRACE(testing::Message() << "mode " << +mode << ", item " << item);
                     dialog.Select(IDC_SELECT_LIST, item);
                     texts += ExpectKnownTexts(dialog);
                     ExpectAllowedBreaks(ToUtf8(dialog.Text(IDC_SELECT_EXPLANATION)));
                 }
                 dialog.Click(IDCANCEL);
             }});
        EXPECT_GT(texts, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Systems, CHeldTextsTest, testing::ValuesIn(LanguagesOnSystems()),
                         [](const auto& test) { return NameOf(test.param); });

// For runs on the system of a country: without it those above would be silent about another one.
TEST(HeldTextsTest, AreThoseOfTheSystemThatWasAskedFor)
{
    if (const char* page = SystemAskedFor())
    {
        EXPECT_EQ(std::to_string(::GetACP()), page);
    }
}

} // namespace
