// Timing on Windows, every comparison within one run and in alternating rounds:
//
//   opening each dialog, until it can be typed into, against creating and showing its template with no program behind
//   it; generating instructions against appending the same records to a vector that has room for them.
#include "afx/afx.h"
#include "bench/Wizards.h"
#include "dialogs/posunit/EPointDlg.h"
#include "dialogs/posunit/PosCtrlCodeDlg.h"
#include "dialogs/process/PidDlg.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "dialogs/pulse/SpdhDlg.h"
#include "resources/resource.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{

double Milliseconds()
{
    LARGE_INTEGER count, frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

[[noreturn]] void Stop(const char* what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

// ---- Opening --------------------------------------------------------------------------------------------------------

/// Notices when a dialog has been shown and its message loop takes the next message: a key would be handled now.
class CReadiness
{
public:
    CReadiness()
    {
        s_window = CreateWindowExA(0, "Static", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrA(s_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OnMessage));
    }
    ~CReadiness() { DestroyWindow(s_window); }
    CReadiness(const CReadiness&) = delete;
    CReadiness& operator=(const CReadiness&) = delete;

    static void Expect() { s_readyAt = 0; }

    /// Every message of the dialog; cheap, as it is part of what is measured.
    static void See(HWND dialog, UINT message, LPARAM lParam)
    {
        if (message != WM_WINDOWPOSCHANGED || (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW) == 0)
            return;
        s_dialog = dialog;
        PostMessageA(s_window, kReady, 0, 0);
    }

    static double ReadyAt() { return s_readyAt; }

private:
    static constexpr UINT kReady = WM_APP;

    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message != kReady)
            return DefWindowProcA(window, message, wParam, lParam);
        s_readyAt = Milliseconds();
        if (!IsWindowVisible(s_dialog) || GetParent(GetFocus()) != s_dialog)
            Stop("A dialog was ready without being shown or having the focus.");
        PostMessageA(s_dialog, WM_COMMAND, IDCANCEL, 0);
        return 0;
    }

    static inline HWND s_window = nullptr;
    static inline HWND s_dialog = nullptr;
    static inline double s_readyAt = 0;
};

template <typename TDialog>
class CWatched : public TDialog
{
public:
    using TDialog::TDialog;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        CReadiness::See(this->m_hWnd, message, lParam);
        return TDialog::WindowProc(message, wParam, lParam);
    }
};

struct SOpening
{
    const char* name;
    UINT templateId;
    INT_PTR (*open)(CFunWizard& wizard, CWnd* owner);
};

template <typename TDialog, auto... arguments>
INT_PTR Open(CFunWizard& wizard, CWnd* owner)
{
    return CWatched<TDialog>(&wizard, arguments..., owner).DoModal();
}

constexpr SOpening kOpenings[] = {
    {"F168", IDD_SPD1_TRAPEZOIDAL, Open<CSpd1Dlg, false>},
    {"F171", IDD_SPDH_TRAPEZOIDAL, Open<CSpdhDlg, false>},
    {"control code", IDD_CONTROL_CODE, Open<CPosCtrlCodeDlg>},
    {"E point", IDD_EPOINT, Open<CEPointDlg, kEPointForm>},
    {"PID", IDD_PID, Open<CPidDlg, 30>},
};

double OpenWizard(const SOpening& opening, CFunWizard& wizard, CWnd* owner)
{
    CReadiness::Expect();
    const double start = Milliseconds();
    if (opening.open(wizard, owner) != IDCANCEL)
        Stop("The dialog could not be opened.");
    return CReadiness::ReadyAt() - start;
}

INT_PTR CALLBACK BareProc(HWND dialog, UINT message, WPARAM, LPARAM lParam)
{
    CReadiness::See(dialog, message, lParam);
    return message == WM_INITDIALOG;
}

double OpenBare(const SOpening& opening, CWnd* owner)
{
    const HINSTANCE module = AfxGetInstanceHandle();
    CReadiness::Expect();
    const double start = Milliseconds();
    const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(opening.templateId), MAKEINTRESOURCEA(5));
    const auto* dialogTemplate = static_cast<LPCDLGTEMPLATE>(LockResource(LoadResource(module, found)));
    const HWND dialog = CreateDialogIndirectParamA(module, dialogTemplate, owner->m_hWnd, &BareProc, 0);
    ShowWindow(dialog, SW_SHOWNORMAL);
    UpdateWindow(dialog);
    MSG message;
    while (CReadiness::ReadyAt() == 0 && GetMessageA(&message, nullptr, 0, 0) > 0)
    {
        if (IsDialogMessageA(dialog, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    const double time = CReadiness::ReadyAt() - start;
    DestroyWindow(dialog);
    return time;
}

void CompareOpening(const SOpening& opening, int rounds, CFunWizard& wizard, CWnd* owner)
{
    constexpr int kWarmUp = 20;
    std::vector<double> wizards, bares;
    for (int i = -kWarmUp; i < rounds; ++i)
    {
        const double bareFirst = i % 2 == 0 ? OpenBare(opening, owner) : 0;
        const double time = OpenWizard(opening, wizard, owner);
        const double bare = i % 2 == 0 ? bareFirst : OpenBare(opening, owner);
        if (i < 0)
            continue;
        wizards.push_back(time);
        bares.push_back(bare);
    }
    const double time = Median(wizards);
    const double bare = Median(bares);
    std::printf("opening %-12s  %8.3f ms   bare template  %8.3f ms   ratio %.2f   (median of %d, target 1.30)\n",
                opening.name, time, bare, time / bare, rounds);
}

void CompareOpenings(int rounds)
{
    CWnd owner;
    owner.CreateEx(0, "Static", "Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr);
    const CReadiness readiness;
    CFunWizard wizard;
    SetUpController(wizard);
    wizard.CreateDlgFont(&owner);
    for (const SOpening& opening : kOpenings)
        CompareOpening(opening, rounds, wizard, &owner);
}

// ---- Instructions ---------------------------------------------------------------------------------------------------

void Append(const std::vector<SFWzdInstCode>& records)
{
    std::vector<SFWzdInstCode> copies;
    copies.reserve(records.size());
    for (const SFWzdInstCode& record : records)
        copies.push_back(record);
    if (copies.back().value != records.back().value)
        Stop("The records were not copied.");
}

void CompareInstructions(int dataRecords, int rounds)
{
    CFunWizard wizard;
    FillLists(wizard, dataRecords);
    if (wizard.CreateInstCode() != 1)
        Stop("No instructions were generated.");
    std::vector<SFWzdInstCode> records(static_cast<size_t>(wizard.GetInstCodeCount()));
    for (size_t i = 0; i < records.size(); ++i)
        wizard.GetInstCodeInfo(static_cast<int>(i), &records[i]);

    // Both free what they made the time before.
    const int repeats = std::max(1, 100000 / dataRecords);
    std::vector<double> generating, appending;
    for (int i = 0; i < rounds; ++i)
    {
        double start = Milliseconds();
        for (int j = 0; j < repeats; ++j)
            wizard.CreateInstCode();
        generating.push_back((Milliseconds() - start) / repeats);

        start = Milliseconds();
        for (int j = 0; j < repeats; ++j)
            Append(records);
        appending.push_back((Milliseconds() - start) / repeats);
    }
    const double time = Median(generating);
    const double least = Median(appending);
    std::printf(
        "CreateInstCode        %8.3f ms   vector         %8.3f ms   ratio %.2f   (%d data records, median of %d, "
        "target 3.00)\n",
        time, least, time / least, dataRecords, rounds);
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 300;
    if (rounds < 1)
        Stop("usage: pexlo_timing [rounds]");
    CompareOpenings(rounds);
    for (int count : {100, 1000, 10000, 100000, 1000000})
        CompareInstructions(count, 25);
    return 0;
}
