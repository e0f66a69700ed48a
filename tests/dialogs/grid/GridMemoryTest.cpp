// The table without memory: every allocation of what a user does fails once. It is done or refused, with a message, and
// nothing that was typed is lost.
#include "afx/Clipboard.h"
#include "dialogs/pulse/Sp0hDlg.h"
#include "tests/dialogs/pulse/Sp0hTest.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr UINT kEditor = 2408;
constexpr int kTooMany = 3000; // allocations that an operation may not need

struct SOperation
{
    const char* name;
    const char* typed; // into the editor before it, or null
    void (*act)(CDialogRobot& dialog);
    GridTexts done;
};

void PressEnter(CDialogRobot& dialog) { dialog.PressKey(VK_RETURN); }

const SOperation kOperations[] = {
    {"paste", nullptr, [](CDialogRobot& d) { PressCtrl(d, 'V'); }, {{"7", "8"}, {"9", "10"}, {"2a", "2b"}}},
    {"paste, typed", "5", [](CDialogRobot& d) { PressCtrl(d, 'V'); }, {{"7", "8"}, {"9", "10"}, {"2a", "2b"}}},
    {"insert",
     nullptr,
     [](CDialogRobot& d) { PressCtrl(d, 'I'); },
     {{"", ""}, {"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    {"delete", nullptr, [](CDialogRobot& d) { PressCtrl(d, 'D'); }, {{"1a", "1b"}, {"2a", "2b"}}},
    {"empty", nullptr, [](CDialogRobot& d) { d.PressKey(VK_DELETE); }, {{"", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    {"enter", "5", PressEnter, {{"5", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    {"tab", "5", [](CDialogRobot& d) { d.PressKey(VK_TAB); }, {{"5", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    {"click", "5", [](CDialogRobot& d) { ClickCell(d, 2, 1); }, {{"5", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    {"scroll", "5", [](CDialogRobot& d) { Scroll(d, SB_LINEDOWN); }, {{"5", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    {"copy", nullptr, [](CDialogRobot& d) { PressCtrl(d, 'C'); }, {{"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
};

const GridTexts kBefore = {{"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}};

} // namespace

TEST_F(CSp0hTest, TableDoesAllOrNothingWithoutMemory)
{
    for (const SOperation& operation : kOperations)
    {
        int successes = 0;
        bool failed = true;
        for (; failed && successes < kTooMany && !HasFailure(); successes += SampledStep(3))
            Leave([&](CDialogRobot& dialog) {
                SCOPED_TRACE(testing::Message() << operation.name << " after " << successes << " allocations");
                PasteCells(dialog, "0a\t0b\n1a\t1b\n2a\t2b\n");
                ASSERT_TRUE(AfxSetClipboardText(dialog.Dialog(), "7\t8\n9\t10\n"));
                if (operation.typed != nullptr)
                    TypeHere(dialog, operation.typed);
                CString message;
                {
                    CAllocationFaults faults(successes, 1);
                    message = dialog.Answering(IDOK, [&] { operation.act(dialog); });
                    failed = faults.Failures() > 0;
                }
                const GridTexts now = TextsOf(CellsOf(dialog));
                if (now == operation.done && !dialog.Visible(kEditor))
                    return; // what failed was the picture of it
                EXPECT_TRUE(failed);
                if (dialog.Visible(kEditor)) // holds what was typed
                {
                    EXPECT_EQ(dialog.Text(kEditor), CString(operation.typed));
                    EXPECT_EQ(now, kBefore);
                }
                else if (operation.typed != nullptr)
                {
                    EXPECT_EQ(now[0][0], operation.typed);
                }
                else
                    EXPECT_EQ(now, kBefore);
                dialog.Answering(IDOK, [&] { operation.act(dialog); });
                EXPECT_EQ(TextsOf(CellsOf(dialog)), operation.done) << "with memory again";
            });
        EXPECT_LT(successes, kTooMany);
    }
}

// A text that cannot be taken over stays in the editor, and OK says so.
TEST_F(CSp0hTest, TableKeepsItsEditorOpenUntilItsTextIsStored)
{
    int kept = 0;
    for (int successes = 0; successes < 12; ++successes)
        Confirm([&](CDialogRobot& dialog) {
            dialog.Click(2099);
            FillIn(dialog, {});
            dialog.Focus(kGridCells);
            TypeHere(dialog, "77");
            {
                CAllocationFaults faults(successes, CAllocationFaults::kNever);
                dialog.Focus(2052);
            }
            EXPECT_EQ(dialog.FocusId(), 2052u);
            EXPECT_EQ(std::string(CellsOf(dialog).Text({0, 0})), dialog.Visible(kEditor) ? "500" : "77");
            if (dialog.Visible(kEditor))
            {
                ++kept;
                EXPECT_EQ(dialog.Text(kEditor), CString("77"));
                CString message;
                {
                    CAllocationFaults faults(0, CAllocationFaults::kNever);
                    message = dialog.ClickAndAnswer(IDOK);
                }
                EXPECT_EQ(message, CString(MessageText(20002).c_str()));
            }
        });
    EXPECT_GT(kept, 0);
    EXPECT_EQ(ReadResults(m_wizard).data[1].value, 77);
}
