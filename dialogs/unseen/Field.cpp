#include "dialogs/unseen/Field.h"

#include "afx/CodePage.h"
#include "core/Devices.h"
#include "core/Values.h"
#include "dialogs/grid/GridView.h"
#include "dialogs/unseen/FieldNames.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace
{

std::optional<EFieldKind> KindOf(const CWzdDialog& dialog, HWND control)
{
    const auto id = static_cast<UINT>(::GetDlgCtrlID(control));
    if (id == IDC_GRID_CELLS)
        return kTableField;
    char name[16] = "";
    ::GetClassNameA(control, name, sizeof name);
    const auto style = static_cast<DWORD>(::GetWindowLongW(control, GWL_STYLE));
    if (std::strcmp(name, "Edit") == 0)
        return (style & ES_READONLY) == 0 ? std::optional(kEditField) : std::nullopt;
    if (std::strcmp(name, "ComboBox") == 0)
        return kListField;
    if (std::strcmp(name, "Button") != 0)
        return std::nullopt;
    switch (style & BS_TYPEMASK)
    {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
        return kCheckField;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return kRadioField;
    default:
        return dialog.IsPressed(id) ? std::optional(kCheckField) : std::nullopt;
    }
}

CString Narrowed(const CWideBuffer& text, int length) { return AfxNarrow(text.Get(), length, CP_UTF8); }

CString WindowText(HWND window)
{
    const int size = ::GetWindowTextLengthW(window) + 1;
    const CWideBuffer text(size);
    return Narrowed(text, ::GetWindowTextW(window, text.Get(), size));
}

/// Without the marks of accelerators, and in one line.
CString LabelText(HWND window)
{
    const CString text = WindowText(window);
    CString label;
    for (LPCSTR at = text; *at != '\0'; ++at)
    {
        if (*at == '&' && at[1] != '\0')
            ++at;
        label += *at == '\n' || *at == '\r' ? ' ' : *at;
    }
    label.TrimLeft();
    label.TrimRight();
    return label;
}

bool IsDeviceName(LPCSTR text)
{
    for (int index = 0; const SDeviceKind* device = DeviceAt(index); ++index)
        if (FormatDeviceName(device->code) == text)
            return true;
    return false;
}

/// What names a field: a text before it, or the check box that says whether it counts. The name of a device, which the
/// number behind it is of, names none.
bool IsLabel(HWND window)
{
    char name[16] = "";
    ::GetClassNameA(window, name, sizeof name);
    if (std::strcmp(name, "Static") != 0 && std::strcmp(name, "Button") != 0)
        return false;
    const auto style = static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE));
    if (std::strcmp(name, "Button") == 0 && (style & BS_TYPEMASK) == BS_GROUPBOX)
        return false;
    const CString text = LabelText(window);
    return !text.IsEmpty() && !IsDeviceName(text);
}

bool IsShown(HWND window) { return (::GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0; }

bool IsBesides(HWND one, HWND other)
{
    CRect a, b;
    ::GetWindowRect(one, a);
    ::GetWindowRect(other, b);
    return a.top < b.bottom && b.top < a.bottom;
}

/// The label of a control in the same row or, where there is none, the first one of the nearest row above.
HWND LabelOf(HWND control)
{
    HWND above = nullptr;
    for (HWND before = ::GetWindow(control, GW_HWNDPREV); before != nullptr; before = ::GetWindow(before, GW_HWNDPREV))
    {
        if (!IsLabel(before) || IsShown(before) != IsShown(control))
            continue;
        if (IsBesides(before, control))
            return before;
        if (above != nullptr && !IsBesides(before, above))
            break;
        above = before;
    }
    return above;
}

std::optional<bool> SwitchOf(std::string_view text)
{
    for (const std::string_view on : {"1", "on", "true"})
        if (text == on)
            return true;
    for (const std::string_view off : {"0", "off", "false"})
        if (text == off)
            return false;
    return std::nullopt;
}

/// The code behind "#"; nothing when it is no number of 32 bits.
std::optional<DWORD> CodeOf(LPCSTR text)
{
    if (*text != '#' || !std::strchr("0123456789", text[1]) || text[1] == '\0')
        return std::nullopt;
    const bool hexadecimal = text[1] == '0' && (text[2] == 'x' || text[2] == 'X');
    char* end = nullptr;
    const unsigned long long code = std::strtoull(text + 1, &end, hexadecimal ? 16 : 10);
    const bool isWhole = *end == '\0' && code <= 0xFFFFFFFFu;
    return isWhole ? std::optional(static_cast<DWORD>(code)) : std::nullopt;
}

/// Rows as the table takes them, in the code page of its texts. False when the table has no room for all of them or no
/// characters for a text; the outcome tells where.
bool MakeRows(LPCSTR text, const CGridView& table, CGridModel& rows, SEntryOutcome& outcome)
{
    const CWideText wide(text, -1, CP_UTF8);
    rows.SetMostRows(table.Model().MostRows());
    const CString narrow = AfxNarrow(wide, wide.GetLength());
    const CWideText kept(narrow);
    outcome.problem = kCannotBeTyped;
    if (kept.GetLength() != wide.GetLength() || std::memcmp(static_cast<LPCWSTR>(kept), static_cast<LPCWSTR>(wide),
                                                            static_cast<size_t>(wide.GetLength()) * sizeof(WCHAR)) != 0)
        return false;
    const SGridLoss loss = rows.Paste(narrow);
    if (loss.rows > 0 || loss.columns > 0)
    {
        outcome.row = loss.rows > 0 ? rows.MostRows() + 1 : 0;
        outcome.column = loss.rows > 0 ? 0 : rows.Columns() + 1;
        return false;
    }
    for (int row = 0; row < rows.UsedRows(); ++row)
        for (int column = 0; column < rows.Columns(); ++column)
        {
            const int limit = table.TextLimit(column);
            if (limit > 0 && CWideText(rows.Text({row, column})).GetLength() > limit)
            {
                outcome.row = row + 1;
                outcome.column = column + 1;
                return false;
            }
        }
    outcome.problem = kEntered;
    return true;
}

} // namespace

CField::CField(CWzdDialog& dialog, HWND control, EFieldKind kind)
    : m_dialog(&dialog), m_control(control), m_kind(kind), m_id(static_cast<UINT>(::GetDlgCtrlID(control)))
{
}

std::optional<CField> CField::Of(CWzdDialog& dialog, HWND control)
{
    const CGridView* const table = dialog.Table();
    const auto id = static_cast<UINT>(::GetDlgCtrlID(control));
    if (table != nullptr && id == table->Controls().editor)
        return std::nullopt;
    const auto kind = KindOf(dialog, control);
    return kind ? std::optional(CField(dialog, control, *kind)) : std::nullopt;
}

std::vector<CField> CField::AllOf(CWzdDialog& dialog)
{
    std::vector<CField> fields;
    for (HWND control = ::GetWindow(dialog.m_hWnd, GW_CHILD); control != nullptr;
         control = ::GetWindow(control, GW_HWNDNEXT))
        if (const auto field = Of(dialog, control))
            fields.push_back(*field);
    return fields;
}

LRESULT CField::Ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageW(m_control, message, wParam, lParam);
}

void CField::Notify(int code) const
{
    ::SendMessageW(m_dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(m_id, code), reinterpret_cast<LPARAM>(m_control));
}

// ---- What there is --------------------------------------------------------------------------------------------------

std::string_view CField::Name() const { return FieldName(m_dialog->TemplateId(), m_id); }

CString CField::Label() const
{
    if (m_kind == kCheckField || m_kind == kRadioField)
        return LabelText(m_control);
    if (m_kind == kTableField)
    {
        CString headings;
        for (int column = 0; column < ItemCount(); ++column)
            headings += (column > 0 ? ", " : "") + ItemText(column);
        return headings;
    }
    const HWND label = LabelOf(m_control);
    return label != nullptr ? LabelText(label) : CString();
}

bool CField::IsEnabled() const
{
    const auto style = static_cast<DWORD>(::GetWindowLongW(m_control, GWL_STYLE));
    return (style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

CString CField::Text() const
{
    switch (m_kind)
    {
    case kListField:
        return Selected() >= 0 ? ItemText(Selected()) : CString();
    case kTableField: {
        const CWideText rows(Selected() > 0 ? m_dialog->Table()->Model().CopyAll() : CString());
        return AfxNarrow(rows, rows.GetLength(), CP_UTF8);
    }
    case kEditField:
        return WindowText(m_control);
    default:
        return IsOn() ? "1" : "0";
    }
}

int CField::ItemCount() const
{
    if (m_kind == kTableField)
        return m_dialog->Table()->Model().Columns();
    return m_kind == kListField ? static_cast<int>(Ask(CB_GETCOUNT)) : 0;
}

CString CField::ItemText(int item) const
{
    const auto index = static_cast<WPARAM>(item);
    if (m_kind == kTableField)
    {
        const CWnd* const heading = m_dialog->GetDlgItem(m_dialog->Table()->Controls().headings[index]);
        return heading != nullptr ? LabelText(heading->m_hWnd) : CString();
    }
    const int length = static_cast<int>(Ask(CB_GETLBTEXTLEN, index));
    const CWideBuffer text(std::max(length, 0) + 1);
    return length < 0
               ? CString()
               : Narrowed(text, static_cast<int>(Ask(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.Get()))));
}

DWORD CField::ItemCode(int item) const
{
    if (m_kind != kListField)
        return 0;
    constexpr WORD kNoKind = 0xFFFF; // before the code of a device
    const auto data = static_cast<DWORD>(Ask(CB_GETITEMDATA, static_cast<WPARAM>(item)));
    return HIWORD(data) == kNoKind ? LOWORD(data) : data;
}

bool CField::IsOn() const { return m_dialog->IsPressed(m_id).value_or(false) || Ask(BM_GETCHECK) == BST_CHECKED; }

int CField::Selected() const
{
    if (m_kind == kTableField)
    {
        const CGridModel& rows = m_dialog->Table()->Model();
        const CString cells = rows.CopyAll();
        const bool isEmpty = std::strspn(cells, "\t\r\n") == static_cast<size_t>(cells.GetLength());
        return isEmpty ? 0 : rows.UsedRows();
    }
    if (m_kind == kListField)
        return static_cast<int>(Ask(CB_GETCURSEL));
    return (m_kind == kCheckField || m_kind == kRadioField) && IsOn() ? 1 : 0;
}

int CField::LimitOfText() const
{
    constexpr int kNoLimit = 30000; // the system's own is no limit for entries
    if (m_kind != kEditField)
        return 0;
    const LRESULT limit = Ask(EM_GETLIMITTEXT);
    return limit < kNoLimit ? static_cast<int>(limit) : 0;
}

bool CField::TakesDigitsOnly() const
{
    return m_kind == kEditField && (::GetWindowLongW(m_control, GWL_STYLE) & ES_NUMBER) != 0;
}

int CField::MostRows() const { return m_kind == kTableField ? m_dialog->Table()->Model().MostRows() : 0; }

// ---- Entries --------------------------------------------------------------------------------------------------------

SEntryOutcome CField::Enter(LPCSTR text)
{
    if (!IsEnabled())
        return {kNotEnabled};
    switch (m_kind)
    {
    case kEditField:
        return EnterText(text);
    case kListField:
        return EnterItem(text);
    case kTableField:
        return EnterTable(text);
    default:
        return EnterSwitch(text);
    }
}

bool CField::Holds(LPCSTR text) const
{
    if (m_kind == kEditField)
        return Text() == text;
    if (m_kind == kListField)
        return Selected() >= 0 && FindItem(text) == Selected();
    if (m_kind != kTableField)
        return SwitchOf(text) == IsOn();
    SEntryOutcome outcome;
    const CGridView& table = *m_dialog->Table();
    const CGridModel& cells = table.Model();
    CGridModel rows(cells.Columns());
    // Rows behind the number of them that is entered elsewhere are there, but do not count.
    return MakeRows(text, table, rows, outcome) && rows.CopyAll() == cells.CopyAll() &&
           cells.IsWanted(cells.UsedRows() - 1);
}

SEntryOutcome CField::EnterText(LPCSTR text)
{
    const CWideText wide(text, -1, CP_UTF8);
    const int limit = LimitOfText();
    const LPCWSTR first = wide;
    const bool fits = limit == 0 || wide.GetLength() <= limit;
    const bool isUtf8 = AfxNarrow(wide, wide.GetLength(), CP_UTF8) == text;
    const bool isTyped = std::all_of(first, first + wide.GetLength(),
                                     [this](WCHAR c) { return TakesDigitsOnly() ? c >= '0' && c <= '9' : c >= ' '; });
    if (!fits || !isUtf8 || !isTyped)
        return {kCannotBeTyped};
    ::SetWindowTextW(m_control, wide);
    Notify(EN_KILLFOCUS);
    return {};
}

int CField::FindItem(LPCSTR text) const
{
    const int count = ItemCount();
    for (int item = 0; item < count; ++item)
        if (ItemText(item) == text)
            return item;
    if (const auto code = CodeOf(text))
        for (int item = 0; item < count; ++item)
            if (ItemCode(item) == *code)
                return item;
    return -1;
}

SEntryOutcome CField::EnterItem(LPCSTR text)
{
    const int item = FindItem(text);
    if (item < 0)
        return {kNoItem};
    Ask(CB_SETCURSEL, static_cast<WPARAM>(item));
    Notify(CBN_SELCHANGE);
    return {};
}

// A radio button that is switched on switches off the others of its group; by itself it cannot be switched off.
void CField::SwitchOn(bool on) const
{
    Ask(BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED);
    if (m_kind != kRadioField)
        return;
    const auto beginsGroup = [](HWND control) { return (::GetWindowLongW(control, GWL_STYLE) & WS_GROUP) != 0; };
    HWND first = m_control;
    while (!beginsGroup(first) && ::GetWindow(first, GW_HWNDPREV) != nullptr)
        first = ::GetWindow(first, GW_HWNDPREV);
    for (HWND one = first; one != nullptr && (one == first || !beginsGroup(one)); one = ::GetWindow(one, GW_HWNDNEXT))
        if (one != m_control && KindOf(*m_dialog, one) == kRadioField)
            ::SendMessageW(one, BM_SETCHECK, BST_UNCHECKED, 0);
}

SEntryOutcome CField::EnterSwitch(LPCSTR text)
{
    const auto on = SwitchOf(text);
    if (!on || (m_kind == kRadioField && !*on && IsOn()))
        return {kNoItem};
    if (*on == IsOn())
        return {};
    if (!m_dialog->IsPressed(m_id)) // such a button does it itself when it is clicked
        SwitchOn(*on);
    Notify(BN_CLICKED);
    return {};
}

SEntryOutcome CField::EnterTable(LPCSTR text)
{
    SEntryOutcome outcome;
    CGridView& table = *m_dialog->Table();
    CGridModel rows(table.Model().Columns());
    if (!MakeRows(text, table, rows, outcome))
        return outcome;
    table.Clear();
    table.Model().GoTo({});
    table.Model().Paste(rows.CopyAll());
    table.ShowCells();
    table.Commit();
    return {};
}
