#include "tests/resources/EnglishWords.h"

#include "tests/resources/KeptWords.h"
#include "tests/resources/WideResources.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace
{

bool IsLetter(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
/// Of a word in a script of Latin letters, accents included.
bool IsOfWord(char16_t c) { return IsLetter(c) || IsDigit(c) || (c >= 0xC0 && c < 0x250); }

/// The text as it is read: without access keys and directives.
std::u16string Read(const std::u16string& text)
{
    std::u16string read;
    for (size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == u'(' && text.substr(i + 1, 1) == u"&" && text.substr(i + 3, 1) == u")")
            i += 3;
        else if (text[i] == u'%')
        {
            const size_t end = text.find_first_not_of(u"0123456789.", i + 1);
            if (end != std::u16string::npos && std::u16string_view(u"dfs").find(text[end]) != std::u16string_view::npos)
                i = end;
        }
        else if (text[i] != u'&')
            read += text[i];
    }
    return read;
}

/// The words that begin with a Latin letter.
std::set<std::string> Words(const std::u16string& text)
{
    std::set<std::string> words;
    const std::u16string read = Read(text);
    for (size_t i = 0; i < read.size();)
    {
        size_t end = i;
        while (end < read.size() && IsOfWord(read[end]))
            ++end;
        // The unit of "100kHz" is a word.
        while (i < end && IsDigit(read[i]))
            ++i;
        if (i < end)
            words.insert(Utf8(read.substr(i, end - i)));
        i = end + 1;
    }
    return words;
}

} // namespace

std::set<std::string> EnglishWords(const SExpectedLanguage& language, const std::u16string& english,
                                   const std::u16string& text)
{
    std::set<std::string> words = Words(text);
    if (language.script == kLatin)
    {
        const std::set<std::string> candidates = Words(english);
        std::erase_if(words, [&](const std::string& word) { return !candidates.contains(word); });
    }
    return words;
}

bool IsKeptIn(const SExpectedLanguage& language, const std::string& word)
{
    return std::any_of(std::begin(kKeptWords), std::end(kKeptWords),
                       [&](const SKeptWord& kept) { return word == kept.word && kept.IsKeptIn(language); });
}
