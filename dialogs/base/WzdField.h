// What a dialog says about one of its fields, and what is done to every field alike.
#pragma once

#include "afx/afx.h"
#include "core/Records.h"

#include <algorithm>
#include <climits>
#include <span>
#include <vector>

class CWzdDlgBase;
class CWzdResults;

/// The numbers that a field accepts, both bounds included.
struct SWzdRange
{
    LONGLONG low;
    LONGLONG high;

    bool Holds(LONGLONG value) const { return value >= low && value <= high; }
};

/// Every value of two registers.
constexpr SWzdRange kAnyDoubleWord = {INT_MIN, INT_MAX};

/// One item of a combo box: its text and the code that it stands for. When an argument is given the text is a format
/// for it ("Y%1d").
struct SWzdChoice
{
    static constexpr int kPlainText = -1;

    UINT text;
    DWORD code;
    int argument = kPlainText;
};

using CWzdChoices = std::span<const SWzdChoice>;

/// A bit field of the control code.
struct SWzdBits
{
    int shift;
    int width;

    DWORD Mask() const { return ((width < 32 ? 1u << width : 0u) - 1u) << shift; }
    DWORD Extract(DWORD word) const { return (word & Mask()) >> shift; }
    DWORD Place(DWORD code) const { return code << shift & Mask(); }
};

/// Where a value stands in the data table: its offset in registers from the table's start, and how many it takes.
struct SWzdEntry
{
    int offset;
    EDataType type;

    int Registers() const { return type == kOneRegister ? 1 : 2; }
};

/// How an entry is written. Without whole digits: a signed decimal number of any length. Else: an unsigned number with
/// at most so many digits before and after the point, its value counted in units of the last decimal.
struct SWzdFormat
{
    int whole = 0;
    int decimals = 0;

    [[nodiscard]] BOOL Parse(LPCSTR text, LONGLONG& value) const;
    /// What Parse reads back, without zeros at the end of a fraction.
    CString Format(LONGLONG value) const;
};

/// The position of a code in a list; -1 when it is not there.
inline int IndexOfCode(CWzdChoices choices, DWORD code)
{
    const auto found =
        std::find_if(choices.begin(), choices.end(), [code](const SWzdChoice& choice) { return choice.code == code; });
    return found != choices.end() ? static_cast<int>(found - choices.begin()) : -1;
}

/// A field as data, for whoever wants to look at a dialog's declaration without running the dialog. Ids that a field
/// does not have are 0.
struct SWzdFieldInfo
{
    UINT combo = 0;
    UINT edit = 0;
    UINT rangeLabel = 0;
    UINT message = 0; // shown when the entry is outside the range
    int limit = 0;    // characters, 0 = none or computed
    SWzdRange range = {0, -1};
    SWzdBits bits = {0, 0};
    std::vector<SWzdChoice> choices;
    LONGLONG offset = -1;   // of its entry in the data table,
    LONGLONG registers = 0; // and what the entry takes
    UINT check = 0;         // to be checked for the entry to count
    SWzdFormat format;
};

/// A field lives for the moment in which its dialog declares it; what it keeps between two such moments it keeps in the
/// controls.
class CWzdField
{
public:
    explicit CWzdField(CWzdDlgBase& dialog) : m_dialog(dialog) {}
    virtual ~CWzdField() = default;

    CWzdField(const CWzdField&) = delete;
    CWzdField& operator=(const CWzdField&) = delete;

    /// Fills the controls and restores them from the wizard's lists. False when a list refused an item.
    [[nodiscard]] virtual bool Open() { return true; }
    /// Brings labels and enabling into line with the other fields.
    virtual void Refresh() {}
    /// The user has clicked "Only a data table is created."; Refresh follows.
    virtual void OnOnlyDataTable() {}
    /// "Clear settings"; Refresh follows.
    virtual void Clear() {}
    /// Checks the entry and adds it to the results. False, with the message shown, when it is refused.
    [[nodiscard]] virtual bool Collect(CWzdResults&) { return true; }

    virtual SWzdFieldInfo Describe() const { return {}; }

protected:
    CWzdDlgBase& m_dialog;
};
