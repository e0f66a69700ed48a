#include "afx/String.h"

#include "afx/CodePage.h"
#include "afx/Object.h"
#include "afx/Resources.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <string_view>
#include <utility>

namespace
{

constexpr char kWhiteSpace[] = " \t\n\v\f\r";

LPCSTR OrEmpty(LPCSTR text) { return text ? text : ""; }

int Length(LPCSTR text) { return static_cast<int>(std::strlen(OrEmpty(text))); }

std::string_view View(const CString& text) { return {text, static_cast<size_t>(text.GetLength())}; }

int Index(size_t found) { return found == std::string_view::npos ? -1 : static_cast<int>(found); }

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Changes single-byte characters and steps over double-byte ones, whose second byte may look like a letter.
void ChangeCase(char* text, char (*change)(char))
{
    for (; *text; ++text)
    {
        if (!::IsDBCSLeadByteEx(AfxGetTextPage(), static_cast<BYTE>(*text)))
            *text = change(*text);
        else if (text[1])
            ++text;
    }
}

// The format with the sizes of 32-bit Windows spelled as the C library of any system understands them: I64 becomes ll;
// I32, and the l of a 32-bit long, are dropped. It never grows.
CString TranslateFormat(LPCSTR format)
{
    CString translated(format);
    char* const start = translated.GetBuffer(0);
    char* to = start;
    while (*format)
    {
        *to++ = *format;
        if (*format++ != '%')
            continue;
        while (*format && std::strchr("-+ #0123456789.*", *format))
            *to++ = *format++;
        if (std::strncmp(format, "I64", 3) == 0)
            *to++ = 'l', *to++ = 'l', format += 3;
        else if (std::strncmp(format, "I32", 3) == 0)
            format += 3;
        else if (*format == 'l' && format[1] && std::strchr("diouxX", format[1]))
            ++format;
        if (*format)
            *to++ = *format++;
    }
    translated.ReleaseBuffer(static_cast<int>(to - start));
    return translated;
}

} // namespace

CString::CString(const CString& other) { Assign(other, other.GetLength()); }

CString::CString(LPCSTR text) { Assign(text, Length(text)); }

CString::CString(LPCSTR text, int length) { Assign(text, text ? length : 0); }

CString::CString(char c, int count)
{
    if (count > 0)
        std::memset(GetBufferSetLength(count), c, count);
}

CString& CString::operator=(const CString& other)
{
    if (this != &other)
        Assign(other, other.GetLength());
    return *this;
}

CString& CString::operator=(CString&& other) noexcept
{
    std::swap(m_pchData, other.m_pchData);
    return *this;
}

CString& CString::operator=(LPCSTR text)
{
    Assign(text, Length(text));
    return *this;
}

CString& CString::operator=(char c)
{
    Assign(&c, 1);
    return *this;
}

void CString::Empty()
{
    if (m_pchData)
        AfxFree(Header());
    m_pchData = nullptr;
}

void CString::SetAt(int index, char c)
{
    ASSERT(index >= 0 && index < GetLength());
    m_pchData[index] = c;
}

CString& CString::operator+=(const CString& other)
{
    Append(other, other.GetLength());
    return *this;
}

CString& CString::operator+=(LPCSTR text)
{
    Append(text, Length(text));
    return *this;
}

CString& CString::operator+=(char c)
{
    Append(&c, 1);
    return *this;
}

int CString::CompareNoCase(LPCSTR other) const
{
    LPCSTR mine = *this;
    other = OrEmpty(other);
    for (; *mine && Lower(*mine) == Lower(*other); ++mine, ++other)
        ;
    return static_cast<BYTE>(Lower(*mine)) - static_cast<BYTE>(Lower(*other));
}

CString CString::Mid(int first, int count) const
{
    first = std::clamp(first, 0, GetLength());
    count = std::clamp(count, 0, GetLength() - first);
    return CString(static_cast<LPCSTR>(*this) + first, count);
}

CString CString::Right(int count) const
{
    count = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - count, count);
}

int CString::Find(char c, int start) const { return start < 0 ? -1 : Index(View(*this).find(c, start)); }

int CString::Find(LPCSTR text, int start) const
{
    return start < 0 ? -1 : Index(View(*this).find(OrEmpty(text), start));
}

int CString::ReverseFind(char c) const { return Index(View(*this).rfind(c)); }

int CString::FindOneOf(LPCSTR characters) const { return Index(View(*this).find_first_of(OrEmpty(characters))); }

void CString::TrimLeft()
{
    if (m_pchData)
        Splice(0, static_cast<int>(std::strspn(m_pchData, kWhiteSpace)), "", 0);
}

void CString::TrimRight()
{
    int length = GetLength();
    while (length > 0 && std::strchr(kWhiteSpace, m_pchData[length - 1]))
        --length;
    if (m_pchData)
        SetLength(length);
}

void CString::TrimRight(char target)
{
    int length = GetLength();
    while (length > 0 && m_pchData[length - 1] == target)
        --length;
    if (m_pchData)
        SetLength(length);
}

void CString::MakeUpper()
{
    if (m_pchData)
        ChangeCase(m_pchData, Upper);
}

void CString::MakeLower()
{
    if (m_pchData)
        ChangeCase(m_pchData, Lower);
}

int CString::Replace(char oldChar, char newChar)
{
    int count = 0;
    for (int index = Find(oldChar); index >= 0 && oldChar != newChar; index = Find(oldChar, index + 1), ++count)
        m_pchData[index] = newChar;
    return count;
}

int CString::Replace(LPCSTR oldText, LPCSTR newText)
{
    const int oldLength = Length(oldText);
    if (oldLength == 0)
        return 0;

    CString replaced;
    int count = 0;
    int copied = 0;
    for (int index = Find(oldText); index >= 0; index = Find(oldText, copied), ++count)
    {
        replaced.Append(m_pchData + copied, index - copied);
        replaced += newText;
        copied = index + oldLength;
    }
    if (count == 0)
        return 0;
    replaced.Append(m_pchData + copied, GetLength() - copied);
    *this = std::move(replaced);
    return count;
}

void CString::Format(LPCSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::FormatV(LPCSTR format, va_list arguments)
{
    const CString translated = TranslateFormat(OrEmpty(format));
    va_list again;
    va_copy(again, arguments);
    char brief[256];
    const int length = std::vsnprintf(brief, sizeof brief, translated, arguments);
    if (length < static_cast<int>(sizeof brief))
    {
        va_end(again);
        Assign(brief, std::max(length, 0));
        return;
    }
    CString printed;
    std::vsnprintf(printed.GetBufferSetLength(length), length + 1, translated, again);
    va_end(again);
    *this = std::move(printed);
}

BOOL CString::LoadString(UINT id)
{
    int length = 0;
    const LPCWSTR text = AfxFindString(id, length);
    *this = AfxNarrow(text, length);
    return length > 0;
}

LPSTR CString::GetBuffer(int minLength)
{
    Reserve(std::max({minLength, GetLength(), 1}));
    return m_pchData;
}

LPSTR CString::GetBufferSetLength(int newLength)
{
    GetBuffer(newLength);
    SetLength(newLength);
    return m_pchData;
}

void CString::ReleaseBuffer(int newLength)
{
    if (m_pchData)
        SetLength(newLength < 0 ? Length(m_pchData) : newLength);
}

void CString::FreeExtra()
{
    if (Capacity() == GetLength())
        return;
    CString exact(m_pchData, GetLength());
    *this = std::move(exact);
}

void CString::SetLength(int length)
{
    ASSERT(length >= 0 && length <= Capacity());
    Header()->length = length;
    m_pchData[length] = '\0';
}

// Makes room for `capacity` characters; the text stays.
void CString::Reserve(int capacity)
{
    if (capacity <= Capacity())
        return;
    if (capacity > INT_MAX - static_cast<int>(sizeof(SHeader)) - 1)
        AfxThrowMemoryException();
    const bool isNew = !m_pchData;
    void* block = AfxReallocate(isNew ? nullptr : Header(), sizeof(SHeader) + capacity + 1);
    m_pchData = reinterpret_cast<char*>(static_cast<SHeader*>(block) + 1);
    Header()->capacity = capacity;
    if (isNew)
        SetLength(0);
}

void CString::Assign(LPCSTR text, int length) { Splice(0, GetLength(), text, length); }

void CString::Append(LPCSTR text, int length) { Splice(GetLength(), 0, text, length); }

// Replaces `count` characters at `position` by a text, which may be a part of this one.
void CString::Splice(int position, int count, LPCSTR text, int length)
{
    if (m_pchData && length > 0 && text >= m_pchData && text <= m_pchData + GetLength())
    {
        const CString part(text, length);
        Splice(position, count, part, length);
        return;
    }

    if (length > INT_MAX - GetLength())
        AfxThrowMemoryException();
    const int tail = GetLength() - position - count;
    const int newLength = position + length + tail;
    // Storage that has to grow grows by half, so that appending stays cheap for long texts.
    if (newLength > Capacity())
        Reserve(std::max(newLength, Capacity() < INT_MAX / 2 ? Capacity() / 2 * 3 : 0));
    if (!m_pchData)
        return;
    std::memmove(m_pchData + position + length, m_pchData + position + count, tail);
    if (length > 0)
        std::memcpy(m_pchData + position, text, length);
    SetLength(newLength);
}
