// Timing on Windows, every comparison within one run and in alternating rounds:
//
//   opening each dialog until it is idle, against the same result made by plain Windows calls, and against its template
//   with no program behind it; generating instructions against appending the same records to a vector that has room for
//   them.
#include "afx/afx.h"
#include "bench/Wizards.h"
#include "bench/win32/PlainDialog.h"
#include "dialogs/posunit/EPointDlg.h"
#include "dialogs/posunit/HomeReturnDlg.h"
#include "dialogs/posunit/JogDlg.h"
#include "dialogs/posunit/PPointDlg.h"
#include "dialogs/posunit/PosCtrlCodeDlg.h"
#include "dialogs/posunit/PulsarDlg.h"
#include "dialogs/process/PidDlg.h"
#include "dialogs/process/ScalDlg.h"
#include "dialogs/process/ScrDispDlg.h"
#include "dialogs/pulse/PlsDlg.h"
#include "dialogs/pulse/PlshDlg.h"
#include "dialogs/pulse/PwmDlg.h"
#include "dialogs/pulse/PwmhDlg.h"
#include "dialogs/pulse/Sp0hDlg.h"
#include "dialogs/pulse/SpchDlg.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "dialogs/pulse/SpdhDlg.h"
#include "dialogs/pulse/SpshDlg.h"
#include "resources/resource.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
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

/// The owner of the dialogs, which every modal loop tells when no message waits. Idle is a dialog that is shown and has
/// the focus, when then nothing waits and nothing is left to paint.
class COwner : public CWnd
{
public:
    COwner() { CreateEx(0, "Static", "Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr); }

    /// Runs `open` until its dialog is idle; then `look` may look at it, and it is cancelled. Returns the time to idle.
    double Time(const std::function<void()>& open, std::function<void(HWND)> look = nullptr)
    {
        m_idleAt = 0;
        m_look = std::move(look);
        const double start = Milliseconds();
        open();
        if (m_idleAt == 0)
            Stop("A dialog could not be opened.");
        return m_idleAt - start;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX && m_idleAt == 0)
            OnIdle(reinterpret_cast<HWND>(lParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    void OnIdle(HWND dialog)
    {
        MSG message;
        if (::IsWindowVisible(dialog) && ::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE) == 0)
        {
            m_idleAt = Milliseconds();
            if (::GetParent(::GetFocus()) != dialog || ::GetUpdateRect(dialog, nullptr, FALSE))
                Stop("A dialog was idle without having the focus or being painted.");
            if (m_look)
                m_look(dialog);
            ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        }
    }

    std::function<void(HWND)> m_look;
    double m_idleAt = 0;
};

struct SOpening
{
    const char* name;
    UINT templateId;
    void (*open)(CFunWizard& wizard, CWnd* owner);
    double limit; ///< against plain calls; 0 where only the template is the measure
};

template <typename TDialog, auto... arguments>
void Open(CFunWizard& wizard, CWnd* owner)
{
    TDialog(&wizard, arguments..., owner).DoModal();
}

constexpr SOpening kOpenings[] = {
    {"F168", IDD_SPD1_TRAPEZOIDAL, Open<CSpd1Dlg, false>, 1.02},
    {"F169", IDD_PLS, Open<CPlsDlg>},
    {"F170", IDD_PWM, Open<CPwmDlg>},
    {"F171", IDD_SPDH_TRAPEZOIDAL, Open<CSpdhDlg, false>},
    {"F172", IDD_PLSH, Open<CPlshDlg>},
    {"F173", IDD_PWMH, Open<CPwmhDlg>},
    {"F174", IDD_SP0H, Open<CSp0hDlg>},
    {"F175", IDD_SPSH, Open<CSpshDlg>},
    {"F176", IDD_SPCH, Open<CSpchDlg>},
    {"control code", IDD_CONTROL_CODE, Open<CPosCtrlCodeDlg>},
    {"E point", IDD_EPOINT, Open<CEPointDlg, kEPointForm>},
    {"P point", IDD_PPOINT, Open<CPPointDlg>},
    {"JOG", IDD_JOG, Open<CJogDlg, false>},
    {"JOG change", IDD_JOG_SPEED_CHANGE, Open<CJogDlg, true>},
    {"home return", IDD_HOME_RETURN, Open<CHomeReturnDlg>},
    {"pulsar", IDD_PULSAR, Open<CPulsarDlg>},
    {"PID", IDD_PID, Open<CPidDlg, 30>},
    {"F282", IDD_SCALING, Open<CScalDlg, nullptr, 0>},
    {"F354", IDD_SCALING, Open<CScalDlg, nullptr, 2>},
    {"screen", IDD_SCREEN, Open<CScrDispDlg, nullptr>},
};

std::string Limit(double ratio, double limit)
{
    if (limit == 0)
        return {};
    char text[40];
    std::snprintf(text, sizeof text, " (limit %.2f%s)", limit, ratio > limit ? ", EXCEEDED" : "");
    return text;
}

void CompareOpening(const SOpening& opening, int rounds, CFunWizard& wizard, COwner& owner)
{
    const CPlainDialog bare(opening.templateId);
    CPlainDialog plain(opening.templateId);
    const std::function<void()> contenders[] = {
        [&] { opening.open(wizard, &owner); },
        [&] { plain.DoModal(owner.m_hWnd); },
        [&] { bare.DoModal(owner.m_hWnd); },
    };
    constexpr size_t kCount = std::size(contenders);
    owner.Time(contenders[0], [&](HWND dialog) { plain.Learn(dialog); });
    owner.Time(contenders[1], [&](HWND dialog) {
        const std::string differences = plain.DifferencesOf(dialog);
        if (!differences.empty())
            Stop(("The plain calls make another dialog:\n" + differences).c_str());
    });

    // Each contender comes first, second and last equally often.
    constexpr int kWarmUp = 21;
    std::vector<double> times[kCount];
    for (int round = -kWarmUp; round < rounds; ++round)
        for (size_t i = 0; i < kCount; ++i)
        {
            const size_t which = (i + static_cast<size_t>(round + kWarmUp)) % kCount;
            const double time = owner.Time(contenders[which]);
            if (round >= 0)
                times[which].push_back(time);
        }
    const double time = Median(times[0]), overPlain = time / Median(times[1]), overBare = time / Median(times[2]);
    constexpr double kBareLimit = 1.15;
    std::printf("opening %-13s %7.3f ms   / plain calls %.3f%s   / template %.3f%s   (median of %d)\n", opening.name,
                time, overPlain, Limit(overPlain, opening.limit).c_str(), overBare, Limit(overBare, kBareLimit).c_str(),
                rounds);
}

void CompareOpenings(int rounds)
{
    COwner owner;
    CFunWizard wizard;
    SetUpController(wizard);
    wizard.CreateDlgFont(&owner);
    for (const SOpening& opening : kOpenings)
        CompareOpening(opening, rounds, wizard, owner);
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
