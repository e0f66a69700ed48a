// The dialogs of F169, F170, F172, F173, F175 and F176, and those of controllers of families B and C, as their tests
// expect them, in each of their forms: in numbers and texts written down here, apart from the ids and tables that the
// dialogs are made of.
#pragma once

#include "dialogs/base/WzdDlgBase.h"
#include "tests/support/Controller.h"
#include "tests/support/Results.h"

#include <memory>
#include <string>
#include <vector>

struct SFormItem
{
    const char* text;
    int code; ///< in its place in the control code
};

struct SFormList
{
    UINT id;
    const char* label;
    int mask; ///< the bits of the control code that it is restored from
    std::vector<SFormItem> items;
    int formItem = -1;                ///< the one item that makes the form, where one does
    std::vector<int> otherCodes = {}; ///< codes of another form that the same positions are restored from
};

enum ENotation
{
    kDecimal,
    kTenths,    ///< "50.0" is stored as 500
    kAnyTenths, ///< the same, and zeros that end the fraction do not count
    kWhole      ///< "50" is stored as 500
};

struct SFormEntry
{
    const char* text;
    int value;
};

struct SFormNumber
{
    UINT id;
    const char* comment;
    const char* unit;  ///< the text behind the edit; null: none
    const char* range; ///< the text behind the unit; null: none
    int limit;
    int offset; ///< from the start of the table, in registers
    UINT message;
    std::vector<SFormEntry> good;     ///< the lowest, the highest, and one in between
    std::vector<const char*> outside; ///< those next to the bounds first
    ENotation notation = kDecimal;
    const char* otherComment = nullptr; ///< with any output but the first, where that changes it
    bool oneRegister = false;           ///< in a table of two for each record
};

enum EOutput
{
    kBuiltInOutput, ///< Y0 and Y1; the operand is the position
    kChannelOutput, ///< the operand is the number of the channel
    kNoOutput       ///< the operand is 0
};

struct SLabelText
{
    UINT id;
    const char* text;
};

struct SPulseForm
{
    const char* name;
    int instruction;
    const char* heading;
    std::unique_ptr<CWzdDlgBase> (*make)(CFunWizard* wizard);
    UINT start;
    UINT startLabel;
    int words;       ///< registers of the table
    int wordsBefore; ///< the same as the dialog comes up, before the form is chosen
    int width;       ///< 1: each record takes two registers
    int codeFlag;    ///< 1: the control code is hexadecimal
    EOutput output;
    UINT outputList;
    const char* outputLabel;
    UINT radio = 0;               ///< the button that makes the form
    int displayType = 0;          ///< of F175
    std::vector<SFormList> lists; ///< in the order of filling and composing
    std::vector<SFormNumber> numbers;
    std::vector<SLabelText> labels; ///< in this form, the first items selected
    int plcType = kPlcFamilyA;
    int variant = 0;     ///< of the instruction, in the selection list
    bool hasCode = true; ///< the table begins with a control code
    int end = 0;         ///< the offset of a 0 that ends the table; 0: none

    /// Whose channels are offered.
    int ChannelInstruction() const { return instruction == 177 ? 171 : instruction; }
    /// How many records the table has before those of the numbers.
    size_t CodeRecords() const { return hasCode ? 1 : 0; }
};

const std::vector<SPulseForm>& PulseForms();
/// The form of that name.
const SPulseForm& PulseForm(const std::string& name);

std::ostream& operator<<(std::ostream& out, const SPulseForm& form);

/// The channels of the controller: their numbers are not their positions.
inline constexpr int kFormChannels[] = {1, 4, 6, 11};

/// What stands in a dialog.
struct SFormEntries
{
    std::vector<size_t> items; ///< positions in the lists; left out: the first ones, or those that make the form
    size_t entry = 2;          ///< which of the good entries stand in the edits
    int output = 0;            ///< position in the list of outputs
    bool onlyDataTable = false;
};

/// The position that the entries select in a list of the form.
size_t SelectedItem(const SPulseForm& form, const SFormEntries& entries, size_t list);
int ControlCode(const SPulseForm& form, const SFormEntries& entries);
/// The lists after the entries were confirmed from contact R10A with the table from DT100, comments included.
SResults FormResults(const SPulseForm& form, const SFormEntries& entries);
/// How a stored value is shown.
std::string ShownNumber(const SFormNumber& number, int value);
