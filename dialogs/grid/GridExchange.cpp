// Rows of a table as texts, as spreadsheets exchange them.
#include "dialogs/grid/CellText.h"
#include "dialogs/grid/GridModel.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace
{

/// Takes the part up to any of `separators`, or all of it, off a text. False when nothing separated it. A line break of
/// two characters is one.
bool TakePart(std::string_view& text, const char* separators, std::string_view& part)
{
    const size_t end = text.find_first_of(separators);
    part = text.substr(0, end);
    text.remove_prefix(part.size());
    text.remove_prefix(text.starts_with("\r\n") ? 2 : !text.empty());
    return end != text.npos;
}

constexpr char kLineBreaks[] = "\r\n";

} // namespace

SGridLoss CGridModel::Paste(LPCSTR text)
{
    struct SPasted
    {
        size_t index;
        CString text;
    };
    const char* separators = std::strchr(text, '\t') != nullptr ? "\t" : ",";
    std::vector<SPasted> pasted;
    SGridLoss loss;
    std::string_view rest = text, line, cell;
    for (int row = m_current.row; !rest.empty(); ++row)
    {
        TakePart(rest, kLineBreaks, line);
        bool filled = false, more = true;
        for (int column = m_current.column; more; ++column)
        {
            more = TakePart(line, separators, cell);
            cell = TrimmedCell(cell);
            filled = filled || !cell.empty();
            if (row < m_mostRows && column < m_columns)
                pasted.push_back({Index({row, column}), MakeText(cell)});
            else if (row < m_mostRows && !cell.empty())
                loss.columns = std::max(loss.columns, column + 1 - m_columns);
        }
        loss.rows += filled && row >= m_mostRows;
    }
    if (!pasted.empty()) // from here on nothing fails
        m_cells.reserve(std::max(m_cells.size(), (pasted.back().index / m_columns + 1) * m_columns));
    for (SPasted& one : pasted)
        Fill(one.index, std::move(one.text));
    Trim();
    GoTo(m_current);
    return loss;
}

bool CGridModel::IsTable(LPCSTR text)
{
    std::string_view rest = text, line;
    TakePart(rest, kLineBreaks, line);
    return !rest.empty() || line.find('\t') != line.npos;
}

CString CGridModel::Copy(int firstRow, int endRow) const
{
    std::string text;
    for (int row = firstRow; row < endRow; ++row)
        for (int column = 0; column < m_columns; ++column)
        {
            text += Text({row, column});
            text += column + 1 < m_columns ? "\t" : "\r\n";
        }
    return MakeText(text);
}
