#include "cli/FillReport.h"

#include "cli/Csv.h"
#include "host/DeviceText.h"
#include "host/Ladder.h"
#include "host/ResultText.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <sstream>

using json = nlohmann::ordered_json; // members in a sensible order

namespace
{
std::string EightDigits(unsigned code)
{
    char text[9];
    std::snprintf(text, sizeof text, "%08X", code);
    return text;
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// ---- Text -----------------------------------------------------------------------------------------------------------

class CTextReport : public CFillReport
{
public:
    explicit CTextReport(const SReportForm& form) : m_form(form) {}

    // What was refused is told elsewhere.
    std::string Entry(const SFilled& filled) override
    {
        if (filled.complaint)
            return {};
        if (!m_form.many)
            return Results(filled);
        const std::string gap = m_isFirst ? "" : "\n";
        m_isFirst = false;
        return gap + "Line " + std::to_string(filled.line) + ": " + filled.instruction + '\n' + Results(filled);
    }

private:
    std::string Results(const SFilled& filled) const
    {
        if (filled.controlCode)
            return "Control code: " + EightDigits(*filled.controlCode) + '\n';
        const SResultLists& lists = filled.lists;
        const std::string shown = m_form.records
                                      ? ResultText(lists)
                                      : ListText("Data table", lists.data.size(), DataTableText(lists.data)) +
                                            ListText("Comments", lists.comments.size(), CommentsText(lists.comments));
        return shown + "Ladder: " + (filled.complete ? "complete" : "incomplete") + '\n' +
               CLadder::Of(lists.instructions).Text();
    }

    SReportForm m_form;
    bool m_isFirst = true;
};

// ---- JSON -----------------------------------------------------------------------------------------------------------

json ContactsJson(const std::vector<SContactEntry>& contacts)
{
    json list = json::array();
    for (const SContactEntry& entry : contacts)
    {
        list.push_back({{"device", DeviceText(entry.code, entry.number)},
                        {"kind", entry.kind},
                        {"code", entry.code},
                        {"number", entry.number}});
    }
    return list;
}

json OperandsJson(const std::vector<SOperandEntry>& operands)
{
    json list = json::array();
    for (const SOperandEntry& entry : operands)
        list.push_back(
            {{"operand", DeviceText(entry.code, entry.value)}, {"code", entry.code}, {"value", entry.value}});
    return list;
}

json DataJson(const std::vector<SDataEntry>& data)
{
    json list = json::array();
    for (const SDataEntry& entry : data)
    {
        list.push_back({{"device", DeviceText(entry.code, entry.number)},
                        {"width", WidthText(entry)},
                        {"constant", ConstantText(entry)},
                        {"code", entry.code},
                        {"number", entry.number},
                        {"type", entry.type},
                        {"format", entry.format},
                        {"value", entry.value}});
    }
    return list;
}

json InstructionsJson(const std::vector<SInstructionEntry>& instructions)
{
    json list = json::array();
    for (const SInstructionEntry& entry : instructions)
    {
        list.push_back({{"kind", entry.kind},
                        {"code", entry.code},
                        {"value", entry.value},
                        {"flag1", entry.flag1},
                        {"flag2", entry.flag2}});
    }
    return list;
}

json RefusalJson(const SComplaint& complaint)
{
    json refusal = {{"message", complaint.message}};
    if (complaint.messageId != 0)
        refusal["messageId"] = complaint.messageId;
    if (!complaint.field.empty())
        refusal["field"] = complaint.field;
    if (complaint.control != 0)
        refusal["control"] = complaint.control;
    if (complaint.row != 0)
    {
        refusal["row"] = complaint.row;
        refusal["column"] = complaint.column;
    }
    return refusal;
}

json FilledJson(const SFilled& filled)
{
    json object;
    if (filled.line != 0)
        object["line"] = filled.line;
    object["instruction"] = filled.instruction;
    if (filled.complaint)
    {
        object["refusal"] = RefusalJson(*filled.complaint);
        return object;
    }
    if (filled.controlCode)
    {
        object["controlCode"] = EightDigits(*filled.controlCode);
        return object;
    }
    object["contacts"] = ContactsJson(filled.lists.contacts);
    object["operands"] = OperandsJson(filled.lists.operands);
    object["data"] = DataJson(filled.lists.data);
    object["comments"] = filled.lists.comments;
    object["instructions"] = InstructionsJson(filled.lists.instructions);
    object["complete"] = filled.complete;
    object["ladder"] = Lines(CLadder::Of(filled.lists.instructions).Text());
    return object;
}

// One object, or a list with one in each line.
class CJsonReport : public CFillReport
{
public:
    explicit CJsonReport(const SReportForm& form) : m_many(form.many) {}

    std::string Begin() override { return m_many ? "[" : ""; }
    std::string Entry(const SFilled& filled) override
    {
        constexpr int kIndent = 2;
        const auto onError = json::error_handler_t::replace;
        if (!m_many)
            return FilledJson(filled).dump(kIndent, ' ', false, onError) + '\n';
        const std::string gap = m_isFirst ? "\n" : ",\n";
        m_isFirst = false;
        return gap + FilledJson(filled).dump(-1, ' ', false, onError);
    }
    std::string End() override { return m_many ? "\n]\n" : ""; }

private:
    bool m_many;
    bool m_isFirst = true;
};

// ---- CSV ------------------------------------------------------------------------------------------------------------

class CCsvReport : public CFillReport
{
public:
    std::string Begin() override
    {
        return CsvLine({"line", "instruction", "part", "index", "device", "width", "text"});
    }

    std::string Entry(const SFilled& filled) override
    {
        if (filled.complaint)
            return Row(filled, "refusal", 0, filled.complaint->field, "", filled.complaint->message);
        if (filled.controlCode)
            return Row(filled, "control code", 0, "", "", EightDigits(*filled.controlCode));
        std::string rows;
        size_t index = 0;
        for (const SDataEntry& entry : filled.lists.data)
            rows += Row(filled, "data", index++, DeviceText(entry.code, entry.number), WidthText(entry),
                        ConstantText(entry));
        index = 0;
        for (const std::string& comment : filled.lists.comments)
            rows += Row(filled, "comment", index++, "", "", comment);
        index = 0;
        for (const std::string& line : Lines(CLadder::Of(filled.lists.instructions).Text()))
            rows += Row(filled, "ladder", index++, "", "", line);
        return rows;
    }

private:
    static std::string Row(const SFilled& filled, const char* part, size_t index, const std::string& device,
                           const std::string& width, const std::string& text)
    {
        const std::string line = filled.line != 0 ? std::to_string(filled.line) : "";
        return CsvLine({line, filled.instruction, part, std::to_string(index), device, width, text});
    }
};
} // namespace

std::unique_ptr<CFillReport> MakeFillReport(const SReportForm& form)
{
    switch (form.format)
    {
    case EFormat::Json:
        return std::make_unique<CJsonReport>(form);
    case EFormat::Csv:
        return std::make_unique<CCsvReport>();
    default:
        return std::make_unique<CTextReport>(form);
    }
}
