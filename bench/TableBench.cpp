// Tables that are full: pasted, scrolled through, typed into, confirmed. "repaints" counts how often the cells are
// painted for one operation.
#include "afx/DialogRobot.h"
#include "bench/Wizards.h"
#include "dialogs/process/ScalDlg.h"
#include "dialogs/pulse/Sp0hDlg.h"
#include "resources/resource.h"

#include <benchmark/benchmark.h>

#include <string>

namespace
{

/// A dialog with a table, and what fills it.
struct STable
{
    const char* name;
    int (*open)(CFunWizard* wizard);
    int rows;
    const char* second; ///< of each row, the first being its number
    std::initializer_list<UINT> starts;
};

template <class TDialog, auto... arguments>
int Open(CFunWizard* wizard)
{
    return static_cast<int>(TDialog(wizard, arguments..., nullptr).DoModal());
}

const STable kTables[] = {
    {"F174", Open<CSp0hDlg>, 8000, "-2147483648", {IDC_SP0H_START}},
    {"F282", Open<CScalDlg, nullptr, 0>, 32767, "-32768", {IDC_SCAL_INPUT, IDC_SCAL_OUTPUT, IDC_SCAL_START}},
    {"F354", Open<CScalDlg, nullptr, 2>, 32767, "-1.234567e-20", {IDC_SCAL_INPUT, IDC_SCAL_OUTPUT, IDC_SCAL_START}}};

int g_paints = 0;
WNDPROC g_cells = nullptr;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_paints += message == WM_PAINT;
    return CallWindowProcA(g_cells, window, message, wParam, lParam);
}

void SetUpTable(CFunWizard& wizard, const STable& table)
{
    constexpr short kRegisters = 9;
    SetUpController(wizard);
    if (table.rows > 10000)
        wizard.SetDevRange(-1, kRegisters, 0, 200000);
}

void FillIn(CDialogRobot& dialog, const STable& table)
{
    std::string rows;
    for (int row = 0; row < table.rows; ++row)
        rows.append(std::to_string(1 + row)).append("\t").append(table.second).append("\r\n");
    dialog.SetText(IDC_CONTACT_NUMBER, "10A");
    for (const UINT start : table.starts)
        dialog.SetText(start, "100");
    dialog.Focus(IDC_GRID_CELLS);
    dialog.Paste(rows.c_str());
}

/// Measures an operation in an opened dialog whose table is full.
template <typename TOperation>
void InFullTable(benchmark::State& state, const STable& table, TOperation operation)
{
    CFunWizard wizard;
    SetUpTable(wizard, table);
    CDialogRobot robot;
    robot.Play([&] { return table.open(&wizard); }, {[&](CDialogRobot& dialog) {
                   FillIn(dialog, table);
                   const HWND cells = GetDlgItem(dialog.Dialog()->m_hWnd, IDC_GRID_CELLS);
                   g_cells = reinterpret_cast<WNDPROC>(
                       SetWindowLongPtrA(cells, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountPaints)));
                   g_paints = 0;
                   for (auto _ : state)
                       operation(dialog);
                   state.counters["repaints"] = benchmark::Counter(g_paints, benchmark::Counter::kAvgIterations);
                   SetWindowLongPtrA(cells, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_cells));
                   if (dialog.IsOpen())
                       dialog.Click(IDCANCEL);
               }});
    if (!robot.Failures().empty())
        state.SkipWithError(robot.Failures().front());
}

void PasteRows(benchmark::State& state, const STable& table)
{
    InFullTable(state, table, [](CDialogRobot& dialog) { dialog.PressKey('V', {VK_CONTROL}); });
}

void InsertAndDeleteRow(benchmark::State& state, const STable& table)
{
    InFullTable(state, table, [](CDialogRobot& dialog) {
        dialog.PressKey('D', {VK_CONTROL});
        dialog.PressKey('I', {VK_CONTROL});
    });
}

void PageThroughRows(benchmark::State& state, const STable& table)
{
    InFullTable(state, table, [](CDialogRobot& dialog) { dialog.PressKey(VK_NEXT); });
}

void TypeIntoCell(benchmark::State& state, const STable& table)
{
    InFullTable(state, table, [](CDialogRobot& dialog) {
        PostMessageA(GetFocus(), WM_CHAR, '7', 1);
        dialog.Pump();
        dialog.PressKey(VK_RETURN);
    });
}

/// Opens the full table, which restores what the OK before stored.
template <UINT button>
void OpenFullTable(benchmark::State& state, const STable& table)
{
    CFunWizard wizard;
    SetUpTable(wizard, table);
    CDialogRobot robot;
    const auto open = [&] { return table.open(&wizard); };
    robot.Play(open, {[&](CDialogRobot& dialog) {
                   FillIn(dialog, table);
                   dialog.Click(IDOK);
               }});
    for (auto _ : state)
        robot.Play(open, {[](CDialogRobot& dialog) { dialog.Click(button); }});
    if (!robot.Failures().empty())
        state.SkipWithError(robot.Failures().front());
}

const bool g_registered = [] {
    for (const STable& table : kTables)
        for (const auto& [name, run] :
             std::initializer_list<std::pair<const char*, void (*)(benchmark::State&, const STable&)>>{
                 {"PasteRows", PasteRows},
                 {"InsertAndDeleteRow", InsertAndDeleteRow},
                 {"PageThroughRows", PageThroughRows},
                 {"TypeIntoCell", TypeIntoCell},
                 {"OpenFullTable", OpenFullTable<IDCANCEL>},
                 {"OpenAndConfirmFullTable", OpenFullTable<IDOK>}})
            benchmark::RegisterBenchmark((std::string(name) + "/" + table.name).c_str(), run, table)
                ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
