// Every dialog, filled in by what it declares: confirmed without memory, and opened and closed a thousand times.
#include "tests/dialogs/FillDialog.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/robust/Holdings.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr int kTooMany = 100000; // allocations that OK may not need

const int kStep = SampledStep(17);
const int kBatches = IsThorough() ? 4 : 2;
const int kOpenings = SampledRounds(200, 6); // in a batch

class CConfirmingTest : public CDesktopTest, public testing::WithParamInterface<SInstructionDialog>
{
protected:
    CConfirmingTest()
    {
        SetUpController(m_wizard);
        m_wizard.SetLanguageInfo(0);
        m_wizard.SetStartType(2);
        m_wizard.SetCmtRec(1);
    }

    template <typename TScene>
    int Open(TScene scene)
    {
        const auto dialog = GetParam().make(&m_wizard);
        return Play([&] { return static_cast<int>(dialog->DoModal()); },
                    {[&](CDialogRobot& robot) { scene(*dialog, robot); }});
    }

    void Confirm(int round)
    {
        EXPECT_EQ(Open([round](CWzdDlgBase& dialog, CDialogRobot& robot) {
                      FillDialog(dialog, robot, round);
                      robot.Click(IDOK);
                  }),
                  IDOK);
    }

    /// OK while the allocations after `successes` fail: a message, and OK again. Whether one failed.
    bool ConfirmWithout(int successes, int failures, const SResults& expected)
    {
        bool failed = false;
        const int result = Open([&](CWzdDlgBase& dialog, CDialogRobot& robot) {
            FillDialog(dialog, robot, 1);
            CString message;
            {
                CAllocationFaults faults(successes, failures);
                message = robot.ClickAndAnswer(IDOK);
                failed = faults.Failures() > 0;
            }
            EXPECT_EQ(message, failed ? CString(MessageText(20002).c_str()) : CString());
            ASSERT_EQ(robot.IsOpen(), failed);
            if (failed)
            {
                EXPECT_EQ(robot.ClickAndAnswer(IDOK), CString()) << "with memory again";
            }
        });
        EXPECT_EQ(result, IDOK);
        EXPECT_EQ(GetParam().Comparable(ReadResults(m_wizard)), expected);
        return failed;
    }

    CFunWizard m_wizard;
};

INSTANTIATE_TEST_SUITE_P(Dialogs, CConfirmingTest, testing::ValuesIn(kInstructionDialogs),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(CConfirmingTest, SaysThatThereIsNoMemoryAndWorksOnceThereIs)
{
    Confirm(1);
    const SResults expected = GetParam().Comparable(ReadResults(m_wizard));
    for (const int failures : {1, CAllocationFaults::kNever})
    {
        int successes = 0;
        while (successes < kTooMany && ConfirmWithout(successes, failures, expected) && !HasFailure())
            successes += kStep;
        EXPECT_GT(successes, 0) << "OK allocates something";
    }
}

TEST_P(CConfirmingTest, LeavesNothingBehind)
{
    const auto batch = [this] {
        for (int i = 0; i < kOpenings && !HasFailure(); ++i)
        {
            if (GetParam().appendsContact)
                m_wizard.RemoveAllContInfo(); // it may grow
            Confirm(i);
            Open([](CWzdDlgBase&, CDialogRobot& robot) { robot.Click(IDCANCEL); });
        }
    };
    batch();
    const Holdings before = CurrentHoldings();
    EXPECT_TRUE(LeavesNoMemory(kBatches, 0, batch));
    EXPECT_EQ(CurrentHoldings(), before);
}

} // namespace
