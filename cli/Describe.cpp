#include "cli/Describe.h"

#include "cli/Csv.h"
#include "cli/InstructionNames.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <sstream>

using json = nlohmann::ordered_json; // members in a sensible order

std::string Hexadecimal(unsigned number)
{
    char text[11];
    std::snprintf(text, sizeof text, "0x%X", number);
    return text;
}

namespace
{
// Of characters, as they stand below each other.
size_t Width(const std::string& text)
{
    return static_cast<size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

// Columns below each other, the last one as long as it is.
std::string Columns(const std::vector<std::vector<std::string>>& rows, size_t gap)
{
    std::vector<size_t> widths;
    for (const std::vector<std::string>& row : rows)
    {
        widths.resize(std::max(widths.size(), row.size()));
        for (size_t i = 0; i + 1 < row.size(); ++i)
            widths[i] = std::max(widths[i], Width(row[i]));
    }
    std::string text;
    for (const std::vector<std::string>& row : rows)
    {
        std::string line;
        for (size_t i = 0; i < row.size(); ++i)
            line += row[i] + (i + 1 < row.size() ? std::string(widths[i] + gap - Width(row[i]), ' ') : "");
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

std::string Dump(const json& document)
{
    constexpr int kIndent = 2;
    return document.dump(kIndent, ' ', false, json::error_handler_t::replace) + '\n';
}

std::string WithSpaces(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

const char* KindText(int kind)
{
    switch (kind)
    {
    case PEXLO_FIELD_EDIT:
        return "edit";
    case PEXLO_FIELD_LIST:
        return "list";
    case PEXLO_FIELD_CHECK:
        return "check";
    case PEXLO_FIELD_RADIO:
        return "radio";
    case PEXLO_FIELD_TABLE:
        return "table";
    default:
        return "?";
    }
}

bool IsSwitch(const PexloField& info) { return info.kind == PEXLO_FIELD_CHECK || info.kind == PEXLO_FIELD_RADIO; }

// What a field holds, as one would enter it.
std::string Held(const pexlo::Field& field)
{
    if (IsSwitch(field.info))
        return field.info.selected != 0 ? "on" : "off";
    return field.text;
}

// What an entry may be.
std::string Accepted(const pexlo::Field& field)
{
    const PexloField& info = field.info;
    std::string text;
    const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
    if (info.enabled == 0)
        add("not enabled");
    if (info.hasRange != 0)
        add(std::string(info.lowest) + " to " + info.highest);
    if (info.kind == PEXLO_FIELD_EDIT && info.limit != 0)
        add("at most " + std::to_string(info.limit) + (info.digitsOnly != 0 ? " digits" : " characters"));
    else if (info.digitsOnly != 0)
        add("digits");
    if (info.kind == PEXLO_FIELD_TABLE)
        add("at most " + std::to_string(info.mostRows) + " rows");
    return text;
}

// The entry of a field below it, where there is one.
std::string HeldText(const pexlo::Field& field)
{
    const std::string held = WithSpaces(Held(field));
    if (held.find_first_not_of(' ') == std::string::npos)
        return {};
    const int problem = field.info.problem;
    return "    * " + held + (problem != 0 ? "  (refused with message " + std::to_string(problem) + ")" : "") + '\n';
}

// ---- Fields as text -------------------------------------------------------------------------------------------------

// The items of a field below it.
std::string ItemsText(const pexlo::Field& field)
{
    const bool isTable = field.info.kind == PEXLO_FIELD_TABLE;
    std::vector<std::vector<std::string>> rows;
    for (size_t i = 0; i < field.items.size(); ++i)
    {
        const pexlo::Item& item = field.items[i];
        const std::string code = isTable ? "column " + std::to_string(i + 1) : "#" + Hexadecimal(item.code);
        const bool isSelected = !isTable && static_cast<int>(i) == field.info.selected;
        rows.push_back({isSelected ? "    *" : "     ", code, WithSpaces(item.text)});
    }
    return Columns(rows, 1);
}

std::string FieldsText(const std::string& instruction, const pexlo::Description& description)
{
    std::vector<std::vector<std::string>> rows;
    for (const pexlo::Field& field : description.fields)
        rows.push_back({field.name, KindText(field.info.kind), Accepted(field), WithSpaces(field.label)});
    std::istringstream lines(Columns(rows, 2));
    std::string text = instruction + ": " + WithSpaces(description.caption) + "\n\n";
    std::string line;
    for (const pexlo::Field& field : description.fields)
    {
        std::getline(lines, line);
        text += line + '\n' + ItemsText(field) + (field.info.kind == PEXLO_FIELD_LIST ? "" : HeldText(field));
    }
    return text;
}

// ---- Fields as JSON -------------------------------------------------------------------------------------------------

json ItemsJson(const pexlo::Field& field)
{
    json items = json::array();
    for (const pexlo::Item& item : field.items)
        items.push_back({{"code", item.code}, {"text", item.text}});
    return items;
}

// What an edit or the cells of a column accept; `TInfo` is PexloField or PexloItem.
template <typename TInfo>
void AddAccepted(const TInfo& info, json& object)
{
    if (info.limit != 0)
        object["maxLength"] = info.limit;
    if (info.hasRange == 0)
        return;
    object["lowest"] = info.lowest;
    object["highest"] = info.highest;
    object["decimals"] = info.decimals;
}

json ColumnsJson(const pexlo::Field& field)
{
    json columns = json::array();
    for (const pexlo::Item& item : field.items)
    {
        columns.push_back({{"text", item.text}});
        AddAccepted(item.info, columns.back());
    }
    return columns;
}

json FieldJson(const pexlo::Field& field)
{
    const PexloField& info = field.info;
    json object = {{"name", field.name},
                   {"control", info.control},
                   {"kind", KindText(info.kind)},
                   {"label", field.label},
                   {"enabled", info.enabled != 0}};
    if (IsSwitch(info))
        object["value"] = info.selected != 0;
    else
        object["value"] = field.text;
    AddAccepted(info, object);
    if (info.kind == PEXLO_FIELD_EDIT)
        object["digitsOnly"] = info.digitsOnly != 0;
    if (info.kind == PEXLO_FIELD_LIST)
    {
        object["selected"] = info.selected;
        object["items"] = ItemsJson(field);
    }
    if (info.kind == PEXLO_FIELD_TABLE)
    {
        object["columns"] = ColumnsJson(field);
        object["rows"] = info.selected;
        object["mostRows"] = info.mostRows;
    }
    if (info.messageId != 0)
        object["messageId"] = info.messageId;
    if (info.problem != 0)
        object["problem"] = info.problem;
    if (info.inTable != 0)
        object["register"] = {{"offset", info.offset}, {"count", info.registers}};
    if (info.bitWidth != 0)
        object["bits"] = {{"lowest", info.bitShift}, {"count", info.bitWidth}};
    return object;
}

json DescriptionJson(const std::string& instruction, const pexlo::Description& description)
{
    json fields = json::array();
    for (const pexlo::Field& field : description.fields)
        fields.push_back(FieldJson(field));
    return {{"instruction", instruction}, {"caption", description.caption}, {"fields", fields}};
}

// ---- Fields as CSV --------------------------------------------------------------------------------------------------

std::string ItemsCell(const pexlo::Field& field)
{
    std::string text;
    for (const pexlo::Item& item : field.items)
    {
        const std::string code = field.info.kind == PEXLO_FIELD_TABLE ? "" : "#" + Hexadecimal(item.code) + ' ';
        text += (text.empty() ? "" : "\n") + code + item.text;
    }
    return text;
}

std::string FieldsCsv(const pexlo::Description& description)
{
    std::string text = CsvLine(
        {"name", "control", "kind", "enabled", "value", "limit", "lowest", "highest", "decimals", "label", "items"});
    for (const pexlo::Field& field : description.fields)
    {
        const PexloField& info = field.info;
        const bool hasRange = info.hasRange != 0;
        text += CsvLine({field.name, std::to_string(info.control), KindText(info.kind), info.enabled != 0 ? "1" : "0",
                         Held(field), info.limit != 0 ? std::to_string(info.limit) : "", hasRange ? info.lowest : "",
                         hasRange ? info.highest : "", hasRange ? std::to_string(info.decimals) : "", field.label,
                         ItemsCell(field)});
    }
    return text;
}
} // namespace

std::string DescriptionText(const std::string& instruction, const pexlo::Description& description, EFormat format)
{
    switch (format)
    {
    case EFormat::Json:
        return Dump(DescriptionJson(instruction, description));
    case EFormat::Csv:
        return FieldsCsv(description);
    default:
        return FieldsText(instruction, description);
    }
}

// ---- The list -------------------------------------------------------------------------------------------------------

std::vector<SOffered> Offered(pexlo::Wizard& wizard)
{
    std::vector<SOffered> offers;
    for (const pexlo::Offer& offer : wizard.Offers())
    {
        std::string text = offer.text;
        if (text.empty())
            text = wizard.DescribeFields(pexlo::Form(offer.instruction, offer.variant)).caption;
        offers.push_back({FormName(offer.instruction, offer.variant), offer.instruction, offer.variant, text});
    }
    return offers;
}

std::string OfferText(const std::vector<SOffered>& offers, EFormat format)
{
    std::vector<std::vector<std::string>> rows;
    json list = json::array();
    std::string csv = CsvLine({"name", "instruction", "variant", "text"});
    for (const SOffered& offer : offers)
    {
        const std::string text = WithSpaces(offer.text);
        rows.push_back({offer.name, text});
        list.push_back(
            {{"name", offer.name}, {"instruction", offer.instruction}, {"variant", offer.variant}, {"text", text}});
        csv += CsvLine({offer.name, std::to_string(offer.instruction), std::to_string(offer.variant), text});
    }
    return format == EFormat::Json ? Dump(list) : format == EFormat::Csv ? csv : Columns(rows, 2);
}
