#include "cli/Csv.h"

#include <string_view>
#include <utility>

namespace
{
class CCsvReader
{
public:
    explicit CCsvReader(std::string_view text) : m_rest(text) {}

    bool IsAtEnd() const { return m_rest.empty(); }
    SCsvRecord Record();

private:
    bool TakeIf(std::string_view expected);
    bool TakeLineBreak();
    void TakeCell(SCsvRecord& record);
    void TakeQuotedCell(SCsvRecord& record);
    void SkipLine();

    std::string_view m_rest;
    int m_line = 1;
};

bool CCsvReader::TakeIf(std::string_view expected)
{
    if (!m_rest.starts_with(expected))
        return false;
    m_rest.remove_prefix(expected.size());
    return true;
}

bool CCsvReader::TakeLineBreak()
{
    if (!TakeIf("\r\n") && !TakeIf("\n"))
        return false;
    ++m_line;
    return true;
}

void CCsvReader::SkipLine()
{
    const size_t end = m_rest.find('\n');
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    ++m_line;
}

void CCsvReader::TakeQuotedCell(SCsvRecord& record)
{
    std::string& cell = record.cells.emplace_back();
    while (!m_rest.empty())
    {
        if (TakeIf("\"\""))
        {
            cell += '"';
            continue;
        }
        if (TakeIf("\""))
            return;
        if (m_rest.front() == '\n')
            ++m_line;
        cell += m_rest.front();
        m_rest.remove_prefix(1);
    }
    record.problem = "a quotation mark is not closed";
}

void CCsvReader::TakeCell(SCsvRecord& record)
{
    if (TakeIf("\""))
        return TakeQuotedCell(record);
    const size_t end = m_rest.find_first_of(",\"\n");
    std::string_view cell = m_rest.substr(0, end);
    m_rest.remove_prefix(cell.size());
    if (cell.ends_with('\r') && m_rest.starts_with('\n'))
        cell.remove_suffix(1);
    record.cells.emplace_back(cell);
    if (m_rest.starts_with('"'))
        record.problem = "a quotation mark stands inside of a cell that does not begin with one";
}

SCsvRecord CCsvReader::Record()
{
    const std::string_view start = m_rest;
    SCsvRecord record;
    record.line = m_line;
    while (record.problem.empty())
    {
        TakeCell(record);
        if (!record.problem.empty() || IsAtEnd() || TakeLineBreak())
            break;
        if (!TakeIf(","))
            record.problem = "something stands behind the quotation mark that closes a cell";
    }
    if (record.problem.empty())
        return record;

    // What a quotation mark has swallowed up to the end of the file is read as lines of its own.
    if (IsAtEnd())
    {
        m_rest = start;
        m_line = record.line;
    }
    SkipLine();
    return record;
}
} // namespace

std::vector<SCsvRecord> ReadCsv(const std::string& text)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::string_view rest = text;
    if (rest.starts_with(kByteOrderMark))
        rest.remove_prefix(kByteOrderMark.size());

    std::vector<SCsvRecord> records;
    for (CCsvReader reader(rest); !reader.IsAtEnd();)
    {
        SCsvRecord record = reader.Record();
        const bool isEmptyLine = record.problem.empty() && record.cells.size() == 1 && record.cells[0].empty();
        if (!isEmptyLine)
            records.push_back(std::move(record));
    }
    return records;
}

std::string CsvLine(const std::vector<std::string>& cells)
{
    std::string line;
    for (const std::string& cell : cells)
    {
        if (&cell != cells.data())
            line += ',';
        if (cell.find_first_of(",\"\r\n") == std::string::npos)
        {
            line += cell;
            continue;
        }
        line += '"';
        for (const char c : cell)
            line += c == '"' ? std::string("\"\"") : std::string(1, c);
        line += '"';
    }
    return line + '\n';
}
