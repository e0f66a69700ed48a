#include "tests/languages/KnownTexts.h"

#include "tests/languages/HeldTexts.h"

#include "resources/resource.h"

#include <algorithm>

namespace
{

constexpr unsigned kLastTemplate = 1200;
constexpr unsigned kFirstString = 9000;
constexpr unsigned kLastString = 23000;

std::string OnOneLine(std::string text)
{
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
    return text;
}

/// "%1d-%2d" has the parts "", "-" and "".
std::vector<std::string> AroundGaps(const std::string& format)
{
    std::vector<std::string> parts(1);
    for (size_t i = 0; i < format.size();)
    {
        const size_t end = format[i] == '%' ? format.find_first_of("dusxXf%", i + 1) : std::string::npos;
        if (end == std::string::npos)
            parts.back() += format[i++];
        else
        {
            if (format[end] == '%')
                parts.back() += '%';
            else
                parts.emplace_back();
            i = end + 1;
        }
    }
    return parts;
}

} // namespace

bool IsPlain(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0 && c != '?'; });
}

CKnownTexts::CKnownTexts(const CLibraryTexts& library)
{
    for (unsigned id = IDD_SELECT; id <= kLastTemplate; ++id)
        for (const std::string& text : TemplateTexts(library.Library(), id))
            m_texts.insert(OnOneLine(text));
    for (unsigned id = kFirstString; id <= kLastString; ++id)
    {
        const std::string text = OnOneLine(library.Text(id));
        m_texts.insert(text);
        const std::vector<std::string> parts = AroundGaps(text);
        if (parts.size() > 1 && !IsPlain(text))
            m_formats.push_back(parts);
    }
}

bool CKnownTexts::Contains(const std::string& text) const
{
    const size_t lineBreak = text.find('\n');
    return IsOneText(OnOneLine(text)) || (lineBreak != std::string::npos && Contains(text.substr(0, lineBreak)) &&
                                          Contains(text.substr(lineBreak + 1)));
}

bool CKnownTexts::IsOneText(const std::string& line) const
{
    return IsPlain(line) || m_texts.contains(line) ||
           std::any_of(m_formats.begin(), m_formats.end(),
                       [&](const std::vector<std::string>& parts) { return IsFilled(line, parts); });
}

bool CKnownTexts::IsFilled(const std::string& text, const std::vector<std::string>& parts) const
{
    if (!text.starts_with(parts.front()))
        return false;
    size_t at = parts.front().size();
    for (size_t i = 1; i < parts.size(); ++i)
    {
        const bool isLast = i + 1 == parts.size();
        if (isLast && text.size() < at + parts[i].size())
            return false;
        const size_t next = isLast ? text.size() - parts[i].size() : text.find(parts[i], at);
        if (next == std::string::npos || !IsGapText(text.substr(at, next - at)))
            return false;
        if (isLast)
            return text.ends_with(parts[i]);
        at = next + parts[i].size();
    }
    return false;
}

bool CKnownTexts::IsGapText(const std::string& text) const { return IsPlain(text) || m_texts.contains(text); }
