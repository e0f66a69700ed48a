// What Pexlo_Fill, Check and Describe refuse, why, and that nothing changes by it.
#include "afx/DesktopLock.h"
#include "resources/resource.h"
#include "tests/capi/Capi.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/Sampled.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace
{

constexpr int kJapanese = 1;

class CapiRefusalsTest : public CDesktopTest
{
protected:
    CapiRefusalsTest() { Prepare(m_handle, {"", "large", 0}); }

    /// Expects a call to be refused by all three operations alike, and nothing to change.
    void ExpectRefused(const PexloForm& form, const CTextEntries& entries, int reason, int entry,
                       const std::string& name)
    {
        SCOPED_TRACE(testing::PrintToString(entries));
        const SKeptState before = StateOf(m_handle);
        const SOutcome checked = Check(m_handle, form, entries);
        SCOPED_TRACE(testing::Message() << checked);
        auto filledForm = form;
        const SOutcome filled = Fill(m_handle, filledForm, entries);
        EXPECT_EQ(std::memcmp(&filledForm, &form, sizeof form), 0);
        for (const SOutcome& outcome : {checked, filled})
        {
            EXPECT_EQ(outcome.result, 2);
            EXPECT_EQ(outcome.refusal.reason, reason);
            EXPECT_EQ(outcome.refusal.entry, entry);
            EXPECT_EQ(outcome.refusal.name, name);
            EXPECT_STRNE(outcome.refusal.message, "");
            EXPECT_EQ(outcome.refusal.messageId != 0, reason == PEXLO_REFUSED_BY_MESSAGE);
        }
        const SDescribed described = Describe(m_handle, form, entries);
        if (reason == PEXLO_REFUSED_BY_MESSAGE)
        {
            EXPECT_EQ(described.refusal.reason, 0);
            EXPECT_EQ(described.Field(name).problem, checked.refusal.messageId);
        }
        else
            EXPECT_EQ(described.refusal.reason, reason);
        EXPECT_EQ(StateOf(m_handle), before);
    }

    /// `entries` and another one.
    static CTextEntries With(CTextEntries entries, STextEntry entry)
    {
        entries.push_back(std::move(entry));
        return entries;
    }

    static CTextEntries Without(CTextEntries entries, const std::string& name)
    {
        std::erase_if(entries, [&](const STextEntry& entry) { return entry.name == name; });
        return entries;
    }

    CCapiHandle m_handle;
};

TEST_F(CapiRefusalsTest, NameTheEntry)
{
    const auto form = FormOf(171);
    const CTextEntries good = Without(AcceptedEntries(m_handle, form), "target");
    const int next = static_cast<int>(good.size());
    ExpectRefused(form, With(good, {"no-such-field", "1"}), PEXLO_REFUSED_NO_FIELD, next, "no-such-field");
    ExpectRefused(form, With(good, {"Start", "1"}), PEXLO_REFUSED_NO_FIELD, next, "Start");
    ExpectRefused(form, With(good, {4711, "1"}), PEXLO_REFUSED_NO_FIELD, next, "");
    ExpectRefused(form, With(good, {IDOK, "1"}), PEXLO_REFUSED_NO_FIELD, next, "");
    ExpectRefused(form, With(good, {IDCANCEL, "1"}), PEXLO_REFUSED_NO_FIELD, next, "");
    ExpectRefused(form, With(good, {"contact-device", "Q"}), PEXLO_REFUSED_NO_ITEM, next, "contact-device");
    ExpectRefused(form, With(good, {"comments", "yes"}), PEXLO_REFUSED_NO_FIELD, next, "comments");
    ExpectRefused(form, With(good, {"only-data-table", "yes"}), PEXLO_REFUSED_NO_ITEM, next, "only-data-table");
    ExpectRefused(form, With(good, {"target", "12345678901234567890"}), PEXLO_REFUSED_TYPING, next, "target");
    ExpectRefused(form, With(good, {"target", "1\t2"}), PEXLO_REFUSED_TYPING, next, "target");
    ExpectRefused(form, With(good, {"target", "abc"}), PEXLO_REFUSED_BY_MESSAGE, next, "target");
    // Without auto-tuning there are gains to enter, with it there are none.
    const auto pid = FormOf(355);
    const SDescribed described = Describe(m_handle, pid);
    const auto disabled = std::find_if(described.fields.begin(), described.fields.end(), [](const PexloField& field) {
        return field.enabled == 0 && field.kind == PEXLO_FIELD_EDIT;
    });
    ASSERT_NE(disabled, described.fields.end());
    ExpectRefused(pid, {{"start", "5"}, {disabled->name, "5"}}, PEXLO_REFUSED_NOT_ENABLED, 1, disabled->name);
}

// The last one counts; two that contradict each other cannot both be kept.
TEST_F(CapiRefusalsTest, KnowDuplicates)
{
    const auto form = FormOf(171);
    const CTextEntries good = Without(AcceptedEntries(m_handle, form), "target");
    EXPECT_EQ(Check(m_handle, form, With(good, {"target", "7"})).result, 1);
    EXPECT_EQ(Check(m_handle, form, With(With(good, {"target", "7"}), {"target", "7"})).result, 1);
    const SOutcome outcome = Check(m_handle, form, With(With(good, {"target", "7"}), {"target", "8"}));
    EXPECT_EQ(outcome.result, 2);
    EXPECT_EQ(outcome.refusal.reason, PEXLO_REFUSED_CHANGED) << outcome;
    EXPECT_STREQ(outcome.refusal.name, "target");
}

TEST_F(CapiRefusalsTest, TellCells)
{
    const auto form = FormOf(174);
    const CTextEntries good = Without(AcceptedEntries(m_handle, form), "table");
    const auto expect = [&](const std::string& table, int reason, int row, int column) {
        const SOutcome outcome = Check(m_handle, form, With(good, {"table", table}));
        EXPECT_EQ(outcome.result, 2) << table;
        EXPECT_EQ(outcome.refusal.reason, reason) << outcome;
        EXPECT_EQ(outcome.refusal.row, row) << outcome;
        EXPECT_EQ(outcome.refusal.column, column) << outcome;
        EXPECT_STREQ(outcome.refusal.name, "table");
        EXPECT_EQ(outcome.refusal.control, IDC_GRID_CELLS);
        EXPECT_EQ(outcome.refusal.entry, static_cast<int>(good.size()));
    };
    EXPECT_EQ(Check(m_handle, form, With(good, {"table", "1000\t5000\r\n2000\t10000\r\n"})).result, 1);
    EXPECT_EQ(Check(m_handle, form, With(good, {"table", "1000,5000\n2000,10000"})).result, 1);
    expect("1000\t5000\n2000\tx", PEXLO_REFUSED_BY_MESSAGE, 2, 2);
    expect("1000\t5000\n\t5", PEXLO_REFUSED_BY_MESSAGE, 2, 1);
    expect("99999999999999\t5000", PEXLO_REFUSED_TYPING, 1, 1);
    expect("1\t2\t3", PEXLO_REFUSED_TYPING, 0, 3);
    const int most = Describe(m_handle, form, good).Field("table").mostRows;
    std::string many;
    for (int i = 0; i <= most; ++i)
        many += "1000\t1\n";
    expect(many, PEXLO_REFUSED_TYPING, most + 1, 0);
    expect("1000\t\xE8\xA1\xA8", PEXLO_REFUSED_TYPING, 0, 0);
}

TEST_F(CapiRefusalsTest, TellWhatThePlcLacks)
{
    // Without DT the dialog of a pulse output offers nothing but Back.
    auto form = FormOf(168);
    CFunWizard& wizard = WizardOf(m_handle);
    FindPlcPreset("compact")->Configure(wizard);
    SetDeviceRange(wizard, kDT, 5, 4);
    ExpectRefused(form, {{"start", "0"}}, PEXLO_REFUSED_NOT_POSSIBLE, -1, "");
    ExpectRefused(form, {}, PEXLO_REFUSED_NOT_POSSIBLE, -1, "");
    // A list that has nothing to offer.
    wizard.ResetContents();
    Pexlo_EntrySupportFunInfo(m_handle, 168);
    const SOutcome outcome = Check(m_handle, form, {});
    EXPECT_EQ(outcome.result, 2);
    EXPECT_TRUE(outcome.refusal.reason == PEXLO_REFUSED_CANNOT_OPEN ||
                outcome.refusal.reason == PEXLO_REFUSED_NOT_POSSIBLE)
        << outcome;
}

TEST_F(CapiRefusalsTest, KnowWhatIsRegistered)
{
    const auto form = FormOf(168);
    EXPECT_EQ(Pexlo_Check(m_handle, &form, nullptr, 0, nullptr), 2);
    Pexlo_ClearSuppportFunInfo(m_handle);
    EXPECT_EQ(Pexlo_Check(m_handle, &form, nullptr, 0, nullptr), PEXLO_E_INSTRUCTION);
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, nullptr, 0, nullptr), PEXLO_E_INSTRUCTION);
    for (const int variant : {-1, 2, 10010})
    {
        Pexlo_EntrySupportFunInfo(m_handle, 168);
        const auto none = FormOf(168, variant);
        EXPECT_EQ(Pexlo_Check(m_handle, &none, nullptr, 0, nullptr), PEXLO_E_INSTRUCTION);
    }
    // The positioning unit needs no registering.
    const auto unit = FormOf(151, 10010);
    EXPECT_EQ(Pexlo_Check(m_handle, &unit, nullptr, 0, nullptr), 2);
}

TEST_F(CapiRefusalsTest, NeedTheLanguageLibraryOfAFamily)
{
    for (const char* const plc : {"family-b", "family-c"})
    {
        Prepare(m_handle, {"", plc, 0}, -1);
        const SOutcome outcome = Check(m_handle, FormOf(171), {});
        EXPECT_EQ(outcome.result, 2);
        EXPECT_EQ(outcome.refusal.reason, PEXLO_REFUSED_CANNOT_OPEN);
        EXPECT_EQ(Describe(m_handle, FormOf(171)).result, 0);
        Prepare(m_handle, {"", plc, 0}, kJapanese);
        EXPECT_GT(Describe(m_handle, FormOf(171)).result, 0);
    }
}

// A mistake in one instruction leaves the results of another one: they can still be generated.
TEST_F(CapiRefusalsTest, KeepTheResultsOfAnotherInstruction)
{
    for (const SFormRow& row : Sampled(FormRows(), 14))
    {
        SCOPED_TRACE(row.name);
        const bool isFormOfLists = row.instruction != PEXLO_FORM_CONTROL_CODE;
        Prepare(m_handle, row);
        auto form = FormOf(row);
        ASSERT_EQ(Fill(m_handle, form, AcceptedEntries(m_handle, form)).result, 1);
        Pexlo_SetDlgDataPtr(m_handle, isFormOfLists && row.instruction != 180 ? "kept" : nullptr, 5);
        Pexlo_CreateInstCode(m_handle);
        const SKeptState before = StateOf(m_handle);
        for (const int other : {168, 170, 172, 355, 180, 282, 354})
        {
            auto refused = FormOf(other);
            Fill(m_handle, refused, {{"no-such-field", "1"}});
            Describe(m_handle, refused);
            if (other == 355)
            {
                EXPECT_EQ(Check(m_handle, refused, AcceptedEntries(m_handle, refused)).result, 1);
            }
            EXPECT_EQ(StateOf(m_handle), before) << other;
        }
        Pexlo_CreateInstCode(m_handle);
        EXPECT_EQ(StateOf(m_handle), before);
    }
}

// What is confirmed stands in the dialog when it is described again.
TEST_F(CapiRefusalsTest, RestoreWhatWasConfirmed)
{
    auto form = FormOf(171);
    const CTextEntries entries = AcceptedEntries(m_handle, form, true);
    ASSERT_EQ(Fill(m_handle, form, entries).result, 1);
    const SDescribed described = Describe(m_handle, form);
    for (const STextEntry& entry : entries)
        EXPECT_EQ(described.Field(entry.name).text, entry.text);
    const SResults before = ReadResults(m_handle);
    EXPECT_EQ(Fill(m_handle, form, {}).result, 1);
    EXPECT_EQ(ReadResults(m_handle), before);
}

TEST_F(CapiRefusalsTest, CheckTheScreenWithoutChangingIt)
{
    auto form = FormOf(180);
    const CTextEntries entries = AcceptedEntries(m_handle, form);
    ASSERT_EQ(Fill(m_handle, form, entries).result, 1);
    const std::string screen = Describe(m_handle, form).Field("screen").text;
    const SKeptState before = StateOf(m_handle);
    EXPECT_EQ(Check(m_handle, form, {{"screen", "#3"}}).result, 1);
    EXPECT_EQ(StateOf(m_handle), before);
    EXPECT_EQ(Describe(m_handle, form).Field("screen").text, screen);
    EXPECT_EQ(Fill(m_handle, form, {{"screen", "#3"}}).result, 1);
    EXPECT_NE(Describe(m_handle, form).Field("screen").text, screen);
}

// A host may have stored less than the dialog reads.
TEST_F(CapiRefusalsTest, ReadDialogDataOfAnySize)
{
    auto form = FormOf(180);
    ASSERT_EQ(Fill(m_handle, form, AcceptedEntries(m_handle, form)).result, 1);
    for (const char* const data : {"x", "four", "\xFF\xFF\xFF\xFF\xFF"})
    {
        EXPECT_EQ(Pexlo_SetDlgDataPtr(m_handle, data, static_cast<int>(std::strlen(data))), 1);
        EXPECT_EQ(std::memcmp(Pexlo_GetDlgDataPtr(m_handle), data, std::strlen(data)), 0);
        EXPECT_GT(Describe(m_handle, form).result, 0);
    }
}

TEST_F(CapiRefusalsTest, FillBothLinesOfTheScreen)
{
    auto form = FormOf(180);
    const CTextEntries entries = AcceptedEntries(m_handle, form);
    EXPECT_EQ(Fill(m_handle, form,
                   With(With(With(With(entries, {"color", "#1"}), {"downside-line", "1"}), {"color", "#2"}),
                        {"upside-line", "1"}))
                  .result,
              1);
    EXPECT_EQ(Describe(m_handle, form).Field("color").selected, 0);
    EXPECT_EQ(Describe(m_handle, form, {{"downside-line", "1"}}).Field("color").selected, 1);
    EXPECT_EQ(Describe(m_handle, form, {{"downside-line", "1"}}).Field("downside-line").selected, 1);
    EXPECT_EQ(Describe(m_handle, form, {{"upside-line", "1"}}).Field("color").selected, 0);
}

TEST_F(CapiRefusalsTest, PermitDevices)
{
    auto form = FormOf(282);
    const auto devices = [&] {
        const SDescribed described = Describe(m_handle, form);
        for (size_t i = 0; i < described.fields.size(); ++i)
            if (std::string(described.fields[i].name) == "input-device")
                return FieldItems(m_handle, static_cast<int>(i)).size();
        return size_t{0};
    };
    const size_t all = devices();
    form.permitted[0] = 0x40000;
    EXPECT_EQ(devices(), all);
    form.restricted = 1;
    EXPECT_LT(devices(), all);
}

TEST_F(CapiRefusalsTest, TakeTheWorkArea)
{
    auto form = FormOf(355);
    for (const int workArea : {0, 1, 19, 30, 1000})
    {
        form.workArea = workArea;
        const SDescribed described = Describe(m_handle, form);
        EXPECT_EQ(described.Field("start").high, kLastRegister - workArea - 10) << workArea;
    }
}

TEST_F(CapiRefusalsTest, SpeakTheLanguage)
{
    Prepare(m_handle, {"", "large", 0}, kJapanese);
    const SOutcome outcome = Check(m_handle, FormOf(169), {});
    EXPECT_EQ(outcome.refusal.reason, PEXLO_REFUSED_BY_MESSAGE);
    EXPECT_TRUE(std::any_of(std::begin(outcome.refusal.message), std::end(outcome.refusal.message),
                            [](char c) { return static_cast<unsigned char>(c) >= 0xE3; }));
    // Texts go in and out in UTF-8.
    const SDescribed described = Describe(m_handle, FormOf(169));
    for (size_t i = 0; i < described.fields.size(); ++i)
    {
        if (described.fields[i].kind != PEXLO_FIELD_LIST)
            continue;
        const auto items = FieldItems(m_handle, static_cast<int>(i));
        EXPECT_STREQ(Describe(m_handle, FormOf(169), {{described.fields[i].name, items.back().text}})
                         .Field(described.fields[i].name)
                         .text,
                     items.back().text);
        break;
    }
}

// ---- The dialogs themselves -----------------------------------------------------------------------------------------

/// What a user sees who knows only what the messages tell him.
class CapiMessagesTest : public CDesktopTest, public testing::WithParamInterface<SFormRow>
{
protected:
    CapiMessagesTest()
    {
        Prepare(m_handle, GetParam());
        FindPlcPreset(GetParam().plc)->Configure(m_wizard);
        m_wizard.SetF175DispType(static_cast<unsigned short>(GetParam().display175));
        m_wizard.SetStartType(static_cast<unsigned char>(GetParam().startType));
        m_wizard.SetLanguageInfo(0);
    }

    /// Opens the dialog of the class; `fill` is the scene in it.
    void Open(const CDialogRobot::Scene& fill)
    {
        const SFormRow& row = GetParam();
        const CDialogRobot::Scene select = [&](CDialogRobot& robot) {
            auto offer = Sized<PexloOffer>();
            for (int i = 0; Pexlo_GetOffer(m_handle, i, &offer) == 1; ++i)
                if (offer.instruction == row.instruction && offer.variant == row.variant)
                    robot.SelectText(IDC_SELECT_LIST, offer.text);
            robot.Click(IDOK);
        };
        const CDialogRobot::Scene leave = [](CDialogRobot& robot) { robot.Click(IDCANCEL); };
        switch (row.instruction)
        {
        case 355:
            Play([&] { return m_wizard.DoOpenPIDDlg(30, nullptr); }, {fill});
            break;
        case 180:
            Play([&] { return m_wizard.DoOpenSCRDlg(nullptr, nullptr); }, {fill});
            break;
        case 282:
        case 283:
        case 354:
            Play(
                [&] {
                    return m_wizard.DoOpenSCALDlg(nullptr, row.instruction == 282 ? 0 : row.instruction - 282, nullptr);
                },
                {fill});
            break;
        default:
            Play([&] { return m_wizard.DoOpenPosDlg(row.instruction == 151 ? 1 : 0, 1, nullptr); },
                 {select, fill, leave});
        }
    }

    CCapiHandle m_handle;
    CFunWizard m_wizard;
};

TEST_P(CapiMessagesTest, AreThoseOfTheDialog)
{
    if (GetParam().instruction == PEXLO_FORM_CONTROL_CODE)
        return; // it refuses nothing
    const auto form = FormOf(GetParam());
    const CTextEntries accepted = AcceptedEntries(m_handle, form);
    const SDescribed described = Describe(m_handle, form);
    CTextEntries entered;
    int refusals = 0;
    Open([&](CDialogRobot& robot) {
        for (size_t round = 0; round < 2 * accepted.size(); ++round)
        {
            const SOutcome outcome = Check(m_handle, form, entered);
            if (outcome.result == 1)
                break;
            const std::string message(robot.ClickAndAnswer(IDOK));
            ++refusals;
            SCOPED_TRACE(testing::Message() << outcome);
            EXPECT_EQ(outcome.refusal.message, message);
            EXPECT_EQ(MessageText(static_cast<unsigned>(outcome.refusal.messageId)), message);
            if (outcome.refusal.row > 0)
                break; // the editor of the table has the focus
            EXPECT_EQ(outcome.refusal.control, static_cast<int>(robot.FocusId()));
            const auto next = std::find_if(accepted.begin(), accepted.end(), [&](const STextEntry& entry) {
                return described.Field(entry.name).control == outcome.refusal.control;
            });
            if (next == accepted.end())
                break;
            // What nobody would enter, and then what is accepted.
            const bool isNonsense =
                described.Field(next->name).digitsOnly == 0 && (entered.empty() || entered.back().name != next->name);
            std::erase_if(entered, [&](const STextEntry& entry) { return entry.name == next->name; });
            entered.emplace_back(next->name, isNonsense ? "-" : next->text);
            robot.Type(robot.FocusId(), entered.back().text.c_str());
        }
        if (robot.IsOpen())
            robot.Click(IDCANCEL);
    });
    EXPECT_GT(refusals, 2);
}

INSTANTIATE_TEST_SUITE_P(Forms, CapiMessagesTest, testing::ValuesIn(Sampled(FormRows(), 4)),
                         [](const auto& test) { return test.param.name; });

// ---- Unseen ---------------------------------------------------------------------------------------------------------

/// What there is on the desktop of this thread.
struct SVisible
{
    HWND focus = ::GetFocus();
    HWND active = ::GetActiveWindow();
    size_t windows = CDialogRobot::OpenWindows().size();

    bool operator==(const SVisible&) const = default;
};

std::ostream& operator<<(std::ostream& out, const SVisible& visible)
{
    return out << "focus " << visible.focus << ", active " << visible.active << ", windows " << visible.windows;
}

TEST_F(CapiRefusalsTest, LeaveTheDesktopAlone)
{
    CWnd frame;
    ASSERT_TRUE(frame.CreateEx(0, "STATIC", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr));
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 20}, &frame, 7));
    edit.SetWindowText("typed");
    edit.SetFocus();
    edit.SetSel(1, 3);
    ASSERT_EQ(::GetFocus(), edit.m_hWnd);
    const SVisible before;
    for (const SFormRow& row : Sampled(FormRows(), 5))
    {
        SCOPED_TRACE(row.name);
        Prepare(m_handle, row);
        auto form = FormOf(row);
        const CTextEntries entries = AcceptedEntries(m_handle, form);
        EXPECT_EQ(SVisible(), before);
        EXPECT_EQ(Check(m_handle, form, {}).result == 1, row.instruction == 0);
        EXPECT_EQ(SVisible(), before);
        EXPECT_EQ(Fill(m_handle, form, entries).result, 1);
        EXPECT_EQ(SVisible(), before);
        EXPECT_EQ(Fill(m_handle, form, {{"no-such-field", ""}}).result, 2);
        EXPECT_EQ(SVisible(), before);
    }
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        EXPECT_NE(message.message, static_cast<UINT>(WM_QUIT));
        ::DispatchMessageW(&message);
    }
    int first = 0, last = 0;
    edit.GetSel(first, last);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(last, 3);
    EXPECT_EQ(SVisible(), before);
    frame.DestroyWindow();
}

} // namespace
