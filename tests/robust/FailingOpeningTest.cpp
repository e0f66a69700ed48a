// Every dialog opened without memory: each allocation of the opening fails once, and then every one from there on. The
// dialog ends with 2 before it is seen, or it comes up all the same; the lists stay as they are.
#include "tests/support/FailingOpening.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

constexpr int kTooMany = 100000; // allocations that an opening may not need

const int kStep = SampledStep(17);

/// Lists of some earlier run, so that there is something to restore.
SResults EarlierResults()
{
    return {.contacts = {{2, kR, 170}, {2, kX, 31}, {3, kY, 312}},
            .operands = {{kDT, 200}, {kDT, 100}, {kK, 10}, {kH, 0x110}},
            .data = {{kDT, 200, 1, 1, 0x113},
                     {kDT, 201, 0, 0, 500},
                     {kDT, 204, 0, 0, 5000},
                     {kDT, 205, 0, 0, 300},
                     {kDT, 206, 0, 0, 7}},
            .comments = {"Control code"},
            .instructions = {{8, -1, 168, 0, 0}}};
}

class CFailingOpeningTest : public CDesktopTest, public testing::WithParamInterface<SInstructionDialog>
{
protected:
    CFailingOpeningTest()
    {
        SetUpController(m_wizard);
        m_wizard.SetLanguageInfo(0);
        m_wizard.SetStartType(2);
        WriteResults(m_wizard, EarlierResults());
    }

    /// Opens the dialog while the allocations after `successes` fail, and leaves it. Whether one failed.
    bool OpenWithout(int successes, int failures)
    {
        const auto dialog = GetParam().make(&m_wizard);
        const SFailingOpening opening =
            OpenWithoutMemory(m_robot, successes, failures, [&] { return static_cast<int>(dialog->DoModal()); });
        m_refused += !opening.opened;
        EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
        return opening.failed;
    }

    CFunWizard m_wizard;
    int m_refused = 0;
};

INSTANTIATE_TEST_SUITE_P(Dialogs, CFailingOpeningTest, testing::ValuesIn(kInstructionDialogs),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(CFailingOpeningTest, EndsWithBackOrSucceeds)
{
    for (const int failures : {1, CAllocationFaults::kNever})
    {
        m_refused = 0;
        for (int successes = 0; successes < kTooMany && OpenWithout(successes, failures) && !HasFailure();)
            successes += kStep;
        EXPECT_GT(m_refused, 0);
    }
#if defined(__SANITIZE_ADDRESS__)
    EXPECT_EQ(__lsan_do_recoverable_leak_check(), 0);
#endif
}

} // namespace
