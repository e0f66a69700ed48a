#include "cli/Jobs.h"

#include "cli/Csv.h"
#include "host/TextFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <set>

using json = nlohmann::ordered_json; // entries are made in the order of the file

namespace
{
bool IsUtf8(const std::string& text)
{
    if (text.find('\0') != std::string::npos)
        return false; // nor is it any text
    // Writing it as JSON is strict about it.
    try
    {
        static_cast<void>(json(text).dump());
        return true;
    }
    catch (const json::type_error&)
    {
        return false;
    }
}

// ---- CSV ------------------------------------------------------------------------------------------------------------

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> Columns(const SCsvRecord& header)
{
    if (!header.problem.empty())
        throw CFileError("line " + std::to_string(header.line) + ": " + header.problem);
    std::vector<std::string> columns;
    for (const std::string& cell : header.cells)
    {
        if (!IsUtf8(cell))
            throw CFileError("the file is not UTF-8");
        columns.push_back(Trimmed(cell));
        if (columns.back().empty())
            throw CFileError("line " + std::to_string(header.line) + ": column " + std::to_string(columns.size()) +
                             " has no name");
        if (columns.back().find_first_of(";\t\r") != std::string::npos) // as some spreadsheets write it
            throw CFileError("cells are separated by commas, and lines by line feeds");
    }
    return columns;
}

SJob CsvJob(const SCsvRecord& record, const std::vector<std::string>& columns, const std::string& instruction,
            bool isUtf8)
{
    SJob job;
    job.line = record.line;
    job.instruction = instruction;
    job.problem = record.problem;
    if (job.problem.empty() && record.cells.size() > columns.size())
        job.problem = "the line has more cells than the header has columns";
    for (size_t i = 0; i < record.cells.size() && job.problem.empty(); ++i)
    {
        const std::string& cell = record.cells[i];
        if (cell.empty())
            continue;
        if (!isUtf8 && !IsUtf8(cell))
            job.problem = "the cell of \"" + columns[i] + "\" is not UTF-8";
        else if (columns[i] == "instruction")
            job.instruction = Trimmed(cell);
        else
            job.entries.push_back(MakeEntry(columns[i], cell));
    }
    return job;
}

// ---- JSON -----------------------------------------------------------------------------------------------------------

// Steps through a text and counts its lines.
class CLineCounter
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CLineCounter(const char* position, int& line) : m_position(position), m_line(&line) {}

    reference operator*() const { return *m_position; }
    CLineCounter& operator++()
    {
        if (*m_position++ == '\n')
            ++*m_line;
        return *this;
    }
    CLineCounter operator++(int)
    {
        CLineCounter before = *this;
        ++*this;
        return before;
    }
    bool operator==(const CLineCounter& other) const { return m_position == other.m_position; }
    bool operator!=(const CLineCounter& other) const { return m_position != other.m_position; }

private:
    const char* m_position;
    int* m_line;
};

// The document, and the lines in which its objects begin that no other one contains.
json ParseLines(const std::string& text, std::vector<int>& lines)
{
    constexpr int kDeepest = 16; // far deeper than anything that is expected
    int line = 1;
    std::vector<std::set<std::string>> keys; // of the objects that are open
    const auto see = [&](int depth, json::parse_event_t event, json& value) {
        if (depth > kDeepest)
            throw CFileError("line " + std::to_string(line) + ": lists in lists in lists are not expected");
        if (event == json::parse_event_t::object_start && keys.empty())
            lines.push_back(line);
        if (event == json::parse_event_t::object_start)
            keys.emplace_back();
        else if (event == json::parse_event_t::object_end)
            keys.pop_back();
        else if (event == json::parse_event_t::key && !keys.back().insert(value.get<std::string>()).second)
            throw CFileError("line " + std::to_string(line) + ": " + value.dump() + " is named twice");
        return true;
    };
    try
    {
        const char* start = text.data();
        return json::parse(CLineCounter(start, line), CLineCounter(start + text.size(), line), see);
    }
    catch (const json::exception&) // also of a number that is too large
    {
        throw CFileError("no JSON: mistake in line " + std::to_string(line));
    }
}

// A value as one would type it.
std::string ScalarText(const json& value)
{
    if (value.is_structured())
        throw CFileError("a text, a number, true or false is expected");
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string RowText(const json& row)
{
    if (!row.is_array())
        return ScalarText(row);
    std::string text;
    for (const json& cell : row)
        text += (text.empty() && &cell == &row.front() ? "" : "\t") + ScalarText(cell);
    return text;
}

// A list is a table, row by row.
std::string ValueText(const json& value)
{
    if (!value.is_array())
        return ScalarText(value);
    std::string text;
    for (const json& row : value)
        text += (&row == &value.front() ? "" : "\n") + RowText(row);
    return text;
}

void AddEntry(SJob& job, const std::string& field, const json& value)
{
    if (value.is_null())
        return;
    if (!IsUtf8(field))
        throw CFileError("the name of a field is no text");
    try
    {
        const std::string text = ValueText(value);
        if (field.empty() || !IsUtf8(text))
            throw CFileError("this is no text to enter");
        job.entries.push_back(MakeEntry(field, text));
    }
    catch (const CFileError& error)
    {
        throw CFileError("\"" + field + "\": " + error.what());
    }
}

// An object, or where a field is entered twice a list of pairs.
void AddEntries(SJob& job, const json& set)
{
    if (set.is_object())
    {
        for (const auto& [field, value] : set.items())
            AddEntry(job, field, value);
        return;
    }
    if (!set.is_array())
        throw CFileError("\"set\": an object {...} is expected");
    for (const json& pair : set)
    {
        if (!pair.is_array() || pair.size() != 2 || !pair[0].is_string())
            throw CFileError("\"set\": pairs [name, value] are expected");
        AddEntry(job, pair[0].get<std::string>(), pair[1]);
    }
}

void ReadJob(SJob& job, const json& object)
{
    for (const auto& [key, value] : object.items())
    {
        if (key == "instruction" && !value.is_null())
            job.instruction = ScalarText(value);
        else if (key == "instruction")
            continue;
        else if (key == "set")
            AddEntries(job, value);
        else
            throw CFileError("unknown key \"" + key + "\"");
    }
}
} // namespace

pexlo::Entry MakeEntry(const std::string& field, const std::string& text)
{
    constexpr size_t kMostDigits = 5; // of an id
    const bool isId = !field.empty() && field.size() <= kMostDigits &&
                      std::all_of(field.begin(), field.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
    return {field, text, isId ? std::stoi(field) : 0};
}

std::optional<pexlo::Entry> ParseEntry(const std::string& text)
{
    const size_t sign = text.find('=');
    if (sign == 0 || sign == std::string::npos)
        return std::nullopt;
    return MakeEntry(text.substr(0, sign), text.substr(sign + 1));
}

std::vector<SJob> ReadCsvJobs(const std::string& text, const std::string& instruction)
{
    const std::vector<SCsvRecord> records = ReadCsv(text);
    if (records.empty())
        throw CFileError("there is no header with the names of the fields");
    const std::vector<std::string> columns = Columns(records.front());
    const bool isUtf8 = IsUtf8(text); // else it is to be found out where not
    std::vector<SJob> jobs;
    for (auto record = records.begin() + 1; record != records.end(); ++record)
        jobs.push_back(CsvJob(*record, columns, instruction, isUtf8));
    return jobs;
}

std::vector<SJob> ReadJsonJobs(const std::string& text, const std::string& instruction)
{
    std::vector<int> lines;
    const json document = ParseLines(text, lines);
    const json list = document.is_object() ? json::array({document}) : document;
    if (!list.is_array() || !std::all_of(list.begin(), list.end(), [](const json& job) { return job.is_object(); }))
        throw CFileError("a list of objects, [{\"instruction\": ..., \"set\": {...}}], is expected");

    std::vector<SJob> jobs;
    for (size_t i = 0; i < list.size(); ++i)
    {
        SJob& job = jobs.emplace_back();
        job.line = lines[i];
        job.instruction = instruction;
        try
        {
            ReadJob(job, list[i]);
        }
        catch (const CFileError& error)
        {
            job.problem = error.what();
        }
    }
    return jobs;
}

std::vector<SJob> ReadJobs(const std::string& text, const std::string& instruction)
{
    const size_t first = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    const bool isJson = first != std::string::npos && (text[first] == '[' || text[first] == '{');
    return isJson ? ReadJsonJobs(text, instruction) : ReadCsvJobs(text, instruction);
}

void EnterEverywhere(std::vector<SJob>& jobs, const std::vector<pexlo::Entry>& entries)
{
    for (SJob& job : jobs)
    {
        std::vector<pexlo::Entry> all;
        for (const pexlo::Entry& entry : entries)
        {
            const bool isReplaced = std::any_of(job.entries.begin(), job.entries.end(),
                                                [&](const pexlo::Entry& own) { return own.name == entry.name; });
            if (!isReplaced)
                all.push_back(entry);
        }
        all.insert(all.end(), job.entries.begin(), job.entries.end());
        job.entries = std::move(all);
    }
}
