// Any text in any edit of F168: a message and an open dialog with the lists as they were, or the result that a model of
// its own works out. Never anything in between.
#include "dialogs/pulse/Spd1Dlg.h"
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/robust/CodePage.h"
#include "tests/robust/TextGenerator.h"
#include "tests/support/Sampled.h"

namespace
{

// How many of the texts are tried. A message box of the real desktop takes its time: there, texts evenly spread over
// all of them stand for the rest.
const unsigned kTexts = IsThorough() ? 12000 : 10000;
const unsigned kStep = static_cast<unsigned>(SampledStep(37));
constexpr unsigned kTypedApart = 8;
constexpr size_t kMostTyped = 200;

struct SField
{
    ESpd1Variant variant;
    UINT edit;
};

class CBadInputTest : public CSpd1Test, public testing::WithParamInterface<SField>
{
protected:
    ~CBadInputTest() override { UseCodePage(kCodePages[0]); }

    /// What stands in the dialog, read back: the desktop may have its own view of some bytes.
    static SSpd1Entries Shown(CDialogRobot& dialog, const SSpd1Entries& chosen)
    {
        const auto text = [&](UINT edit) {
            const CString shown = dialog.Text(edit);
            return std::string(shown, static_cast<size_t>(shown.GetLength()));
        };
        SSpd1Entries entries = chosen;
        entries.contact = text(IDC_CONTACT_NUMBER);
        entries.start = text(IDC_SPD1_START);
        entries.initial = text(IDC_SPD1_INITIAL);
        entries.maximum = text(IDC_SPD1_MAXIMUM);
        entries.time = text(IDC_SPD1_TIME);
        if (dialog.Exists(IDC_SPD1_TARGET))
            entries.target = text(IDC_SPD1_TARGET);
        return entries;
    }

    /// Clicks OK and compares all that can be seen with the model.
    void ClickOk(CDialogRobot& dialog, ESpd1Variant variant, const SSpd1Entries& chosen)
    {
        const SSpd1Entries entries = Shown(dialog, chosen);
        const SSpd1Outcome outcome = Spd1Outcome(variant, entries, Limits(entries.device));
        const SResults before = ReadResults(m_wizard);
        const size_t boxes = dialog.MessageBoxes().size();
        const CString message = dialog.ClickAndAnswer(IDOK);
        if (outcome.message == 0)
        {
            ++m_accepted;
            ASSERT_EQ(message, CString());
            ASSERT_FALSE(dialog.IsOpen());
            ASSERT_EQ(ReadResults(m_wizard), outcome.results);
            return;
        }
        ++m_refused;
        ASSERT_EQ(message, CString(MessageText(outcome.message).c_str()));
        ASSERT_EQ(dialog.MessageBoxes().size(), boxes + 1);
        ASSERT_TRUE(dialog.IsOpen());
        ASSERT_EQ(dialog.FocusId(), outcome.edit);
        ASSERT_EQ(ReadResults(m_wizard), before);
    }

    /// Calls enter(dialog, index) and clicks OK for the indices from 0, `step` apart, opening the dialog again whenever
    /// it was confirmed.
    template <typename TEnter>
    void GoThrough(ESpd1Variant variant, unsigned count, unsigned step, TEnter enter)
    {
        unsigned index = 0;
        const auto play = [&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            while (index < count && dialog.IsOpen())
            {
                SCOPED_TRACE(testing::Message() << "text " << index);
                const SSpd1Entries chosen = enter(dialog, index);
                index += step;
                ClickOk(dialog, variant, chosen);
                if (HasFatalFailure())
                    index = count;
            }
            if (dialog.IsOpen())
                dialog.Dismiss();
        };
        const auto open = [&] {
            return static_cast<int>(CSpd1Dlg(&m_wizard, variant == kHomeReturn, nullptr).DoModal());
        };
        for (unsigned opening = 0; index < count; ++opening) // NOLINT(bugprone-infinite-loop): play goes on
        {
            UseCodePage(kCodePages[opening % std::size(kCodePages)]);
            Play(open, {play});
        }
    }

    int m_accepted = 0;
    int m_refused = 0;
};

constexpr SField kFields[] = {{kTrapezoidal, 2052}, {kTrapezoidal, 2101}, {kTrapezoidal, 2106}, {kTrapezoidal, 2107},
                              {kTrapezoidal, 2108}, {kTrapezoidal, 2110}, {kHomeReturn, 2052},  {kHomeReturn, 2101},
                              {kHomeReturn, 2106},  {kHomeReturn, 2107},  {kHomeReturn, 2108}};

INSTANTIATE_TEST_SUITE_P(Edits, CBadInputTest, testing::ValuesIn(kFields), [](const auto& field) {
    return (field.param.variant == kTrapezoidal ? "Trapezoidal" : "Home") + std::to_string(field.param.edit);
});

// Set past the limits of the edit, as no user could; some of them typed as well.
TEST_P(CBadInputTest, IsRefusedOrUnderstood)
{
    const auto [variant, edit] = GetParam();
    // Each of the contact's devices has a notation of its own.
    constexpr int kDevices[] = {kR, kT, kSpecialR, kX};
    const unsigned step = variant == kTrapezoidal ? kStep : 5 * kStep;
    GoThrough(variant, kTexts, step, [&, edit = edit](CDialogRobot& dialog, unsigned index) {
        const std::string text = GeneratedText(index);
        SSpd1Entries chosen;
        if (edit == IDC_CONTACT_NUMBER)
        {
            chosen.device = kDevices[index / step % std::size(kDevices)];
            dialog.SelectText(IDC_CONTACT_DEVICE, DeviceName(chosen.device).c_str());
        }
        const bool typed = index / step % kTypedApart == 0 && text.size() <= kMostTyped;
        typed ? dialog.Type(edit, text.c_str()) : dialog.SetText(edit, text.c_str());
        return chosen;
    });
    EXPECT_GT(m_accepted, 0);
    EXPECT_GT(m_refused, m_accepted);
}

class CBadInputEverywhereTest : public CBadInputTest
{
};

INSTANTIATE_TEST_SUITE_P(Variants, CBadInputEverywhereTest,
                         testing::Values(SField{kTrapezoidal, 0}, SField{kHomeReturn, 0}));

// Up to all the edits at once.
TEST_P(CBadInputEverywhereTest, IsRefusedOrUnderstood)
{
    constexpr UINT kEdits[] = {2052, 2101, 2106, 2107, 2108, 2110};
    const ESpd1Variant variant = GetParam().variant;
    GoThrough(variant, kTexts, 10 * kStep, [&](CDialogRobot& dialog, unsigned index) {
        SSpd1Entries entries = {.output = static_cast<int>(index / 10 % 2), .width = static_cast<int>(index / 20 % 2)};
        FillIn(dialog, entries);
        for (size_t i = 0; i < std::size(kEdits); ++i)
        {
            const std::string text = GeneratedText(index + static_cast<unsigned>(i));
            if ((index / 10 >> i & 1) != 0 && text.size() <= kMostTyped && dialog.Exists(kEdits[i]))
                dialog.SetText(kEdits[i], text.c_str());
        }
        return entries;
    });
    EXPECT_GT(m_accepted, 0);
    EXPECT_GT(m_refused, 0);
}

} // namespace
