// What a dialog says about one of its fields.
#pragma once

#include "core/Records.h"
#include "dialogs/base/WzdFormat.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <span>

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

/// The position of a code in a list; -1 when it is not there.
inline int IndexOfCode(CWzdChoices choices, DWORD code)
{
    const auto found =
        std::find_if(choices.begin(), choices.end(), [code](const SWzdChoice& choice) { return choice.code == code; });
    return found != choices.end() ? static_cast<int>(found - choices.begin()) : -1;
}

/// A bit field of the control code.
struct SWzdBits
{
    int shift;
    int width;

    constexpr DWORD Mask() const { return ((width < 32 ? 1u << width : 0u) - 1u) << shift; }
    constexpr DWORD Extract(DWORD word) const { return (word & Mask()) >> shift; }
    constexpr DWORD Place(DWORD code) const { return code << shift & Mask(); }
};

/// A control code of one register that is a single field.
constexpr SWzdBits kWholeWord = {0, 16};

/// What a list without a selection does to the control code: no field that is declared after it counts, or the others
/// stay as they are.
enum EUnselected
{
    kEndsTheCode,
    kCountsAsZero
};

/// Where values stand in the data table: the offset of the first in registers from the table's start, how many
/// registers each takes, and their number.
struct SWzdEntry
{
    LONGLONG offset = 0;
    EDataType type = kOneRegister;
    LONGLONG count = 1;

    LONGLONG Registers() const { return count * (type == kOneRegister ? 1 : 2); }
    LONGLONG End() const { return offset + Registers(); }
};

/// The comment of an entry: a text of its own, or those of one or two labels, joined by a blank. When nothing is named
/// it is the text of the control before the combo or edit.
struct SWzdComment
{
    UINT label = 0;
    UINT secondLabel = 0;
    UINT text = 0;
};

/// What becomes of a device while "Only a data table is created." is checked.
enum EWithoutInstruction
{
    kStillChecked,
    kLeftOut,  ///< disabled and not checked: no contact is stored, and an operand that is none
    kBestKnown ///< a contact, stored unchecked: the entry when it can be used, else the lowest number of the device
};

/// When the wizard's comment flag is set: the lists may not all be written for want of memory.
enum ECommentFlag
{
    kBeforeTheLists,
    kBehindTheLists
};

/// The devices that a list offers, of those that the PLC has.
enum EListedDevices
{
    kListBits,  ///< those that a contact can be on
    kListWords, ///< those that hold a value
    kListAll
};

/// A constant that a list offers beside the devices.
struct SWzdConstant
{
    short code;
    SWzdFormat format;
    SWzdRange range;
    UINT rangeText = 0; ///< shown in place of the range
};

using CWzdConstants = std::span<const SWzdConstant>;

/// A row of a dialog's declaration. The dialog names the members that its kind of row reads, and leaves out the others;
/// the row is what the field works with, and what it tells about itself. Ids of controls that a field does not have are
/// 0.
struct SWzdRow
{
    UINT combo = 0;
    UINT edit = 0;

    // The items of a list: each stands for a code.
    CWzdChoices choices = {};
    /// Further codes for the positions of the list, those under which another form of the dialog stores the same
    /// choice.
    CWzdChoices alsoRestores = {};
    SWzdBits bits = {0, 0}; ///< of the control code
    EUnselected unselected = kEndsTheCode;
    /// The controls whose change lists the items anew and selects the first.
    std::span<const UINT> refilledBy = {};

    // A device and its number.
    EListedDevices devices = kListBits;
    /// Permitted devices, as hosts give them; null permits all.
    const ULONGLONG* permitted = nullptr;
    CWzdConstants constants = {};
    short preferred = -1; ///< selected as long as nothing is stored; the first one when it is not listed
    int position = 0;     ///< in the wizard's list of contacts or operands
    EWithoutInstruction withoutInstruction = kStillChecked;
    int less = 0;      ///< by how much the highest number accepted is below that of the device
    int shownLess = 0; ///< by how much the highest number shown is below the one accepted

    // A number.
    SWzdEntry entry = {0, kOneRegister, 0}; ///< without registers: none
    SWzdFormat format = kSigned;
    int limit = 0; ///< characters that can be typed; 0 = any number, or computed
    bool digitsOnly = false;
    SWzdRange range = {0, -1};
    UINT follows = 0;                    ///< an edit on whose text the range depends
    UINT message = 0;                    ///< when the entry is outside the range
    UINT rangeLabel = 0;                 ///< shows the range, when it is not fixed
    std::optional<SWzdRange> shown = {}; ///< when another range is shown than the one that counts
    SWzdComment comment = {};

    // An entry that can be left out.
    UINT check = 0;      ///< to be checked for the entry to count
    LPCSTR initial = ""; ///< shown until there is a stored value
    bool used = false;   ///< checked as long as nothing is stored at all
};
