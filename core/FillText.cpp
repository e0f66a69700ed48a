#include "core/FillText.h"

#include <clocale>
#include <cstring>

namespace
{

constexpr size_t kMostDigits = 2; // of a width or a precision
constexpr char kDigits[] = "0123456789";
constexpr char kSigned[] = "di";
constexpr char kUnsigned[] = "uxXo";

bool IsOneOf(char c, LPCSTR characters) { return c != '\0' && std::strchr(characters, c) != nullptr; }

/// "%-8.3I64d" has the layout "%-8.3", the conversion 'd' and the length 9. What nothing fills has the conversion '\0'.
struct SDirective
{
    CString layout;
    char conversion = '\0';
    int length = 0;
};

size_t SizePrefix(LPCSTR text)
{
    for (const LPCSTR prefix : {"I64", "I32", "ll", "l", "hh", "h"})
        if (std::strncmp(text, prefix, std::strlen(prefix)) == 0)
            return std::strlen(prefix);
    return 0;
}

SDirective ParseDirective(LPCSTR text)
{
    const size_t flags = std::strspn(text + 1, "-+ 0");
    const size_t width = std::strspn(text + 1 + flags, kDigits);
    size_t layout = 1 + flags + width;
    size_t precision = 0;
    if (text[layout] == '.')
    {
        precision = std::strspn(text + layout + 1, kDigits);
        layout += 1 + precision;
    }
    const size_t prefix = SizePrefix(text + layout);
    const char conversion = text[layout + prefix];

    // Texts know no sizes, and no flag but the one that aligns them to the left.
    const bool isText = conversion == 's';
    if (width > kMostDigits || precision > kMostDigits ||
        (isText && (prefix != 0 || std::strspn(text + 1, "-") != flags)))
        return {};
    return {CString(text, static_cast<int>(layout)), conversion, static_cast<int>(layout + prefix + 1)};
}

} // namespace

bool CGapValue::Fits(char conversion) const
{
    switch (m_kind)
    {
    case kNumber:
        return IsOneOf(conversion, kSigned) || IsOneOf(conversion, kUnsigned);
    case kReal:
        return conversion == 'f';
    default:
        return conversion == 's';
    }
}

CString CGapValue::Print(const CString& layout, char conversion) const
{
    CString format = layout;
    if (IsOneOf(conversion, kUnsigned))
    {
        format.Replace("+", ""); // A sign means nothing there, but not every C library knows.
        format.Replace(" ", "");
    }
    format += m_kind == kNumber ? "I64" : "";
    format += conversion;

    CString printed;
    if (m_kind == kText)
        printed.Format(format, m_text != nullptr ? m_text : "");
    else if (IsOneOf(conversion, kUnsigned))
        printed.Format(format, static_cast<ULONGLONG>(m_number) & m_unsignedBits);
    else if (m_kind == kNumber)
        printed.Format(format, m_number);
    else
    {
        printed.Format(format, m_real);
        printed.Replace(std::localeconv()->decimal_point, "."); // Entries are read with a point wherever the host runs.
    }
    return printed;
}

CString FillText(LPCSTR text, std::initializer_list<CGapValue> values)
{
    CString filled;
    const CGapValue* next = values.begin();
    for (;;)
    {
        const size_t plain = std::strcspn(text, "%");
        filled += CString(text, static_cast<int>(plain));
        text += plain;
        if (*text == '\0')
            return filled;
        const SDirective directive = ParseDirective(text);
        if (next != values.end() && next->Fits(directive.conversion))
        {
            filled += (next++)->Print(directive.layout, directive.conversion);
            text += directive.length;
        }
        else
        {
            filled += '%';
            text += text[1] == '%' ? 2 : 1;
        }
    }
}

CString FillText(UINT id, std::initializer_list<CGapValue> values)
{
    CString text;
    text.LoadString(id);
    return FillText(text, values);
}
