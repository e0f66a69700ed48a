// The ANSI code page, conversions between it and UTF-16, and what the system says about code pages.

#include "afx/offscreen/CodePages.h"
#include "afx/offscreen/Internal.h"

#include <cstring>
#include <optional>

namespace offscreen
{
namespace
{
UINT g_codePage = 1252;

const CodePage& Ansi()
{
    static const CodePage* current = nullptr;
    if (!current || current->Number() != g_codePage)
        current = CodePage::Find(g_codePage);
    return *current;
}
} // namespace

void SetCodePage(UINT codePage)
{
    if (CodePage::Find(codePage))
        g_codePage = codePage;
    else
        Fail("not modelled: code page %u", codePage);
}

void ResetCodePage() { g_codePage = 1252; }

bool IsLeadByte(unsigned char c) { return Ansi().IsLead(c); }
bool HasDoubleBytes() { return Ansi().HasDoubleBytes(); }

std::u16string ToWide(std::string_view text)
{
    return IsAscii(text) ? std::u16string(text.begin(), text.end()) : Ansi().ToWide(text);
}

std::string ToAnsi(std::u16string_view wide)
{
    return IsAscii(wide) ? std::string(wide.begin(), wide.end()) : Ansi().ToBytes(wide);
}

int CopyAnsi(std::u16string_view text, LPSTR target, std::size_t size)
{
    if (!target || size == 0)
        return 0;
    const std::string ansi = ToAnsi(text);
    std::size_t copied = 0;
    if (ansi.size() < size)
        copied = ansi.size();
    else
        for (std::size_t next = 0; next < size; next += Ansi().LengthAt(ansi, next))
            copied = next;
    ansi.copy(target, copied);
    target[copied] = 0;
    return static_cast<int>(copied);
}

namespace
{
template <class Character>
std::optional<std::basic_string_view<Character>> SourceOf(const Character* text, int length, const void* target,
                                                          int size)
{
    if (!text || length == 0 || size < 0 || (size > 0 && (!target || target == text)))
    {
        SetLastError(ERROR_INVALID_PARAMETER);
        return std::nullopt;
    }
    // With its terminator, when the length is not given.
    const std::size_t count =
        length < 0 ? std::char_traits<Character>::length(text) + 1 : static_cast<std::size_t>(length);
    return std::basic_string_view<Character>(text, count);
}

// Without a size only the length is asked for. What does not fit is cut off, and that is an error.
template <class Character>
int Deliver(const std::basic_string<Character>& text, Character* target, int size)
{
    if (size == 0)
        return static_cast<int>(text.size());
    const std::size_t copied = text.copy(target, static_cast<std::size_t>(size));
    if (copied == text.size())
        return static_cast<int>(copied);
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return 0;
}

int Reject(DWORD error)
{
    SetLastError(error);
    return 0;
}

const CodePage* CodePageOf(UINT number)
{
    const CodePage* found = CodePage::Find(number == CP_ACP ? g_codePage : number);
    if (!found)
        SetLastError(ERROR_INVALID_PARAMETER);
    return found;
}

struct Language
{
    LANGID id;
    UINT codePage;
};

constexpr Language kLanguages[] = {{0x0409, 1252}, {0x0411, 932},  {0x0804, 936},  {0x0404, 950}, {0x0412, 949},
                                   {0x040A, 1252}, {0x0C0A, 1252}, {0x0410, 1252}, {0x041E, 874}};

// 0 for what is not known.
UINT LocaleNumber(LCID locale, LCTYPE type)
{
    if ((type & ~LOCALE_RETURN_NUMBER) != LOCALE_IDEFAULTANSICODEPAGE)
        return NotModelled("GetLocaleInfo with this type", 0u);
    for (const Language& language : kLanguages)
        if (language.id == locale)
            return language.codePage;
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
}

template <class Character>
int TellLocale(LCID locale, LCTYPE type, Character* text, int size)
{
    const UINT number = LocaleNumber(locale, type);
    if (number == 0)
        return 0;
    std::basic_string<Character> answer;
    if (type & LOCALE_RETURN_NUMBER)
    {
        answer.resize(sizeof(DWORD) / sizeof(Character));
        std::memcpy(answer.data(), &number, sizeof(DWORD));
    }
    else
    {
        const std::string digits = std::to_string(number);
        answer.assign(digits.begin(), digits.end());
        answer.push_back(0);
    }
    if (size > 0 && static_cast<std::size_t>(size) < answer.size())
        return Reject(ERROR_INSUFFICIENT_BUFFER);
    return Deliver(answer, text, size);
}
} // namespace
} // namespace offscreen

using namespace offscreen;

UINT GetACP() { return g_codePage; }
BOOL IsDBCSLeadByte(BYTE c) { return IsLeadByte(c); }

BOOL IsDBCSLeadByteEx(UINT codePage, BYTE c)
{
    Inside inside;
    const CodePage* found = CodePageOf(codePage);
    return found && found->IsLead(c);
}

BOOL IsValidCodePage(UINT codePage)
{
    Inside inside;
    return codePage == CP_UTF8 || (codePage != CP_ACP && CodePageOf(codePage) != nullptr);
}

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int length, LPWSTR target, int size)
{
    Inside inside;
    const auto source = SourceOf(text, length, target, size);
    if (!source)
        return 0;
    if (flags & ~(MB_PRECOMPOSED | MB_ERR_INVALID_CHARS))
        return Reject(ERROR_INVALID_FLAGS);
    bool invalid = false;
    std::u16string wide;
    if (codePage == CP_UTF8)
        wide = WideOfUtf8(*source, &invalid);
    else if (const CodePage* found = CodePageOf(codePage))
        wide = found->ToWide(*source, &invalid);
    else
        return 0;
    if (invalid && (flags & MB_ERR_INVALID_CHARS))
        return Reject(ERROR_NO_UNICODE_TRANSLATION);
    return Deliver(wide, target, size);
}

int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int length, LPSTR target, int size,
                        LPCSTR defaultChar, LPBOOL usedDefault)
{
    Inside inside;
    const auto source = SourceOf(text, length, target, size);
    if (!source)
        return 0;
    bool replaced = false;
    if (codePage == CP_UTF8)
    {
        if (flags & ~WC_ERR_INVALID_CHARS)
            return Reject(ERROR_INVALID_FLAGS);
        if (defaultChar || usedDefault)
            return Reject(ERROR_INVALID_PARAMETER);
        const std::string bytes = Utf8Of(*source, &replaced);
        return replaced && flags ? Reject(ERROR_NO_UNICODE_TRANSLATION) : Deliver(bytes, target, size);
    }
    if (flags & ~WC_NO_BEST_FIT_CHARS)
        return Reject(ERROR_INVALID_FLAGS);
    const CodePage* found = CodePageOf(codePage);
    if (!found)
        return 0;
    const std::string_view replacement =
        defaultChar ? std::string_view(defaultChar, found->IsLead(static_cast<BYTE>(*defaultChar)) ? 2 : 1) : "?";
    const std::string bytes = found->ToBytes(*source, replacement, &replaced);
    if (usedDefault)
        *usedDefault = replaced;
    return Deliver(bytes, target, size);
}

int GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR text, int size)
{
    Inside inside;
    return TellLocale(locale, type, text, size);
}

int GetLocaleInfoW(LCID locale, LCTYPE type, LPWSTR text, int size)
{
    Inside inside;
    return TellLocale(locale, type, text, size);
}
