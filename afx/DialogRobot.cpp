// The play: what comes up, who plays in it, and how it is closed.
#include "afx/DialogRobotWindows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace robot;

namespace
{
// The last of the messages that are left to applications. Pump() steps around it.
constexpr UINT kStep = 0xBFFF;

// A program may run message loops of its own before it opens a dialog: the robot accompanies that many messages.
constexpr int kMaxIdleSteps = 100000;
constexpr int kMaxPumped = 100000;
// Past the first number of dismissed windows the robot varies its answers, past the second it stops the program.
constexpr int kPatience = 100;
constexpr int kMaxDismissals = 10000;

bool Contains(const std::vector<HWND>& windows, HWND window)
{
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

void ClickIfEnabled(HWND dialog, UINT id)
{
    HWND button = GetDlgItem(dialog, static_cast<int>(id));
    if (button != nullptr && IsWindowEnabled(button))
        ClickButton(button);
}

void EndByForce(HWND window)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object != nullptr && object->IsKindOf(RUNTIME_CLASS(CDialog)))
        static_cast<CDialog*>(object)->EndDialog(IDCANCEL);
    else
        EndDialog(window, IDCANCEL);
}
} // namespace

CDialogRobot::~CDialogRobot()
{
    if (m_stepWindow != nullptr)
        DestroyWindow(m_stepWindow);
}

void CDialogRobot::Fail(const CString& what)
{
    const CInside inside(true);
    const HWND window = Current();
    m_failures.push_back(window == nullptr ? what : Format("In the %s: %s", Describe(window), what));
}

bool CDialogRobot::IsInside() { return CInside::Get(); }

std::vector<CString> CDialogRobot::OpenWindows()
{
    std::vector<CString> windows;
    for (HWND window : TopLevelWindows())
    {
        if (IsDialog(window))
            windows.push_back(Describe(window));
        else if (CWnd::FromHandlePermanent(window) != nullptr || IsWindowVisible(window))
            windows.push_back(Format("window \"%s\" of class %s", WindowText(window), ClassName(window)));
    }
    return windows;
}

// ---- The play -------------------------------------------------------------------------------------------------------

int CDialogRobot::PlayScenes(const std::function<int()>& open, const std::vector<Scene>& scenes)
{
    const CInside inside(true);
    m_scenes = &scenes;
    m_nextScene = 0;
    m_abandoned = false;
    m_dismissals = 0;
    m_idleSteps = 0;
    m_boxes.clear();
    m_finished = TopLevelWindows();

    m_stepWindow = CreateWindowExA(0, "Static", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(m_stepWindow, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrA(m_stepWindow, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(StepWindowProc));

    Arm();
    const int result = Outside(open);

    DestroyWindow(m_stepWindow);
    m_stepWindow = nullptr;
    m_armed = false;
    m_scenes = nullptr;

    if (!m_abandoned && m_nextScene < scenes.size())
    {
        Fail(Format("%d of %d scenes were played: no more dialogs came up.", static_cast<int>(m_nextScene),
                    static_cast<int>(scenes.size())));
    }
    return result;
}

LRESULT CALLBACK CDialogRobot::StepWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kStep)
        return DefWindowProcA(window, message, wParam, lParam);
    reinterpret_cast<CDialogRobot*>(GetWindowLongPtrA(window, GWLP_USERDATA))->OnStep();
    return 0;
}

// While a play lasts a step always waits in the queue, so that no modal loop can come up unattended.
void CDialogRobot::Arm()
{
    if (!m_armed && m_stepWindow != nullptr)
        m_armed = PostMessageA(m_stepWindow, kStep, 0, 0) != FALSE;
}

void CDialogRobot::OnStep()
{
    const CInside inside(true);
    m_armed = false;
    m_finished.erase(std::remove_if(m_finished.begin(), m_finished.end(), [](HWND done) { return !IsWindow(done); }),
                     m_finished.end());
    const HWND window = FindNewModal();
    m_idleSteps = window == nullptr ? m_idleSteps + 1 : 0;
    if (m_idleSteps < kMaxIdleSteps)
        Arm();
    if (window == nullptr)
        return;

    // The loop that delivers this step may not have shown its dialog yet.
    if (!IsWindowVisible(window))
        ShowWindow(window, SW_SHOWNORMAL);
    SetActiveWindow(window);

    if (IsBox(window))
        m_boxes.push_back({WindowText(window), BoxText(window), BoxIcon(window), 0});
    if (IsBox(window) && m_answer)
    {
        AnswerBox(window, *std::exchange(m_answer, std::nullopt));
    }
    else if (MayPlay(window))
    {
        PlayScene(window);
    }
    else
    {
        if (!m_abandoned && !m_dismissing)
            Fail(Format("An unexpected %s came up.", Describe(window)));
        Dismiss(window);
    }
    m_finished.push_back(window);
}

HWND CDialogRobot::FindNewModal() const
{
    for (HWND window : TopLevelWindows())
    {
        if (IsDialog(window) && IsWindowEnabled(window) && !Contains(m_stage, window) && !Contains(m_finished, window))
            return window;
    }
    return nullptr;
}

bool CDialogRobot::MayPlay(HWND window) const
{
    const bool belongsToScene = IsBox(window) && !m_stage.empty();
    return !m_abandoned && !m_dismissing && !belongsToScene && m_nextScene < m_scenes->size();
}

void CDialogRobot::PlayScene(HWND window)
{
    const Scene& scene = (*m_scenes)[m_nextScene++];
    const std::optional<UINT> answerBelow = std::exchange(m_answer, std::nullopt); // for a box of the dialog below

    m_stage.push_back(window);
    Outside([&] { scene(*this); });
    if (IsStillOpen(window))
    {
        if (!m_abandoned)
            Fail(Format("Scene %d ended while its dialog was still open.", static_cast<int>(m_nextScene)));
        m_abandoned = true;
        Dismiss(window);
    }
    m_stage.pop_back();

    m_answer = answerBelow;
}

void CDialogRobot::AnswerBox(HWND box, UINT answer)
{
    HWND button = GetDlgItem(box, static_cast<int>(answer));
    // The only button of a box may carry the id of a Cancel button, so that Esc works.
    if (button == nullptr && answer == IDOK && BoxButtons(box).size() == 1)
        button = GetDlgItem(box, IDCANCEL);
    if (button != nullptr)
    {
        m_boxes.back().answer = answer;
        ClickButton(button);
        return;
    }
    Fail(Format("The %s has no button %u.", Describe(box), answer));
    Dismiss(box);
}

void CDialogRobot::Dismiss(HWND window)
{
    if (++m_dismissals > kMaxDismissals)
    {
        for (const CString& failure : m_failures)
            std::fprintf(stderr, "%s\n", static_cast<LPCSTR>(failure));
        std::fprintf(stderr, "New windows come up however many the robot dismisses: the program is stopped.\n");
        std::abort();
    }

    const bool wasDismissing = std::exchange(m_dismissing, true);
    UINT button = IDCANCEL;
    if (IsBox(window))
    {
        const std::vector<UINT> buttons = BoxButtons(window);
        if (!buttons.empty())
            button = buttons[m_dismissals < kPatience ? 0 : static_cast<size_t>(m_dismissals) % buttons.size()];
        m_boxes.back().answer = button;
    }
    ClickIfEnabled(window, button);
    if (IsStillOpen(window))
        Outside([&] { return SendMessageA(window, WM_CLOSE, 0, 0); });
    if (IsStillOpen(window))
        EndByForce(window);
    m_dismissing = wasDismissing;
}

void CDialogRobot::Dismiss()
{
    const CInside inside(true);
    if (IsOpen())
        Dismiss(Current());
}

// ---- Messages ------------------------------------------------------------------------------------------------------

void CDialogRobot::Pump()
{
    const CInside inside(true);
    MSG message;
    for (int i = 0; i < kMaxPumped && IsOpen(); ++i)
    {
        const bool found = PeekMessageW(&message, nullptr, 0, kStep - 1, PM_REMOVE) ||
                           PeekMessageW(&message, nullptr, kStep + 1, 0xFFFF, PM_REMOVE);
        if (!found)
            return;
        if (message.message == WM_QUIT)
        {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Outside([&] {
            if (PreTranslate(&message))
                return;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        });
    }
}

// As a message loop does it: the window that the message is for and those around it may take it first.
bool CDialogRobot::PreTranslate(MSG* message) const
{
    for (HWND window = message->hwnd; window != nullptr; window = GetParent(window))
    {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(message))
            return true;
        if (window == Current())
            return object == nullptr && IsDialogMessageW(window, message);
    }
    return false;
}

CString CDialogRobot::Answering(UINT answer, const Action& action)
{
    const CInside inside(true);
    const size_t before = m_boxes.size();
    m_answer = answer;
    Outside(action);
    m_answer.reset();
    return m_boxes.size() > before ? m_boxes[before].text : CString();
}
