// The ANSI code page: its double-byte characters, conversion from UTF-16, upper and lower case.

#include "afx/offscreen/Internal.h"

#include <iconv.h>
#include <wctype.h>

#include <cstdio>
#include <cstring>

namespace offscreen
{
namespace
{
UINT g_codePage = 1252;

// Converts from UTF-16; what cannot be converted becomes a question mark.
std::string Convert(std::u16string_view wide)
{
    const std::string codePage = "CP" + std::to_string(g_codePage);
    const iconv_t converter = iconv_open(codePage.c_str(), "UTF-16LE");
    if (converter == reinterpret_cast<iconv_t>(-1))
    {
        Fail("the C library cannot convert to %s", codePage.c_str());
        return {};
    }
    std::string result;
    char* input = reinterpret_cast<char*>(const_cast<char16_t*>(wide.data()));
    std::size_t left = wide.size() * sizeof(char16_t);
    char buffer[256];
    while (left > 0)
    {
        char* output = buffer;
        std::size_t room = sizeof buffer;
        const std::size_t done = iconv(converter, &input, &left, &output, &room);
        result.append(buffer, sizeof buffer - room);
        if (done != static_cast<std::size_t>(-1) || left == 0)
            continue;
        if (errno == E2BIG)
            continue;
        result += '?';
        const std::size_t skipped = std::min(sizeof(char16_t), left);
        input += skipped;
        left -= skipped;
    }
    iconv_close(converter);
    return result;
}

// The letters that change with the case: ASCII, and those of Western European text.
char ChangeCase(char c, bool upper)
{
    const auto code = static_cast<unsigned char>(c);
    if (upper ? c >= 'a' && c <= 'z' : c >= 'A' && c <= 'Z')
        return static_cast<char>(c ^ 0x20);
    if (g_codePage != 1252)
        return c;
    const bool letter =
        upper ? code >= 0xE0 && code != 0xF7 && code != 0xFF : code >= 0xC0 && code <= 0xDE && code != 0xD7;
    return letter ? static_cast<char>(code ^ 0x20) : c;
}

std::string InCase(std::string_view text, bool upper)
{
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); i += static_cast<std::size_t>(CharacterLength(result, i)))
        if (CharacterLength(result, i) == 1)
            result[i] = ChangeCase(result[i], upper);
    return result;
}
} // namespace

void SetCodePage(UINT codePage) { g_codePage = codePage; }
void ResetCodePage() { g_codePage = 1252; }

bool IsLeadByte(unsigned char c)
{
    switch (g_codePage)
    {
    case 932:
        return (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC);
    case 936:
    case 949:
    case 950:
        return c >= 0x81 && c <= 0xFE;
    default:
        return false;
    }
}

int CharacterLength(std::string_view text, std::size_t position)
{
    constexpr unsigned char kFirstTrailByte = 0x30; // Of all code pages: a line break never ends a character.
    const bool hasTrail =
        position + 1 < text.size() && static_cast<unsigned char>(text[position + 1]) >= kFirstTrailByte;
    return hasTrail && IsLeadByte(static_cast<unsigned char>(text[position])) ? 2 : 1;
}

std::size_t PreviousCharacter(std::string_view text, std::size_t position)
{
    std::size_t start = 0;
    std::size_t previous = 0;
    while (start < position)
    {
        previous = start;
        start += static_cast<std::size_t>(CharacterLength(text, start));
    }
    return previous;
}

std::string ToAnsi(std::u16string_view wide)
{
    const bool ascii = std::all_of(wide.begin(), wide.end(), [](char16_t c) { return c < 0x80; });
    return ascii ? std::string(wide.begin(), wide.end()) : Convert(wide);
}

std::string UpperCase(std::string_view text) { return InCase(text, true); }
std::string LowerCase(std::string_view text) { return InCase(text, false); }

int CompareTexts(std::string_view a, std::string_view b)
{
    const int order = LowerCase(a).compare(LowerCase(b));
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

bool StartsWith(std::string_view text, std::string_view prefix)
{
    return text.size() >= prefix.size() && CompareTexts(text.substr(0, prefix.size()), prefix) == 0;
}

char MnemonicOf(std::string_view text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
    {
        if (text[i] != '&')
            continue;
        if (text[i + 1] != '&')
            return UpperCase(text.substr(i + 1, 1))[0];
        ++i;
    }
    return 0;
}

std::string WithoutMnemonic(std::string_view text)
{
    std::string result;
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

int CopyText(std::string_view text, LPSTR target, std::size_t size)
{
    if (!target || size == 0)
        return 0;
    const std::size_t copied = std::min(text.size(), size - 1);
    text.copy(target, copied);
    target[copied] = 0;
    return static_cast<int>(copied);
}
} // namespace offscreen

using namespace offscreen;

UINT GetACP() { return g_codePage; }
BOOL IsDBCSLeadByte(BYTE c) { return IsLeadByte(c); }

LPSTR lstrcpynA(LPSTR target, LPCSTR source, int size)
{
    CopyText(source, target, static_cast<std::size_t>(std::max(size, 0)));
    return target;
}
