#include "tests/translations/TextCheck.h"

#include "tests/resources/EnglishWords.h"
#include "tests/resources/RoomForText.h"

#include <algorithm>
#include <map>
#include <set>

namespace
{

char16_t Lower(char16_t c)
{
    const bool isCapital = (c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    return isCapital ? static_cast<char16_t>(c + 0x20) : c;
}

/// In small letters, without the mark of the access key.
std::u16string Plain(std::u16string text)
{
    if (const size_t bracket = text.find(u"(&"); bracket != std::u16string::npos)
        text.erase(bracket, 4); // "(&K)"
    std::erase(text, u'&');
    std::transform(text.begin(), text.end(), text.begin(), Lower);
    return text;
}

bool IsLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }

/// Where a term stands in a text as whole words, from `start` on, or in the plural.
size_t FindTerm(const std::u16string& text, const std::u16string& term, size_t start)
{
    for (size_t at; (at = text.find(term, start)) != std::u16string::npos; start = at + 1)
    {
        size_t end = at + term.size();
        end += end < text.size() && text[end] == u's';
        if ((at == 0 || !IsLetter(text[at - 1])) && (end >= text.size() || !IsLetter(text[end])))
            return at;
    }
    return std::u16string::npos;
}

struct SName
{
    std::u16string text;
    const STerm* term;
};

/// The terms of an English text, the longest where several begin or end in one another.
std::set<const STerm*> TermsIn(const std::u16string& english, const std::vector<STerm>& terms)
{
    std::vector<SName> names;
    for (const STerm& term : terms)
        for (const std::u16string& name : term.english)
            names.push_back({Plain(name), &term});
    std::sort(names.begin(), names.end(), [](const SName& a, const SName& b) { return a.text.size() > b.text.size(); });

    std::set<const STerm*> found;
    std::u16string rest = Plain(english);
    for (const SName& name : names)
        for (size_t at = 0; (at = FindTerm(rest, name.text, at)) != std::u16string::npos;)
        {
            rest.replace(at, name.text.size(), name.text.size(), u'\n');
            found.insert(name.term);
        }
    return found;
}

bool HasForm(const std::u16string& text, const STerm& term)
{
    const std::u16string plain = Plain(text);
    return std::any_of(term.forms.begin(), term.forms.end(),
                       [&](const std::u16string& form) { return plain.find(Plain(form)) != std::u16string::npos; });
}

bool HasEnglishWords(const SExpectedLanguage& language, const std::u16string& english, const std::u16string& text)
{
    const std::set<std::string> words = EnglishWords(language, english, text);
    return !std::all_of(words.begin(), words.end(), [&](const std::string& word) { return IsKeptIn(language, word); });
}

constexpr const char* kFontFace = "text 21001";

std::string Pair(const std::u16string& english, const std::u16string& text)
{
    return "\"" + Utf8(english) + "\": \"" + Utf8(text) + "\"";
}

} // namespace

std::vector<SFinding> CheckTexts(const SExpectedLanguage& language, const std::vector<SPlacedText>& english,
                                 const std::vector<SPlacedText>& texts, const SGlossary& glossary)
{
    std::vector<SFinding> findings;
    std::map<std::string, std::u16string> translated;
    for (const SPlacedText& text : texts)
        translated.emplace(text.place, text.text);

    std::map<std::u16string, std::u16string> known; // English, and its first translation
    for (const SPlacedText& placed : english)
    {
        const auto found = translated.find(placed.place);
        if (found == translated.end())
        {
            findings.push_back({EFinding::Missing, placed.place, Utf8(placed.text)});
            continue;
        }
        const std::u16string text = found->second;
        translated.erase(found);
        if (placed.text.empty())
            continue;
        if (placed.place != kFontFace && HasEnglishWords(language, placed.text, text))
            findings.push_back({EFinding::English, placed.place, Utf8(text)});
        const auto [first, isNew] = known.emplace(Plain(placed.text), Plain(text));
        if (!isNew && first->second != Plain(text) && !glossary.ambiguous.contains(placed.text))
            findings.push_back({EFinding::TwoWays, placed.place,
                                Pair(placed.text, text) + ", elsewhere \"" + Utf8(first->second) + "\""});
        for (const STerm* term : TermsIn(placed.text, glossary.terms))
            if (isNew && !HasForm(text, *term))
                findings.push_back({EFinding::Term, placed.place,
                                    Pair(placed.text, text) + ", term \"" + Utf8(term->english.front()) + "\""});
    }
    for (const SPlacedText& text : texts)
        if (translated.contains(text.place))
            findings.push_back({EFinding::Superfluous, text.place, Utf8(text.text)});
    return findings;
}

std::vector<SFinding> CheckWidths(int language)
{
    std::vector<SFinding> findings;
    for (const unsigned id : TemplateIds())
    {
        const SDialogPicture& picture = PictureOf(language, id);
        for (size_t i = 0; i < picture.controls.size(); ++i)
        {
            const SPicturedControl& control = picture.controls[i];
            if (control.textWidth <= RoomForText(control))
                continue;
            const std::string place = "dialog " + std::to_string(id) + ", control " + std::to_string(i);
            const std::string pixels =
                std::to_string(control.textWidth) + " pixels where " + std::to_string(RoomForText(control)) + " are";
            findings.push_back(
                {EFinding::TooLong, place, "\"" + Utf8(FromPage(control.text, AfxGetTextPage())) + "\", " + pixels});
        }
    }
    return findings;
}
