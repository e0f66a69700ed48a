// The C interface as its tests call it.
#pragma once

#include "core/FunWizard.h"
#include "core/pexlo.h"
#include "host/Plc.h"
#include "tests/support/Results.h"

#include <string>
#include <vector>

/// A handle, destroyed with the object.
class CCapiHandle
{
public:
    CCapiHandle() : m_handle(Pexlo_Create()) {}
    ~CCapiHandle() { Pexlo_Destroy(m_handle); }
    CCapiHandle(const CCapiHandle&) = delete;
    CCapiHandle& operator=(const CCapiHandle&) = delete;

    operator PexloHandle() const { return m_handle; }

private:
    PexloHandle m_handle;
};

/// The object behind a handle that is alive and belongs to the thread: to prepare it, and to look where no operation
/// looks.
CFunWizard& WizardOf(PexloHandle handle);

/// A structure with its size set.
template <typename TStructure>
TStructure Sized()
{
    TStructure structure = {};
    structure.size = sizeof structure;
    return structure;
}

template <typename TStructure>
std::vector<TStructure> SizedArray(size_t count)
{
    return std::vector<TStructure>(count, Sized<TStructure>());
}

// ---- Reading --------------------------------------------------------------------------------------------------------

/// Reads all lists through the C interface; comments in the code page of their language.
SResults ReadResults(PexloHandle handle);
/// A comment of any length.
std::string Comment(PexloHandle handle, int index);
std::string CommentUtf8(PexloHandle handle, int index);

/// What belongs to the results beside the lists: flags and the last wizard, and the dialog data.
struct SKeptState
{
    SResults results;
    std::vector<int> numbers;
    const void* dialogData;

    bool operator==(const SKeptState&) const = default;
};
SKeptState StateOf(PexloHandle handle);
std::ostream& operator<<(std::ostream& out, const SKeptState& state);

// ---- Filling --------------------------------------------------------------------------------------------------------

/// What is entered, by name or, with a number in place of it, by control id.
struct STextEntry
{
    std::string name;
    std::string text;
    int control = 0;

    STextEntry(std::string name_, std::string text_) : name(std::move(name_)), text(std::move(text_)) {}
    STextEntry(int control_, std::string text_) : text(std::move(text_)), control(control_) {}
};
using CTextEntries = std::vector<STextEntry>;
std::ostream& operator<<(std::ostream& out, const STextEntry& entry);

/// As they are passed; good as long as `entries` is.
std::vector<PexloEntry> Passed(const CTextEntries& entries);

PexloForm FormOf(int instruction, int variant = 0);

struct SOutcome
{
    int result;
    PexloRefusal refusal;
};
std::ostream& operator<<(std::ostream& out, const SOutcome& outcome);

SOutcome Fill(PexloHandle handle, PexloForm& form, const CTextEntries& entries);
SOutcome Check(PexloHandle handle, const PexloForm& form, const CTextEntries& entries);

/// What Pexlo_DescribeFields tells, and `refusal` of it.
struct SDescribed
{
    int result;
    std::vector<PexloField> fields;
    PexloRefusal refusal;

    /// Throws std::out_of_range when there is none.
    const PexloField& Field(const std::string& name) const;
};
SDescribed Describe(PexloHandle handle, const PexloForm& form, const CTextEntries& entries = {});
/// Of the field at an index of what was described last: all of its text, and its items.
std::string FieldText(PexloHandle handle, int field);
std::vector<PexloItem> FieldItems(PexloHandle handle, int field);

// ---- Every dialog ---------------------------------------------------------------------------------------------------

/// A form with the PLC and the setting that lead to a dialog of its own.
struct SFormRow
{
    const char* name;
    const char* plc; ///< a preset
    int instruction;
    int variant = 0;
    int display175 = 0;
    int startType = 2;
};
std::ostream& operator<<(std::ostream& out, const SFormRow& row);
const std::vector<SFormRow>& FormRows();
/// Tells the handle about the PLC of the row, in a language (-1: the library's own texts).
void Prepare(PexloHandle handle, const SFormRow& row, int language = 0);
inline PexloForm FormOf(const SFormRow& row) { return FormOf(row.instruction, row.variant); }

/// Entries that the dialog accepts, found by nothing but what it tells of its fields: the lowest or the highest text of
/// each range. Some fields are known by name.
CTextEntries AcceptedEntries(PexloHandle handle, const PexloForm& form, bool highest = false);
