// The table of F174 when it is full: pasted, scrolled through, typed into, confirmed. "repaints" counts how often the
// cells are painted for one operation.
#include "afx/DialogRobot.h"
#include "bench/Wizards.h"
#include "dialogs/pulse/Sp0hDlg.h"
#include "resources/resource.h"

#include <benchmark/benchmark.h>

#include <string>

namespace
{

constexpr int kRows = 8000;

int g_paints = 0;
WNDPROC g_cells = nullptr;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_paints += message == WM_PAINT;
    return CallWindowProcA(g_cells, window, message, wParam, lParam);
}

void FillIn(CDialogRobot& dialog)
{
    std::string rows;
    for (int row = 0; row < kRows; ++row)
        rows += std::to_string(1 + row) + "\t-2147483648\r\n";
    dialog.SetText(IDC_CONTACT_NUMBER, "10A");
    dialog.SetText(IDC_SP0H_START, "100");
    dialog.Focus(IDC_GRID_CELLS);
    dialog.Paste(rows.c_str());
}

/// Measures an operation in an opened dialog whose table is full.
template <typename TOperation>
void InFullTable(benchmark::State& state, TOperation operation)
{
    CFunWizard wizard;
    SetUpController(wizard);
    CDialogRobot robot;
    robot.Play([&] { return static_cast<int>(CSp0hDlg(&wizard, nullptr).DoModal()); }, {[&](CDialogRobot& dialog) {
                   FillIn(dialog);
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

void PasteRows(benchmark::State& state)
{
    InFullTable(state, [](CDialogRobot& dialog) { dialog.PressKey('V', {VK_CONTROL}); });
}
BENCHMARK(PasteRows)->Unit(benchmark::kMillisecond);

void InsertAndDeleteRow(benchmark::State& state)
{
    InFullTable(state, [](CDialogRobot& dialog) {
        dialog.PressKey('I', {VK_CONTROL});
        dialog.PressKey('D', {VK_CONTROL});
    });
}
BENCHMARK(InsertAndDeleteRow)->Unit(benchmark::kMillisecond);

void PageThroughRows(benchmark::State& state)
{
    InFullTable(state, [](CDialogRobot& dialog) { dialog.PressKey(VK_NEXT); });
}
BENCHMARK(PageThroughRows)->Unit(benchmark::kMillisecond);

void TypeIntoCell(benchmark::State& state)
{
    InFullTable(state, [](CDialogRobot& dialog) {
        PostMessageA(GetFocus(), WM_CHAR, '7', 1);
        dialog.Pump();
        dialog.PressKey(VK_RETURN);
    });
}
BENCHMARK(TypeIntoCell)->Unit(benchmark::kMillisecond);

/// Opening restores what the OK before stored.
void OpenAndConfirmFullTable(benchmark::State& state)
{
    CFunWizard wizard;
    SetUpController(wizard);
    CDialogRobot robot;
    const auto open = [&] { return static_cast<int>(CSp0hDlg(&wizard, nullptr).DoModal()); };
    robot.Play(open, {[](CDialogRobot& dialog) {
                   FillIn(dialog);
                   dialog.Click(IDOK);
               }});
    for (auto _ : state)
        robot.Play(open, {[](CDialogRobot& dialog) { dialog.Click(IDOK); }});
    if (!robot.Failures().empty())
        state.SkipWithError(robot.Failures().front());
}
BENCHMARK(OpenAndConfirmFullTable)->Unit(benchmark::kMillisecond);

} // namespace
