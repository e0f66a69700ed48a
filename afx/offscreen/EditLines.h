#pragma once

#include "afx/offscreen/Internal.h"

namespace offscreen
{
// The lines of a multi-line edit: where each one starts, broken at "\r\n" and, when a width is given, between words and
// East Asian characters.
class EditLines
{
public:
    static constexpr int kNoWrapping = 0x7FFFFFFF;

    void Break(std::u16string_view text, const FontMetrics& metrics, int width);

    int Count() const { return static_cast<int>(m_starts.size()); }
    int StartOf(int line) const { return m_starts[static_cast<std::size_t>(line)]; }
    // Characters of the line without its line break.
    int LengthOf(int line) const { return m_lengths[static_cast<std::size_t>(line)]; }
    int LineOf(int position) const;

private:
    void BreakParagraph(std::u16string_view text, int start, int end, const FontMetrics& metrics, int width);

    std::vector<int> m_starts{0};
    std::vector<int> m_lengths{0};
};
} // namespace offscreen
