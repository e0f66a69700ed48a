// The operations of the positioning unit behind E point control as their tests expect them: P point control (passing
// point), JOG operation in both forms, home position return and pulsar input. In numbers and texts written down here,
// apart from the ids and rows that the dialogs are made of.
#pragma once

#include "dialogs/base/WzdDlgBase.h"
#include "tests/resources/ExpectedControl.h"
#include "tests/support/Results.h"

#include <memory>
#include <string>
#include <vector>

/// A list of the control code. Its items are those of the field that begins at the bit.
struct SUnitList
{
    UINT id;
    int shift;
    bool ends = false; ///< without a selection the word ends there, not only its own bits are left out
};

struct SUnitNumber
{
    UINT id;
    long long low;
    long long high;
    UINT message;
    int limit;
    int offset; ///< from the start of the table, in registers
    const char* comment;
    bool ownComment = false; ///< which is not the text of its label
    const char* usual = "300";
};

struct SUnitForm
{
    const char* name;
    int variant;
    UINT templateId;
    const char* title;
    std::unique_ptr<CWzdDlgBase> (*make)(CFunWizard* wizard);
    SExpectedTemplate (*controls)();
    UINT slot;
    UINT axis;
    UINT start;
    UINT startRange;
    int registers;                    ///< of the table
    int words;                        ///< of it that go to the unit
    std::vector<int> areas;           ///< where they go, for each axis
    std::vector<SUnitList> lists;     ///< in the order of composing
    std::vector<SUnitNumber> numbers; ///< in the order of checking and of their records
    UINT changeDevice = 0;            ///< of the speed change condition, checked after the numbers
    UINT changeNumber = 0;
    UINT changeRange = 0;
    std::vector<int> startBits = {}; ///< one for each direction; none: it has no start output
    int startType0Hides = 12;        ///< the controls of the group of the start output
    int frameShare = 4;              ///< with start type 1 the frame ends this part of the height of 2059 below its top

    bool HasCode() const { return !lists.empty(); }
    bool HasStartOutput() const { return !startBits.empty(); }
    bool HasDirection() const { return startBits.size() > 1; }
};

const std::vector<SUnitForm>& UnitForms();
/// The form of that name.
const SUnitForm& UnitForm(const std::string& name);
std::ostream& operator<<(std::ostream& out, const SUnitForm& form);

/// What stands in the dialog. The defaults are accepted, whether a start output is wanted or not.
struct SUnitEntries
{
    explicit SUnitEntries(const SUnitForm& form);

    int device = 1; // R
    std::string contact = "10A";
    std::string slot = "1";
    std::string axis = "2";
    std::string start = "100";
    std::vector<int> items; ///< positions in the lists; -1: nothing is selected
    std::vector<std::string> numbers;
    int changeDevice = 0; // L
    std::string change = "5";
    bool startOutput = false;
    bool same = false;
    int secondDevice = 2; // Y
    std::string second = "1F";
    int direction = 0;
    std::string word = "40";
};

/// The last item of every list.
std::vector<int> LastItems(const SUnitForm& form);
/// The bits of the control code that the form sets.
DWORD CodeMask(const SUnitForm& form);

/// The edits in the order of their checks, with the messages of their ranges; those of the start output last.
std::vector<std::pair<UINT, UINT>> CheckedEdits(const SUnitForm& form, bool startOutput);
std::string& EntryOf(SUnitEntries& entries, const SUnitForm& form, UINT edit);
bool IsContactEdit(const SUnitForm& form, UINT edit);

/// Either the message that OK shows and the edit that it points at, or the results.
struct SUnitOutcome
{
    unsigned message = 0; // 0: accepted
    unsigned edit = 0;
    SResults results;
};
SUnitOutcome UnitOutcome(const SUnitForm& form, const SUnitEntries& entries, const CFunWizard& wizard);

/// What the form shows of the lists when it comes up, whatever left them; 2059 with start type 2 alone.
SUnitEntries UnitShown(const SUnitForm& form, const SResults& stored, bool choosesOutput);
