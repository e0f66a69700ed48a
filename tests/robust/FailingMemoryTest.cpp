// F168 without memory: every allocation of OK and of opening fails once, and then every one from there on.
#include "dialogs/pulse/Spd1Dlg.h"
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/robust/Holdings.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/FailingOpening.h"
#include "tests/support/Sampled.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

constexpr int kTooMany = 100000; // allocations that an operation may not need

// What is repeated to see what it leaves is repeated less where a dialog takes its time.
const int kBatches = IsThorough() ? 8 : 3;
const int kStep = SampledStep(7);

struct SFault
{
    ESpd1Variant variant;
    int failures;
};

constexpr SFault kFaults[] = {{kTrapezoidal, 1},
                              {kTrapezoidal, CAllocationFaults::kNever},
                              {kHomeReturn, 1},
                              {kHomeReturn, CAllocationFaults::kNever}};

void ExpectNoLeak()
{
#if defined(__SANITIZE_ADDRESS__)
    EXPECT_EQ(__lsan_do_recoverable_leak_check(), 0);
#endif
}

/// The lists of an earlier run, each longer than what F168 stores.
SResults EarlierResults()
{
    return {.contacts = {{2, 2, 7}, {2, 2, 8}},
            .operands = {{9, 200}, {11, 1}, {11, 2}},
            .data = std::vector<SDataRow>(9, {9, 200, 0, 1, 0x113}),
            .comments = std::vector<std::string>(9, "a comment that is longer than any string keeps in itself"),
            .instructions = {{8, -1, 168, 0, 0}}};
}

/// Whether a list is still the earlier one, or the new one as far as it was written.
template <typename T>
bool IsOldOrPartlyNew(const std::vector<T>& list, const std::vector<T>& earlier, const std::vector<T>& complete)
{
    return list == earlier ||
           (list.size() <= complete.size() && std::equal(list.begin(), list.end(), complete.begin()));
}

class CFailingMemoryTest : public CSpd1Test, public testing::WithParamInterface<SFault>
{
protected:
    ESpd1Variant Variant() const { return GetParam().variant; }

    INT_PTR RunDialog() { return CSpd1Dlg(&m_wizard, Variant() == kHomeReturn, nullptr).DoModal(); }

    /// OK in a dialog that is filled in, while the allocation after `successes` fails. Whether one failed.
    bool ConfirmWithout(int successes)
    {
        WriteResults(m_wizard, EarlierResults());
        const SResults expected = Expected();
        bool failed = false;
        const int result = Play([this] { return static_cast<int>(RunDialog()); }, {[&](CDialogRobot& dialog) {
                                    FillIn(dialog, {});
                                    failed = ClickOkWithout(dialog, successes);
                                    if (!failed)
                                        return;
                                    ExpectReadable(expected);
                                    EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "with memory again";
                                }});
        EXPECT_EQ(result, IDOK);
        EXPECT_EQ(ReadResults(m_wizard), expected);
        return failed;
    }

    bool ClickOkWithout(CDialogRobot& dialog, int successes)
    {
        CString message;
        bool failed = false;
        {
            CAllocationFaults faults(successes, GetParam().failures);
            message = dialog.ClickAndAnswer(IDOK);
            failed = faults.Failures() > 0;
        }
        EXPECT_EQ(message, failed ? CString(MessageText(20002).c_str()) : CString());
        EXPECT_EQ(dialog.IsOpen(), failed);
        for (const SRobotMessageBox& box : dialog.MessageBoxes())
            EXPECT_EQ(box.caption, CString(kAppName));
        return failed;
    }

    void ExpectReadable(const SResults& expected)
    {
        const SResults results = ReadResults(m_wizard);
        const SResults earlier = EarlierResults();
        EXPECT_TRUE(IsOldOrPartlyNew(results.contacts, earlier.contacts, expected.contacts)) << results;
        EXPECT_TRUE(IsOldOrPartlyNew(results.operands, earlier.operands, expected.operands)) << results;
        EXPECT_TRUE(IsOldOrPartlyNew(results.data, earlier.data, expected.data)) << results;
        EXPECT_TRUE(IsOldOrPartlyNew(results.comments, earlier.comments, expected.comments)) << results;
        EXPECT_EQ(results.instructions, earlier.instructions);
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
    }

    SResults Expected()
    {
        SResults expected = Spd1Outcome(Variant(), {}, Limits(kR)).results;
        expected.instructions = EarlierResults().instructions;
        return expected;
    }
};

INSTANTIATE_TEST_SUITE_P(Faults, CFailingMemoryTest, testing::ValuesIn(kFaults), [](const auto& fault) {
    return std::string(fault.param.variant == kTrapezoidal ? "Trapezoidal" : "Home") +
           (fault.param.failures == 1 ? "Once" : "FromThenOn");
});

TEST_P(CFailingMemoryTest, OkSaysSoAndWorksOnceThereIsMemory)
{
    int successes = 0;
    while (successes < kTooMany && ConfirmWithout(successes) && !HasFailure())
        ++successes;
    EXPECT_GT(successes, 10) << "OK allocates more than that";
    ExpectNoLeak();
}

// The name is the caption of the message.
TEST_P(CFailingMemoryTest, OkSaysSoHoweverLongTheNameOfTheApplicationIs)
{
    for (const size_t length : {499, 500, 511, 512, 100000})
    {
        SCOPED_TRACE(length);
        PexloDll_SetAppName(std::string(length, 'x').c_str());
        const int result = Play([this] { return static_cast<int>(RunDialog()); }, {[&](CDialogRobot& dialog) {
                                    FillIn(dialog, {});
                                    CString message;
                                    {
                                        CAllocationFaults faults(0, GetParam().failures);
                                        message = dialog.ClickAndAnswer(IDOK);
                                    }
                                    EXPECT_EQ(message, CString(MessageText(20002).c_str()));
                                    dialog.Click(IDCANCEL);
                                }});
        EXPECT_EQ(result, IDCANCEL);
    }
    PexloDll_SetAppName(kAppName);
}

TEST_P(CFailingMemoryTest, OkLosesNothing)
{
    const auto batch = [this] {
        for (int successes = 0; successes < 40; successes += kStep)
            ConfirmWithout(successes);
    };
    batch();
    const Holdings before = CurrentHoldings();
    EXPECT_TRUE(LeavesNoMemory(kBatches, 0, batch));
    EXPECT_EQ(CurrentHoldings(), before);
}

// The dialog ends with 2 before it is seen, or it comes up all the same.
TEST_P(CFailingMemoryTest, OpeningEndsWithBackOrSucceeds)
{
    WriteResults(m_wizard, Expected());
    bool failed = true;
    int refused = 0;
    for (int successes = 0; failed && successes < kTooMany && !HasFailure(); ++successes)
    {
        const SFailingOpening opening = OpenWithoutMemory(m_robot, successes, GetParam().failures,
                                                          [this] { return static_cast<int>(RunDialog()); });
        failed = opening.failed;
        refused += !opening.opened;
        EXPECT_EQ(ReadResults(m_wizard), Expected());
    }
    EXPECT_GT(refused, 0);
    ExpectNoLeak();
}

// From the host's call to its end: the selection, F168, and back.
TEST_P(CFailingMemoryTest, TheWholeWizardEndsWithCancel)
{
    bool failed = true;
    for (int successes = 0; failed && successes < kTooMany && !HasFailure(); successes += kStep)
    {
        SCOPED_TRACE(testing::Message() << "after " << successes << " allocations");
        CAllocationFaults faults(successes, GetParam().failures);
        faults.Pause();
        const auto open = [&] {
            const CShortOfMemory shortOfMemory(faults);
            return m_wizard.DoOpenPosDlg(0, 1, nullptr);
        };
        bool chosen = false;
        const Scene scene = [&](CDialogRobot& dialog) {
            faults.Pause();
            const bool choose = dialog.Exists(IDC_SELECT_LIST) && !std::exchange(chosen, true);
            if (choose)
                dialog.Select(IDC_SELECT_LIST, Variant());
            faults.Resume();
            dialog.Click(choose ? IDOK : IDCANCEL);
        };
        int result = 0;
        EXPECT_NO_THROW(result = m_robot.Play(open, {scene, scene, scene}));
        EXPECT_EQ(result, IDCANCEL);
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
        for (const CString& failure : m_robot.Failures())
            EXPECT_GE(failure.Find("scenes were played"), 0) << failure;
        m_robot.ClearFailures();
        failed = faults.Failures() > 0;
    }
    ExpectNoLeak();
}

} // namespace
