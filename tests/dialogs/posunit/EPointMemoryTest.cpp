// E point control without memory: every allocation of OK and of opening fails once, and then every one from there on.
#include "tests/dialogs/posunit/EPointTest.h"
#include "tests/support/AllocationFaults.h"

namespace
{

constexpr int kTooMany = 100000; // allocations that an operation may not need

#if defined(_WIN32)
constexpr int kStep = 17;
#else
constexpr int kStep = 1;
#endif

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
        SCOPED_TRACE(testing::Message() << "after " << successes << " allocations");
        CAllocationFaults faults(successes, Failures());
        faults.Pause();
        bool opened = false;
        const auto open = [&] {
            faults.Resume();
            const auto answer = static_cast<int>(CEPointDlg(&m_wizard, kEPointForm, nullptr).DoModal());
            faults.Pause();
            return answer;
        };
        const auto leave = [&](CDialogRobot& dialog) {
            faults.Pause();
            opened = true;
            dialog.Click(IDCANCEL);
            faults.Resume();
        };
        int result = 0;
        EXPECT_NO_THROW(result = m_robot.Play(open, {leave}));
        EXPECT_EQ(result, 2);
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
        EXPECT_EQ(m_robot.Failures().size(), opened ? 0u : 1u) << "only the scene that was not played";
        m_robot.ClearFailures();
        failed = faults.Failures() > 0;
        EXPECT_TRUE(opened || failed);
    }
    EXPECT_GT(successes, 10) << "opening allocates more than that";
}

} // namespace
