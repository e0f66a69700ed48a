// The base of what is tested of each language library.
#pragma once

#include <gtest/gtest.h>

#include "tests/resources/ExpectedLanguages.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/resources/WideResources.h"

/// Every text of a language library, read once.
inline const std::vector<SPlacedText>& TextsIn(int language)
{
    static std::map<int, std::vector<SPlacedText>> read;
    const auto found = read.find(language);
    if (found != read.end())
        return found->second;
    const CLanguage scope(language);
    return read[language] = PlacedTexts();
}

class CLanguageTest : public testing::TestWithParam<SExpectedLanguage>
{
protected:
    /// Calls look() with every text in English, in this language, and the place where both stand.
    template <typename TLook>
    static void ForEachText(TLook look)
    {
        const std::vector<SPlacedText>& english = TextsIn(kEnglish);
        const std::vector<SPlacedText>& texts = TextsIn(GetParam().index);
        ASSERT_EQ(texts.size(), english.size());
        for (size_t i = 0; i < texts.size(); ++i)
        {
            ASSERT_EQ(texts[i].place, english[i].place);
            SCOPED_TRACE(texts[i].place + ": " + Utf8(texts[i].text));
            look(english[i].text, texts[i].text);
        }
    }
};

inline std::string NameOf(const testing::TestParamInfo<SExpectedLanguage>& test) { return test.param.name; }
