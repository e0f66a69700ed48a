#include "afx/offscreen/EditLines.h"

namespace offscreen
{
void EditLines::Break(std::string_view text, const FontMetrics& metrics, int width)
{
    m_starts.clear();
    m_lengths.clear();
    std::size_t start = 0;
    for (;;)
    {
        const std::size_t end = text.find("\r\n", start);
        const bool last = end == std::string_view::npos;
        BreakParagraph(text, static_cast<int>(start), static_cast<int>(last ? text.size() : end), metrics, width);
        if (last)
            return;
        start = end + 2;
    }
}

void EditLines::BreakParagraph(std::string_view text, int start, int end, const FontMetrics& metrics, int width)
{
    do
    {
        int position = start;
        int afterSpace = start;
        int used = 0;
        while (position < end)
        {
            const int length = CharacterLength(text, static_cast<std::size_t>(position));
            used +=
                TextWidth(metrics, text.substr(static_cast<std::size_t>(position), static_cast<std::size_t>(length)));
            if (used > width && position > start)
                break;
            position += length;
            if (text[static_cast<std::size_t>(position - 1)] == ' ')
                afterSpace = position;
        }
        if (position < end && afterSpace > start)
            position = afterSpace;
        m_starts.push_back(start);
        m_lengths.push_back(position - start);
        start = position;
    } while (start < end);
}

int EditLines::LineOf(int position) const
{
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), position);
    return std::max(static_cast<int>(next - m_starts.begin()) - 1, 0);
}
} // namespace offscreen
