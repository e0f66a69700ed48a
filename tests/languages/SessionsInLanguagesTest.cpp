// Every recorded session in every language: the dialogs do, refuse and confirm as they do in English.
#include "tests/languages/SeenSession.h"
#include "tests/languages/Translations.h"
#include "tests/robust/CodePage.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

#include "host/SessionLanguage.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace
{

std::vector<std::string> SessionNames()
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& file : std::filesystem::directory_iterator(PEXLO_SOURCE_DIR "/host/sessions", error))
        if (file.path().extension() == ".json")
            names.push_back(file.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

struct STranslatedSession
{
    STranslation translation;
    unsigned page; ///< of the system
    std::string name;
};

std::ostream& operator<<(std::ostream& out, const STranslatedSession& row)
{
    return out << row.translation << ' ' << row.name << " on code page " << row.page;
}

// All of them; or as a sample a third of the sessions in each language, another one in the next.
std::vector<STranslatedSession> TranslatedSessions()
{
    const std::vector<std::string> names = SessionNames();
    const size_t every = IsThorough() ? 1 : 3;
    std::vector<STranslatedSession> rows;
    size_t first = 0;
    for (const STranslation& translation : kTranslations)
    {
        for (const unsigned page : SystemPages(translation))
            for (size_t i = first % every; i < names.size(); i += every)
                rows.push_back({translation, page, names[i]});
        ++first;
    }
    return rows;
}

/// A session as it can be played in any language, and what is seen of it in English.
struct SEnglishSession
{
    SSession session;
    SSeenSession seen;
};

const SEnglishSession& InEnglish(const std::string& name)
{
    static std::map<std::string, SEnglishSession> played;
    const auto [row, isNew] = played.try_emplace(name);
    if (isNew)
    {
        UseCodePage(kWesternPage);
        row->second.session = InLanguage(LoadSession(PEXLO_SOURCE_DIR "/host/sessions/" + name + ".json"), 0);
        row->second.seen = SeeSession(row->second.session);
    }
    return row->second;
}

class CSessionsInLanguagesTest : public CDesktopTest, public testing::WithParamInterface<STranslatedSession>
{
protected:
    ~CSessionsInLanguagesTest() override { UseCodePage(kWesternPage); }

    void ExpectSameMessages(const std::vector<SSeenMessage>& shown, const std::vector<SSeenMessage>& english)
    {
        ASSERT_EQ(shown.size(), english.size());
        const CLibraryTexts texts(GetParam().translation.index);
        const CLibraryTexts englishTexts(0);
        for (size_t i = 0; i < shown.size(); ++i)
        {
            const std::set<unsigned> ids = englishTexts.MessagesThatRead(english[i].text);
            EXPECT_FALSE(ids.empty()) << "no message: " << english[i].text;
            EXPECT_TRUE(
                std::any_of(ids.begin(), ids.end(), [&](unsigned id) { return texts.Text(id) == shown[i].text; }))
                << shown[i].where << ": \"" << shown[i].text << "\" for \"" << english[i].text << '"';
        }
    }
};

TEST_P(CSessionsInLanguagesTest, PlayAsInEnglish)
{
    const SEnglishSession& english = InEnglish(GetParam().name);
    ASSERT_TRUE(english.seen.success) << english.seen.report;

    UseCodePage(GetParam().page);
    ASSERT_EQ(::GetACP(), GetParam().page);
    SSession session = english.session;
    session.language = GetParam().translation.index;
    const SSeenSession seen = SeeSession(session);
    EXPECT_TRUE(seen.success) << seen.report;
    EXPECT_EQ(seen.log, english.seen.log);
    EXPECT_NE(seen.report, english.seen.report) << "played in English";
    ExpectSameMessages(seen.messages, english.seen.messages);
}

INSTANTIATE_TEST_SUITE_P(Sessions, CSessionsInLanguagesTest, testing::ValuesIn(TranslatedSessions()),
                         [](const auto& test) {
                             std::string name = std::string(test.param.translation.name) + '_' +
                                                std::to_string(test.param.page) + '_' + test.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
