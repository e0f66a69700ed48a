// Dialogs of F168 on the offscreen desktop: opened and left, confirmed, refused.
#include "afx/DialogRobot.h"
#include "bench/Wizards.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "resources/resource.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace
{

using Clock = std::chrono::steady_clock;

void FillIn(CDialogRobot& dialog)
{
    dialog.SetText(IDC_CONTACT_NUMBER, "10A");
    dialog.SetText(IDC_SPD1_START, "100");
    dialog.SetText(IDC_SPD1_INITIAL, "500");
    dialog.SetText(IDC_SPD1_MAXIMUM, "5000");
    dialog.SetText(IDC_SPD1_TIME, "300");
    dialog.SetText(IDC_SPD1_TARGET, "100000");
}

int RunDialog(CFunWizard& wizard) { return static_cast<int>(CSpd1Dlg(&wizard, false, nullptr).DoModal()); }

/// The robot's complaints end the measurement.
void Check(benchmark::State& state, const CDialogRobot& robot)
{
    if (!robot.Failures().empty())
        state.SkipWithError(robot.Failures().front());
}

void OpenAndLeave(benchmark::State& state)
{
    CFunWizard wizard;
    SetUpController(wizard);
    wizard.CreateDlgFont(nullptr);
    CDialogRobot robot;
    for (auto _ : state)
        robot.Play([&] { return RunDialog(wizard); }, {[](CDialogRobot& dialog) { dialog.Click(IDCANCEL); }});
    state.SetItemsProcessed(state.iterations());
    Check(state, robot);
}
BENCHMARK(OpenAndLeave);

void OpenAndConfirm(benchmark::State& state)
{
    CFunWizard wizard;
    SetUpController(wizard);
    wizard.CreateDlgFont(nullptr);
    CDialogRobot robot;
    robot.Play([&] { return RunDialog(wizard); }, {[](CDialogRobot& dialog) {
                   FillIn(dialog);
                   dialog.Click(IDOK);
               }});
    for (auto _ : state) // each restores the one before
        robot.Play([&] { return RunDialog(wizard); }, {[](CDialogRobot& dialog) { dialog.Click(IDOK); }});
    state.SetItemsProcessed(state.iterations());
    Check(state, robot);
}
BENCHMARK(OpenAndConfirm);

/// From the host's call through the selection to the confirmed dialog.
void WholeWizard(benchmark::State& state)
{
    CFunWizard wizard;
    SetUpController(wizard);
    CDialogRobot robot;
    for (auto _ : state)
    {
        robot.Play([&] { return wizard.DoOpenPosDlg(0, 1, nullptr); },
                   {[](CDialogRobot& selection) { selection.Click(IDOK); },
                    [](CDialogRobot& dialog) {
                        FillIn(dialog);
                        dialog.Click(IDOK);
                    }});
    }
    state.SetItemsProcessed(state.iterations());
    Check(state, robot);
}
BENCHMARK(WholeWizard);

/// OK alone, from the click to the end of the checks and the stored lists.
void ConfirmAlone(benchmark::State& state)
{
    CFunWizard wizard;
    SetUpController(wizard);
    CDialogRobot robot;
    double seconds = 0;
    const auto confirm = [&](CDialogRobot& dialog) {
        FillIn(dialog);
        const Clock::time_point start = Clock::now();
        dialog.Click(IDOK);
        seconds = std::chrono::duration<double>(Clock::now() - start).count();
    };
    for (auto _ : state)
    {
        robot.Play([&] { return RunDialog(wizard); }, {confirm});
        state.SetIterationTime(seconds);
    }
    Check(state, robot);
}
BENCHMARK(ConfirmAlone)->UseManualTime();

/// A refusal with its message box, in a dialog that stays open.
void Refuse(benchmark::State& state)
{
    CFunWizard wizard;
    SetUpController(wizard);
    CDialogRobot robot;
    robot.Play([&] { return RunDialog(wizard); }, {[&](CDialogRobot& dialog) {
                   for (auto _ : state)
                   {
                       if (dialog.ClickAndAnswer(IDOK).IsEmpty())
                           state.SkipWithError("the empty dialog was accepted");
                   }
                   dialog.Click(IDCANCEL);
               }});
    Check(state, robot);
}
BENCHMARK(Refuse);

} // namespace
