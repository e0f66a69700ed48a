// Every recorded session filled in without windows: what the dialogs gave, and what they refused, comes back.
#include "host/SessionLanguage.h"
#include "host/Utf8.h"
#include "tests/capi/FilledSession.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

#include <algorithm>
#include <filesystem>

namespace
{

struct SSessionRow
{
    std::string name;
    int language; ///< -2: the session's own
};

std::ostream& operator<<(std::ostream& out, const SSessionRow& row)
{
    return out << row.name << " in language " << row.language;
}

constexpr int kItsOwn = -2;

// Each session in its own language; in each of the others some of them, other ones in the next.
std::vector<SSessionRow> Rows(bool inOtherLanguages)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& file : std::filesystem::directory_iterator(PEXLO_SOURCE_DIR "/host/sessions", error))
        if (file.path().extension() == ".json")
            names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());

    std::vector<SSessionRow> rows;
    for (const std::string& name : Sampled(names, inOtherLanguages ? 2 : 8))
        rows.push_back({name, kItsOwn});
    if (!inOtherLanguages)
        return rows;
    const size_t every = IsThorough() ? 4 : 16;
    for (const int language : {1, 2, 3, 4, 5, 6, 9})
        for (size_t i = static_cast<size_t>(language) % every; i < names.size(); i += every)
            rows.push_back({names[i], language});
    return rows;
}

SSession Load(const SSessionRow& row)
{
    const SSession session = LoadSession(PEXLO_SOURCE_DIR "/host/sessions/" + row.name + ".json");
    return row.language == kItsOwn ? session : InLanguage(session, row.language);
}

std::string Plain(std::string text)
{
    std::erase(text, '\r');
    return text;
}

class CSessionsUnseenTest : public CDesktopTest, public testing::WithParamInterface<SSessionRow>
{
protected:
    /// Where the user was told about a mistake, the same is told.
    static void ExpectRefused(PexloHandle handle, const PexloForm& form, const SPressedOk& press)
    {
        const SKeptState before = StateOf(handle);
        const SOutcome outcome = Check(handle, form, press.entries);
        SCOPED_TRACE(testing::Message() << outcome);
        EXPECT_EQ(outcome.result, 2);
        EXPECT_EQ(outcome.refusal.reason, PEXLO_REFUSED_BY_MESSAGE);
        EXPECT_NE(outcome.refusal.messageId, 0);
        EXPECT_EQ(Plain(outcome.refusal.message), Plain(press.message));
        EXPECT_EQ(outcome.refusal.row, press.row);
        EXPECT_EQ(outcome.refusal.column, press.column);
        if (press.control > 100) // none of the buttons
        {
            EXPECT_EQ(outcome.refusal.control, static_cast<int>(press.control));
        }
        if (const int entry = outcome.refusal.entry; entry >= 0)
        {
            EXPECT_EQ(press.entries.at(static_cast<size_t>(entry)).control, outcome.refusal.control);
        }

        auto filled = form;
        EXPECT_EQ(Fill(handle, filled, press.entries).result, 2);
        EXPECT_EQ(StateOf(handle), before);
    }

    static void ExpectSame(PexloHandle handle, const SSeenRun& seen, EWizard wizard)
    {
        if (wizard != EWizard::ControlCode)
        {
            Pexlo_CreateInstCode(handle);
            EXPECT_EQ(ReadResults(handle), seen.results);
        }
        EXPECT_EQ(Pexlo_IsOnlyDataTable(handle), seen.onlyDataTable);
        EXPECT_EQ(Pexlo_IsCmtRec(handle), seen.commentsOn);
        if (wizard == EWizard::Unit)
        {
            EXPECT_EQ(Pexlo_IsAxisType(handle), seen.axisFlag == 0 ? 1 : 0);
        }
    }
};

TEST_P(CSessionsUnseenTest, GiveTheSameResults)
{
    const SSession session = Load(GetParam());
    const std::vector<SSeenRun> seen = SeeRuns(session);
    ASSERT_EQ(seen.size(), session.runs.size());

    const CCapiHandle handle;
    session.plc.Configure(WizardOf(handle));
    Pexlo_SetLanguageInfo(handle, session.language);
    Pexlo_SetCmtRec(handle, session.comments);
    size_t accepted = 0;
    for (size_t i = 0; i < seen.size(); ++i)
    {
        SCOPED_TRACE(testing::Message() << "run " << i);
        const SRun& run = session.runs[i];
        const auto& presses = seen[i].presses;
        auto form = FormOf(run, seen[i]);
        if (run.wizard == EWizard::Pulse || run.wizard == EWizard::Unit)
            Pexlo_SetCmtRec(handle, seen[i].commentsOn); // said in the selection dialog
        for (const SPressedOk& press : presses)
            if (!press.message.empty())
                ExpectRefused(handle, form, press);
        if (seen[i].result != 1)
            continue;
        ++accepted;

        const CTextEntries entries = presses.back().entries;
        if (run.wizard == EWizard::ControlCode && run.dialogs.size() > 1)
            form.controlCode = seen[i].controlCode; // entered there as a whole
        const SKeptState before = StateOf(handle);
        const SOutcome checked = Check(handle, form, entries);
        EXPECT_EQ(checked.result, 1) << checked;
        EXPECT_EQ(StateOf(handle), before);
        const SOutcome filled = Fill(handle, form, entries);
        EXPECT_EQ(filled.result, 1) << filled << testing::PrintToString(entries);
        EXPECT_EQ(filled.refusal.reason, 0);
        EXPECT_EQ(filled.refusal.entry, -1);
        if (run.wizard == EWizard::ControlCode)
        {
            EXPECT_EQ(form.controlCode, seen[i].controlCode);
        }
        ExpectSame(handle, seen[i], run.wizard);
    }
    EXPECT_GT(accepted, 0u);
}

class CReversedSessionsTest : public CSessionsUnseenTest
{
};

// Whoever enters the last field first gets the same.
TEST_P(CReversedSessionsTest, GiveTheSameResults)
{
    const SSession session = Load(GetParam());
    const std::vector<SSeenRun> seen = SeeRuns(session);
    const SRun& run = session.runs[0];
    if (seen[0].result != 1 || run.wizard == EWizard::ControlCode)
        return;

    const CCapiHandle handle;
    session.plc.Configure(WizardOf(handle));
    Pexlo_SetLanguageInfo(handle, session.language);
    Pexlo_SetCmtRec(handle, seen[0].commentsOn);
    CTextEntries entries = seen[0].presses.back().entries;
    // Page by page.
    const auto isTurn = [](const STextEntry& entry) { return entry.control == 2886 || entry.control == 2887; };
    for (auto page = entries.begin(); page != entries.end();)
    {
        const auto end = std::find_if(page, entries.end(), isTurn);
        std::reverse(page, end);
        page = end == entries.end() ? end : end + 1;
    }
    auto form = FormOf(run, seen[0]);
    const SOutcome filled = Fill(handle, form, entries);
    EXPECT_EQ(filled.result, 1) << filled;
    ExpectSame(handle, seen[0], run.wizard);
}

std::string NameOf(const SSessionRow& row)
{
    std::string name = row.name + (row.language == kItsOwn ? "" : "_" + std::to_string(row.language));
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Sessions, CSessionsUnseenTest, testing::ValuesIn(Rows(true)),
                         [](const auto& test) { return NameOf(test.param); });
INSTANTIATE_TEST_SUITE_P(Sessions, CReversedSessionsTest, testing::ValuesIn(Rows(false)),
                         [](const auto& test) { return NameOf(test.param); });

} // namespace
