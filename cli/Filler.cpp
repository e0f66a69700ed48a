#include "cli/Filler.h"

#include "cli/NearName.h"
#include "host/TextFile.h"

#include <algorithm>
#include <utility>

namespace
{
std::string OneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string NoInstruction(const std::string& name)
{
    if (name.empty())
        return "no instruction is named";
    std::vector<std::string> names;
    for (const SFormName& form : FormNames())
        names.emplace_back(form.name);
    return "there is no such instruction" + Suggestion(name, names);
}
} // namespace

std::string SComplaint::Text() const
{
    std::string where = field;
    if (row != 0)
        where += " row " + std::to_string(row) + " column " + std::to_string(column);
    return OneLine(where.empty() ? message : where + ": " + message);
}

SFormName NamedForm(const std::string& name)
{
    if (const auto form = FindForm(name))
        return *form;
    throw CFileError((name.empty() ? "" : name + ": ") + NoInstruction(name));
}

CFiller::CFiller(pexlo::Wizard& wizard, const SSettings& settings) : m_wizard(wizard), m_settings(settings) {}

SFilled CFiller::Fill(const SJob& job)
{
    SFilled filled;
    filled.line = job.line;
    filled.instruction = job.instruction;
    try
    {
        if (!job.problem.empty())
            throw CFileError(job.problem);
        const auto name = FindForm(job.instruction);
        if (!name)
            throw CFileError(NoInstruction(job.instruction));
        filled.instruction = FormName(name->instruction, name->variant);
        Forget();
        pexlo::Form form = MakeForm(*name, m_settings);
        if (const auto refusal = m_wizard.Fill(form, job.entries))
        {
            filled.complaint = Explain(form, job.entries, *refusal);
            return filled;
        }
        if (form.instruction == PEXLO_FORM_CONTROL_CODE)
        {
            filled.controlCode = form.controlCode;
            return filled;
        }
        filled.complete = m_wizard.CreateInstCode();
        filled.lists = ReadLists();
    }
    catch (const CFileError& error)
    {
        filled.complaint = SComplaint{error.what()};
    }
    catch (const pexlo::Error& error)
    {
        if (error.Code() != PEXLO_E_INSTRUCTION)
            throw;
        filled.complaint = SComplaint{"this PLC does not have the instruction"};
    }
    return filled;
}

// What the next dialog would start from: the results of the one before, and what its check boxes have set.
void CFiller::Forget()
{
    m_wizard.SetCmtRec(m_settings.comments ? 1 : 0);
    m_wizard.SetOnlyDataTable(m_settings.onlyTable ? 1 : 0);
    m_wizard.RemoveAllContInfo();
    m_wizard.RemoveAllOprdInfo();
    m_wizard.RemoveAllDataInfo();
    m_wizard.RemoveAllCmtInfo();
    m_wizard.RemoveAllInstCodeInfo();
    m_wizard.RemoveDlgData();
}

SComplaint CFiller::Explain(const pexlo::Form& form, const std::vector<pexlo::Entry>& entries,
                            const pexlo::Refusal& refusal)
{
    SComplaint complaint;
    complaint.message = refusal.message;
    complaint.messageId = refusal.messageId;
    complaint.control = refusal.control;
    complaint.field = refusal.name;
    complaint.row = refusal.row;
    complaint.column = refusal.column;

    const bool isOfEntry = refusal.entry >= 0 && static_cast<size_t>(refusal.entry) < entries.size();
    if (!isOfEntry)
        return complaint;
    const pexlo::Entry& entry = entries[static_cast<size_t>(refusal.entry)];
    if (complaint.field.empty())
        complaint.field = entry.name;
    if (refusal.reason == PEXLO_REFUSED_NO_FIELD)
        complaint.message = "there is no such field" + Suggestion(entry.name, FieldNames(form));
    else if (refusal.reason == PEXLO_REFUSED_NO_ITEM)
        complaint.message = MissingItem(form, entries, refusal);
    return complaint;
}

// The message, and what could have been chosen.
std::string CFiller::MissingItem(const pexlo::Form& form, const std::vector<pexlo::Entry>& entries,
                                 const pexlo::Refusal& refusal)
{
    const pexlo::Description description = m_wizard.DescribeFields(form, entries);
    const auto field = std::find_if(description.fields.begin(), description.fields.end(),
                                    [&](const pexlo::Field& f) { return f.info.control == refusal.control; });
    if (field == description.fields.end() || field->info.kind != PEXLO_FIELD_LIST)
        return refusal.message;
    std::string items;
    for (const pexlo::Item& item : field->items)
        items += (items.empty() ? "" : ", ") + Quoted(item.text);
    return "there is no item " + Quoted(entries[static_cast<size_t>(refusal.entry)].text) +
           (items.empty() ? "" : "; there are " + items);
}

const std::vector<std::string>& CFiller::FieldNames(const pexlo::Form& form)
{
    const auto [names, isNew] = m_fieldNames.try_emplace({form.instruction, form.variant});
    if (isNew)
    {
        for (const pexlo::Field& field : m_wizard.DescribeFields(form).fields)
            names->second.push_back(field.name);
    }
    return names->second;
}

SResultLists CFiller::ReadLists() const
{
    SResultLists lists;
    for (const pexlo::Contact& contact : m_wizard.Contacts())
        lists.contacts.push_back({contact.kind, contact.code, contact.number});
    for (const pexlo::Operand& operand : m_wizard.Operands())
        lists.operands.push_back({operand.code, operand.value});
    for (const PexloData& data : m_wizard.DataTable())
        lists.data.push_back({data.code, data.number, data.type, data.format, data.value});
    lists.comments = m_wizard.Comments();
    for (const PexloInstCode& record : m_wizard.InstCodes())
        lists.instructions.push_back({record.kind, record.code, record.value, record.flag1, record.flag2});
    return lists;
}
