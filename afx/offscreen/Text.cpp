// Texts: upper and lower case, mnemonics, copying, and where a line may end.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
// The letters that change with the case: those of Western European text, and their full-width forms.
bool IsLower(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7) || (c >= 0xFF41 && c <= 0xFF5A);
}

bool IsUpper(char16_t c)
{
    return (c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) || (c >= 0xFF21 && c <= 0xFF3A);
}
} // namespace

char16_t UpperCase(char16_t c) { return IsLower(c) ? static_cast<char16_t>(c - 0x20) : c; }
char16_t LowerCase(char16_t c) { return IsUpper(c) ? static_cast<char16_t>(c + 0x20) : c; }

std::u16string UpperCase(std::u16string_view text)
{
    std::u16string result(text);
    for (char16_t& c : result)
        c = UpperCase(c);
    return result;
}

int CompareTexts(std::u16string_view a, std::u16string_view b)
{
    const auto [left, right] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), [](char16_t x, char16_t y) {
        return x == y || LowerCase(x) == LowerCase(y);
    });
    if (left == a.end() || right == b.end())
        return static_cast<int>(left != a.end()) - static_cast<int>(right != b.end());
    return LowerCase(*left) < LowerCase(*right) ? -1 : 1;
}

bool StartsWith(std::u16string_view text, std::u16string_view prefix)
{
    return text.size() >= prefix.size() && CompareTexts(text.substr(0, prefix.size()), prefix) == 0;
}

char16_t MnemonicOf(std::u16string_view text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
    {
        if (text[i] != '&')
            continue;
        if (text[i + 1] != '&')
            return UpperCase(text[i + 1]);
        ++i;
    }
    return 0;
}

std::u16string WithoutMnemonic(std::u16string_view text)
{
    std::u16string result;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == '&' && i + 1 < text.size())
            ++i; // && stands for one &.
        else if (text[i] == '&')
            continue;
        result += text[i];
    }
    return result;
}

namespace
{
template <class Character>
int Copy(std::basic_string_view<Character> text, Character* target, std::size_t size)
{
    if (!target || size == 0)
        return 0;
    const std::size_t copied = std::min(text.size(), size - 1);
    text.copy(target, copied);
    target[copied] = 0;
    return static_cast<int>(copied);
}
} // namespace

int CopyText(std::string_view text, LPSTR target, std::size_t size) { return Copy(text, target, size); }
int CopyText(std::u16string_view text, LPWSTR target, std::size_t size) { return Copy(text, target, size); }

bool IsFullWidth(char16_t c)
{
    constexpr struct
    {
        char16_t first;
        char16_t last;
    } kRanges[] = {{0x1100, 0x115F}, {0x2103, 0x27BF}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xA960, 0xA97F},
                   {0xAC00, 0xD7A3}, {0xF900, 0xFAFF}, {0xFE30, 0xFE6F}, {0xFF01, 0xFF60}, {0xFFE0, 0xFFE6}};
    if (c < kRanges[0].first)
        return false;
    return std::any_of(std::begin(kRanges), std::end(kRanges),
                       [c](const auto& range) { return c >= range.first && c <= range.last; });
}

bool MayBreakBetween(char16_t before, char16_t behind)
{
    // Closing marks do not begin a line, opening ones do not end it.
    constexpr std::u16string_view kClosing =
        u"、。，．・：；？！゛゜ーァィゥェォッャュョヮヵヶぁぃぅぇぉっゃゅょゎ々）〕］｝〉》」』】"
        u"〗％℃°”’!%),.:;?]}";
    constexpr std::u16string_view kOpening = u"（〔［｛〈《「『【〖“‘$([{￥＄";
    if (!IsFullWidth(before) && !IsFullWidth(behind))
        return false;
    return before != u' ' && behind != u' ' && kClosing.find(behind) == std::u16string_view::npos &&
           kOpening.find(before) == std::u16string_view::npos;
}
} // namespace offscreen

using namespace offscreen;

LPSTR lstrcpynA(LPSTR target, LPCSTR source, int size)
{
    CopyText(source, target, static_cast<std::size_t>(std::max(size, 0)));
    return target;
}
