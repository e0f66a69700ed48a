#include "afx/offscreen/EditLines.h"

namespace offscreen
{
void EditLines::Break(std::u16string_view text, const FontMetrics& metrics, int width)
{
    m_starts.clear();
    m_lengths.clear();
    std::size_t start = 0;
    for (;;)
    {
        const std::size_t end = text.find(u"\r\n", start);
        const bool last = end == std::u16string_view::npos;
        BreakParagraph(text, static_cast<int>(start), static_cast<int>(last ? text.size() : end), metrics, width);
        if (last)
            return;
        start = end + 2;
    }
}

void EditLines::BreakParagraph(std::u16string_view text, int start, int end, const FontMetrics& metrics, int width)
{
    do
    {
        int position = start;
        int afterWord = start;
        int used = 0;
        for (; position < end; ++position)
        {
            const auto at = static_cast<std::size_t>(position);
            if (position > start && (text[at - 1] == u' ' || MayBreakBetween(text[at - 1], text[at])))
                afterWord = position;
            used += TextWidth(metrics, text.substr(at, 1));
            if (used > width && position > start)
                break;
        }
        if (position < end && afterWord > start)
            position = afterWord;
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
