// A host that opens dialogs of one language while those of another are open: each keeps its own.
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/languages/HeldTexts.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr int kJapanese = 1;
constexpr int kThai = 9;

std::vector<std::string> TextsOf(HWND dialog)
{
    std::vector<std::string> texts;
    for (const SHeldText& held : HeldTexts(dialog))
        texts.push_back(held.text);
    return texts;
}

/// The edits that can have the focus.
std::vector<HWND> UsableEdits(HWND dialog)
{
    std::vector<HWND> edits;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        char className[20] = "";
        ::GetClassNameA(child, className, sizeof className);
        const bool isEdit = std::string(className) == "Edit";
        if (isEdit && ::IsWindowEnabled(child) && ::IsWindowVisible(child))
            edits.push_back(child);
    }
    return edits;
}

class COtherLanguageTest : public CDesktopTest, public testing::WithParamInterface<SInstructionDialog>
{
protected:
    COtherLanguageTest()
    {
        SetUpController(m_japanese);
        SetUpController(m_thai);
        EXPECT_NE(m_japanese.SetLanguageInfo(kJapanese), nullptr);
        EXPECT_NE(m_thai.SetLanguageInfo(kThai), nullptr);
    }

    void Open(std::vector<CDialogRobot::Scene> scenes)
    {
        const auto dialog = GetParam().make(&m_japanese);
        Play([&] { return static_cast<int>(dialog->DoModal()); }, std::move(scenes));
    }

    CFunWizard m_japanese;
    CFunWizard m_thai;
};

// The focus leaves an edit of the dialog below when the other one is open already, and what follows the edit changes.
TEST_P(COtherLanguageTest, LeavesTheTextsBelowAlone)
{
    size_t edits = 0;
    Open({[&](CDialogRobot& dialog) {
        edits = UsableEdits(dialog.Dialog()->m_hWnd).size();
        dialog.Click(IDCANCEL);
    }});
    ASSERT_GT(edits, 0u);
    for (size_t i = 0; i < edits; ++i)
    {
        SCOPED_TRACE(testing::Message() << "edit " << i);
        std::vector<std::string> below;
        HWND window = nullptr;
        const auto openOther = [&](CDialogRobot& dialog) {
            window = dialog.Dialog()->m_hWnd;
            ::SetFocus(UsableEdits(window).at(i));
            below = TextsOf(window);
            ULONG code = 0;
            m_thai.DoInputPosCtrlDlg(code, nullptr);
            EXPECT_EQ(TextsOf(window), below);
            dialog.Click(IDCANCEL);
        };
        const auto lookBelow = [&](CDialogRobot& other) {
            EXPECT_EQ(TextsOf(window), below);
            other.Click(IDCANCEL);
        };
        Open({openOther, lookBelow});
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, COtherLanguageTest, testing::ValuesIn(Sampled(kInstructionDialogs, 3)),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace
