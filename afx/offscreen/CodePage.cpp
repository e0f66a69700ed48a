// The ANSI code page: its double-byte characters, conversions from and to UTF-16, upper and lower case.

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

UINT Resolved(UINT codePage) { return codePage == CP_ACP ? g_codePage : codePage; }

bool IsLeadByteIn(UINT codePage, unsigned char c)
{
    switch (codePage)
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

std::string EncodingName(UINT codePage)
{
    switch (codePage)
    {
    case CP_UTF8:
        return "UTF-8";
    case 932:
        return "CP932";
    case 874:
        return "CP874";
    default:
        return "CP" + std::to_string(codePage);
    }
}

// Converts between encodings; what cannot be converted becomes a question mark.
std::string Convert(const char* from, const char* to, std::string_view source, std::size_t unit)
{
    const iconv_t converter = iconv_open(to, from);
    if (converter == reinterpret_cast<iconv_t>(-1))
    {
        Fail("the C library cannot convert %s to %s", from, to);
        return {};
    }
    std::string result;
    char* input = const_cast<char*>(source.data());
    std::size_t left = source.size();
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
        result.append(std::string_view("?\0", std::string_view(to).starts_with("UTF-16") ? 2 : 1));
        const std::size_t skipped = std::min(unit, left);
        input += skipped;
        left -= skipped;
    }
    iconv_close(converter);
    return result;
}

std::string FromWide(UINT codePage, std::u16string_view wide)
{
    const bool ascii = std::all_of(wide.begin(), wide.end(), [](char16_t c) { return c < 0x80; });
    if (ascii)
        return std::string(wide.begin(), wide.end());
    const std::string_view bytes(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(char16_t));
    return Convert("UTF-16LE", EncodingName(codePage).c_str(), bytes, sizeof(char16_t));
}

std::u16string IntoWide(UINT codePage, std::string_view text)
{
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (ascii)
        return std::u16string(text.begin(), text.end());
    const std::string bytes = Convert(EncodingName(codePage).c_str(), "UTF-16LE", text, 1);
    std::u16string wide(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(wide.data(), bytes.data(), wide.size() * sizeof(char16_t));
    return wide;
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

bool IsLeadByte(unsigned char c) { return IsLeadByteIn(g_codePage, c); }

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

std::string ToAnsi(std::u16string_view wide) { return FromWide(g_codePage, wide); }
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
BOOL IsDBCSLeadByteEx(UINT codePage, BYTE c) { return IsLeadByteIn(Resolved(codePage), c); }

int MultiByteToWideChar(UINT codePage, DWORD, LPCSTR text, int length, LPWSTR wide, int wideSize)
{
    Inside inside;
    // A length of -1 takes the terminator along.
    const std::string_view source(text, length < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(length));
    const std::u16string converted = IntoWide(Resolved(codePage), source);
    if (wideSize == 0)
        return static_cast<int>(converted.size());
    if (converted.size() > static_cast<std::size_t>(wideSize))
    {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    std::copy(converted.begin(), converted.end(), wide);
    return static_cast<int>(converted.size());
}

int WideCharToMultiByte(UINT codePage, DWORD, LPCWSTR wide, int wideLength, LPSTR text, int size, LPCSTR, LPBOOL)
{
    Inside inside;
    const std::u16string_view source(wide, wideLength < 0 ? std::char_traits<char16_t>::length(wide) + 1
                                                          : static_cast<std::size_t>(wideLength));
    const std::string converted = FromWide(Resolved(codePage), source);
    if (size == 0)
        return static_cast<int>(converted.size());
    if (converted.size() > static_cast<std::size_t>(size))
    {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    std::copy(converted.begin(), converted.end(), text);
    return static_cast<int>(converted.size());
}

LPSTR CharNextA(LPCSTR text)
{
    if (*text)
        text += IsDBCSLeadByte(static_cast<BYTE>(*text)) && text[1] ? 2 : 1;
    return const_cast<LPSTR>(text);
}

LPSTR CharPrevA(LPCSTR start, LPCSTR text)
{
    if (text <= start)
        return const_cast<LPSTR>(start);
    return const_cast<LPSTR>(start) +
           PreviousCharacter(std::string_view(start, std::strlen(start)), static_cast<std::size_t>(text - start));
}

namespace
{
LPSTR ChangeCaseOf(LPSTR text, bool upper)
{
    Inside inside;
    if (IS_INTRESOURCE(text)) // A single character instead of a text
    {
        const char c = static_cast<char>(reinterpret_cast<ULONG_PTR>(text));
        const std::string changed = upper ? UpperCase({&c, 1}) : LowerCase({&c, 1});
        return reinterpret_cast<LPSTR>(static_cast<ULONG_PTR>(static_cast<unsigned char>(changed[0])));
    }
    const std::string changed = upper ? UpperCase(text) : LowerCase(text);
    std::copy(changed.begin(), changed.end(), text);
    return text;
}
} // namespace

LPSTR CharUpperA(LPSTR text) { return ChangeCaseOf(text, true); }
LPSTR CharLowerA(LPSTR text) { return ChangeCaseOf(text, false); }

DWORD CharUpperBuffA(LPSTR text, DWORD length)
{
    Inside inside;
    const std::string changed = UpperCase({text, length});
    std::copy(changed.begin(), changed.end(), text);
    return length;
}

int lstrlenA(LPCSTR text) { return text ? static_cast<int>(std::strlen(text)) : 0; }

LPSTR lstrcpyA(LPSTR target, LPCSTR source)
{
    std::copy_n(source, std::strlen(source) + 1, target);
    return target;
}

LPSTR lstrcatA(LPSTR target, LPCSTR source)
{
    lstrcpyA(target + std::strlen(target), source);
    return target;
}

LPSTR lstrcpynA(LPSTR target, LPCSTR source, int size)
{
    CopyText(source, target, static_cast<std::size_t>(std::max(size, 0)));
    return target;
}

int lstrcmpA(LPCSTR a, LPCSTR b)
{
    const int order = CompareTexts(a, b);
    if (order)
        return order;
    const int exact = std::strcmp(a, b);
    return exact < 0 ? 1 : exact > 0 ? -1 : 0; // Lower case comes first.
}

int lstrcmpiA(LPCSTR a, LPCSTR b) { return CompareTexts(a, b); }
