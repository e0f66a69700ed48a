// Every recorded session in every language: the dialogs do, refuse and confirm as they do in English.
#include "tests/languages/KnownTexts.h"
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
    SLanguageOnSystem language;
    std::string name;
};

std::ostream& operator<<(std::ostream& out, const STranslatedSession& row)
{
    return out << row.name << " in " << row.language;
}

// All of them; or as a sample some of the sessions in each language, other ones in the next.
std::vector<STranslatedSession> TranslatedSessions()
{
    const std::vector<std::string> names = SessionNames();
    const auto every = static_cast<size_t>(SampledStep(3));
    std::vector<STranslatedSession> rows;
    for (const SLanguageOnSystem& language : LanguagesOnSystems())
        for (size_t i = static_cast<size_t>(language.translation.index) % every; i < names.size(); i += every)
            rows.push_back({language, names[i]});
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

const CKnownTexts& KnownTexts(int language)
{
    static std::map<int, CKnownTexts> known;
    const auto row = known.find(language);
    return row != known.end() ? row->second : known.try_emplace(language, CLibraryTexts(language)).first->second;
}

class CSessionsInLanguagesTest : public CDesktopTest, public testing::WithParamInterface<STranslatedSession>
{
protected:
    ~CSessionsInLanguagesTest() override { UseCodePage(kWesternPage); }

    /// Whether a comment is made from one text of the language, or from two with a blank between.
    static bool IsComment(const std::string& text)
    {
        const CKnownTexts& known = KnownTexts(GetParam().language.translation.index);
        if (known.Contains(text))
            return true;
        for (size_t blank = text.find(' '); blank != std::string::npos; blank = text.find(' ', blank + 1))
            if (known.Contains(text.substr(0, blank)) && known.Contains(text.substr(blank + 1)))
                return true;
        return false;
    }

    void ExpectSameMessages(const std::vector<SSeenMessage>& shown, const std::vector<SSeenMessage>& english)
    {
        ASSERT_EQ(shown.size(), english.size());
        const CLibraryTexts texts(GetParam().language.translation.index);
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

    UseCodePage(GetParam().language.page);
    ASSERT_EQ(::GetACP(), GetParam().language.page);
    SSession session = english.session;
    session.language = GetParam().language.translation.index;
    const SSeenSession seen = SeeSession(session);
    EXPECT_TRUE(seen.success) << seen.report;
    EXPECT_EQ(seen.log, english.seen.log);
    EXPECT_NE(seen.report, english.seen.report) << "played in English";
    ExpectSameMessages(seen.messages, english.seen.messages);
    for (const std::string& comment : seen.comments)
        EXPECT_TRUE(IsComment(comment)) << comment;
}

INSTANTIATE_TEST_SUITE_P(Sessions, CSessionsInLanguagesTest, testing::ValuesIn(TranslatedSessions()),
                         [](const auto& test) {
                             std::string name = NameOf(test.param.language) + '_' + test.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
