// E point control without memory: every allocation of OK and of opening fails once, and then every one from there on.
#include "tests/dialogs/posunit/EPointTest.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/FailingOpening.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr int kTooMany = 100000; // allocations that an operation may not need

const int kStep = SampledStep(17);

class CEPointMemoryTest : public CEPointTest, public testing::WithParamInterface<int>
{
protected:
    /// All that a dialog can store.
    CEPointMemoryTest()
    {
        Use(kEnglish);
        m_wizard.SetStartType(2);
    }

    int Failures() const { return GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(Faults, CEPointMemoryTest, testing::Values(1, CAllocationFaults::kNever),
                         [](const auto& fault) { return std::string(fault.param == 1 ? "Once" : "FromThenOn"); });

TEST_P(CEPointMemoryTest, OkSaysSoAndWorksOnceThereIsMemory)
{
    const SEPointEntries entries = {.startOutput = true};
    const SResults expected = EPointOutcome(kEPointForm, entries, m_wizard).results;
    bool failed = true;
    int successes = 0;
    for (; failed && successes < kTooMany && !HasFailure(); successes += kStep)
    {
        WriteResults(m_wizard, {});
        Confirm(kEPointForm, [&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            CString message;
            {
                CAllocationFaults faults(successes, Failures());
                message = dialog.ClickAndAnswer(IDOK);
                failed = faults.Failures() > 0;
            }
            EXPECT_EQ(message, failed ? CString(MessageText(20002).c_str()) : CString()) << successes;
            EXPECT_EQ(dialog.IsOpen(), failed);
        });
        EXPECT_EQ(ReadResults(m_wizard), expected);
    }
    EXPECT_GT(successes, 10) << "OK allocates more than that";
}

TEST_P(CEPointMemoryTest, OpeningCancels)
{
    bool failed = true;
    int successes = 0;
    for (; failed && successes < kTooMany && !HasFailure(); successes += kStep)
    {
        const SFailingOpening opening = OpenWithoutMemory(m_robot, successes, Failures(), [this] {
            return static_cast<int>(CEPointDlg(&m_wizard, kEPointForm, nullptr).DoModal());
        });
        failed = opening.failed;
        EXPECT_TRUE(opening.opened || failed);
    }
    EXPECT_GT(successes, 10) << "opening allocates more than that";
}

} // namespace
