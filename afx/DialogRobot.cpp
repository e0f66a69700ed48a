#include "afx/DialogRobot.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

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

// Whether the robot's own code runs rather than the program that it drives.
bool g_inside = false;

class CInside
{
public:
    explicit CInside(bool inside) : m_before(std::exchange(g_inside, inside)) {}
    ~CInside() { g_inside = m_before; }
    CInside(const CInside&) = delete;
    CInside& operator=(const CInside&) = delete;

private:
    bool m_before;
};

template <typename F>
auto Outside(const F& call)
{
    const CInside inside(false);
    return call();
}

template <typename T>
T Printable(T value)
{
    return value;
}

LPCSTR Printable(const CString& text) { return text; }

template <typename... T>
CString Format(LPCSTR format, const T&... values)
{
    CString text;
    text.Format(format, Printable(values)...);
    return text;
}

CString WindowText(HWND window)
{
    std::vector<char> text(static_cast<size_t>(GetWindowTextLengthA(window)) + 1);
    GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    return CString(text.data());
}

CString ClassName(HWND window)
{
    char name[80] = "";
    GetClassNameA(window, name, sizeof name);
    return CString(name);
}

bool HasClass(HWND window, LPCSTR name) { return ClassName(window).CompareNoCase(name) == 0; }

DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)); }

UINT IdOf(HWND control) { return static_cast<UINT>(GetDlgCtrlID(control)) & 0xFFFF; }

bool IsDialog(HWND window) { return HasClass(window, "#32770"); }

// A message box is a dialog that no object of ours stands behind.
bool IsBox(HWND window) { return IsDialog(window) && CWnd::FromHandlePermanent(window) == nullptr; }

// Ending a dialog hides it; it lives on until its loop has returned.
bool IsStillOpen(HWND window) { return IsWindow(window) && IsWindowVisible(window); }

bool Contains(const std::vector<HWND>& windows, HWND window)
{
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

BOOL CALLBACK AddWindow(HWND window, LPARAM list)
{
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> TopLevelWindows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), AddWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> Children(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

// The id of the text differs from system to system: it is the one static control that is no icon.
CString BoxText(HWND box)
{
    for (HWND child : Children(box))
    {
        if (HasClass(child, "Static") && (StyleOf(child) & SS_TYPEMASK) != SS_ICON)
            return WindowText(child);
    }
    return CString();
}

// The system's icons exist once each, so that their handles tell them apart.
UINT BoxIcon(HWND box)
{
    struct SIcon
    {
        UINT flag;
        LPCSTR name;
    };
    const SIcon icons[] = {{MB_ICONHAND, IDI_HAND},
                           {MB_ICONQUESTION, IDI_QUESTION},
                           {MB_ICONEXCLAMATION, IDI_EXCLAMATION},
                           {MB_ICONASTERISK, IDI_ASTERISK}};
    for (HWND child : Children(box))
    {
        const auto shown = reinterpret_cast<HICON>(SendMessageA(child, STM_GETICON, 0, 0));
        for (const SIcon& icon : icons)
        {
            if (shown != nullptr && HasClass(child, "Static") && shown == LoadIconA(nullptr, icon.name))
                return icon.flag;
        }
    }
    return 0;
}

CString Describe(HWND window)
{
    if (IsBox(window))
        return Format("message box \"%s\": \"%s\"", WindowText(window), BoxText(window));
    return Format("dialog \"%s\"", WindowText(window));
}

// The buttons of a message box, those that decline first.
std::vector<UINT> BoxButtons(HWND box)
{
    std::vector<UINT> buttons;
    for (UINT id : {IDCANCEL, IDNO, IDABORT, IDIGNORE, IDOK, IDYES, IDRETRY})
    {
        HWND button = GetDlgItem(box, static_cast<int>(id));
        if (button != nullptr && IsWindowEnabled(button))
            buttons.push_back(id);
    }
    return buttons;
}

// Combo boxes and list boxes answer the same questions by different messages.
struct SListMessages
{
    UINT getCount;
    UINT getSelection;
    UINT setSelection;
    UINT getTextLength;
    UINT getText;
    UINT selectionChanged;
};

SListMessages ListMessages(HWND list)
{
    if (HasClass(list, "ComboBox"))
        return {CB_GETCOUNT, CB_GETCURSEL, CB_SETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT, CBN_SELCHANGE};
    return {LB_GETCOUNT, LB_GETCURSEL, LB_SETCURSEL, LB_GETTEXTLEN, LB_GETTEXT, LBN_SELCHANGE};
}

CString ItemText(HWND list, int index)
{
    const SListMessages messages = ListMessages(list);
    const LRESULT length = SendMessageA(list, messages.getTextLength, static_cast<WPARAM>(index), 0);
    std::vector<char> text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1);
    SendMessageA(list, messages.getText, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return CString(text.data());
}

// As the Tab key moves it, so that the default button follows and an edit selects its text.
void FocusControl(HWND control)
{
    SendMessageA(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void ClickButton(HWND button)
{
    Outside([&] { return SendMessageA(button, BM_CLICK, 0, 0); });
}

void ClickButton(HWND dialog, UINT id)
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

bool CDialogRobot::IsInside() { return g_inside; }

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
    ClickButton(window, button);
    if (IsStillOpen(window))
        Outside([&] { return SendMessageA(window, WM_CLOSE, 0, 0); });
    if (IsStillOpen(window))
        EndByForce(window);
    m_dismissing = wasDismissing;
}

// ---- Looking --------------------------------------------------------------------------------------------------------

CWnd* CDialogRobot::Dialog() const { return Current() == nullptr ? nullptr : CWnd::FromHandle(Current()); }

CString CDialogRobot::Caption() const
{
    const CInside inside(true);
    return WindowText(Current());
}

bool CDialogRobot::IsMessageBox() const { return IsBox(Current()); }

bool CDialogRobot::IsOpen() const { return IsStillOpen(Current()); }

bool CDialogRobot::Exists(UINT id) const { return GetDlgItem(Current(), static_cast<int>(id)) != nullptr; }

HWND CDialogRobot::Control(UINT id)
{
    HWND control = GetDlgItem(Current(), static_cast<int>(id));
    if (control == nullptr)
        Fail(Format("There is no control %u.", id));
    return control;
}

CString CDialogRobot::Text(UINT id)
{
    const CInside inside(true);
    if (id == 0)
        return BoxText(Current());
    HWND control = Control(id);
    return control == nullptr ? CString() : WindowText(control);
}

bool CDialogRobot::Enabled(UINT id)
{
    const CInside inside(true);
    HWND control = Control(id);
    return control != nullptr && IsWindowEnabled(control);
}

bool CDialogRobot::Visible(UINT id)
{
    const CInside inside(true);
    HWND control = Control(id);
    return control != nullptr && (StyleOf(control) & WS_VISIBLE) != 0;
}

bool CDialogRobot::Checked(UINT id)
{
    const CInside inside(true);
    HWND control = Control(id);
    return control != nullptr && SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int CDialogRobot::Selection(UINT id)
{
    const CInside inside(true);
    HWND list = Control(id);
    return list == nullptr ? -1 : static_cast<int>(SendMessageA(list, ListMessages(list).getSelection, 0, 0));
}

std::vector<CString> CDialogRobot::Items(UINT id)
{
    const CInside inside(true);
    std::vector<CString> items;
    HWND list = Control(id);
    if (list == nullptr)
        return items;
    const SListMessages messages = ListMessages(list);
    const LRESULT count = SendMessageA(list, messages.getCount, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
        items.push_back(ItemText(list, static_cast<int>(i)));
    return items;
}

int CDialogRobot::Limit(UINT id)
{
    HWND edit = Control(id);
    return edit == nullptr ? 0 : static_cast<int>(SendMessageA(edit, EM_GETLIMITTEXT, 0, 0));
}

std::pair<int, int> CDialogRobot::SelectedRange(UINT id)
{
    DWORD first = 0;
    DWORD last = 0;
    if (HWND edit = Control(id))
        SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return {static_cast<int>(first), static_cast<int>(last)};
}

UINT CDialogRobot::FocusId() const
{
    // The focus may be in a part of the control, such as the edit of a combo box.
    HWND focus = GetFocus();
    while (focus != nullptr && GetParent(focus) != Current())
        focus = (StyleOf(focus) & WS_CHILD) != 0 ? GetParent(focus) : nullptr;
    return focus == nullptr ? 0 : IdOf(focus);
}

std::vector<SRobotControl> CDialogRobot::Controls() const
{
    const CInside inside(true);
    std::vector<SRobotControl> controls;
    for (HWND child : Children(Current()))
    {
        RECT rect = {};
        GetWindowRect(child, &rect);
        MapWindowPoints(nullptr, Current(), reinterpret_cast<POINT*>(&rect), 2);
        const DWORD style = StyleOf(child);
        controls.push_back({IdOf(child), ClassName(child), WindowText(child), style, IsWindowEnabled(child) != FALSE,
                            (style & WS_VISIBLE) != 0, rect});
    }
    return controls;
}

// ---- Acting ---------------------------------------------------------------------------------------------------------

HWND CDialogRobot::UsableControl(UINT id)
{
    HWND control = Control(id);
    if (control == nullptr)
        return nullptr;
    const LPCSTR obstacle = !IsOpen()                              ? "cannot be used: the dialog has been ended"
                            : !IsWindowEnabled(control)            ? "is disabled"
                            : (StyleOf(control) & WS_VISIBLE) == 0 ? "is hidden"
                                                                   : nullptr;
    if (obstacle == nullptr)
        return control;
    Fail(Format("Control %u %s.", id, obstacle));
    return nullptr;
}

void CDialogRobot::Notify(UINT id, HWND control, UINT code)
{
    const HWND dialog = Current();
    Outside([&] { return SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control)); });
}

void CDialogRobot::Type(UINT id, LPCSTR text)
{
    const CInside inside(true);
    HWND edit = UsableControl(id);
    if (edit == nullptr)
        return;
    Outside([&] {
        FocusControl(edit);
        SendMessageA(edit, EM_SETSEL, 0, -1);
        SendMessageA(edit, WM_CLEAR, 0, 0);
    });
    for (; *text != '\0'; ++text)
        PostMessageA(edit, WM_CHAR, static_cast<unsigned char>(*text), 1);
    Pump();
}

void CDialogRobot::SetText(UINT id, LPCSTR text)
{
    const CInside inside(true);
    if (HWND control = UsableControl(id))
        Outside([&] { SetWindowTextA(control, text); });
}

void CDialogRobot::Select(UINT id, int index)
{
    const CInside inside(true);
    HWND list = UsableControl(id);
    if (list == nullptr)
        return;
    const SListMessages messages = ListMessages(list);
    if (index < 0 || index >= SendMessageA(list, messages.getCount, 0, 0))
    {
        Fail(Format("The list %u has no item %d.", id, index));
        return;
    }
    Outside([&] {
        FocusControl(list);
        SendMessageA(list, messages.setSelection, static_cast<WPARAM>(index), 0);
    });
    if (messages.getCount == CB_GETCOUNT || (StyleOf(list) & LBS_NOTIFY) != 0)
        Notify(id, list, messages.selectionChanged);
}

void CDialogRobot::SelectText(UINT id, LPCSTR text)
{
    const CInside inside(true);
    if (UsableControl(id) == nullptr)
        return;
    const std::vector<CString> items = Items(id);
    const auto item = std::find(items.begin(), items.end(), text);
    if (item == items.end())
        Fail(Format("The list %u has no item \"%s\".", id, text));
    else
        Select(id, static_cast<int>(item - items.begin()));
}

void CDialogRobot::Click(UINT id)
{
    const CInside inside(true);
    HWND button = UsableControl(id);
    if (button == nullptr)
        return;
    if (IsMessageBox())
        m_boxes.back().answer = id;
    ClickButton(button);
}

void CDialogRobot::Check(UINT id, bool checked)
{
    const CInside inside(true);
    if (UsableControl(id) != nullptr && Checked(id) != checked)
        Click(id);
}

void CDialogRobot::DoubleClick(UINT id)
{
    const CInside inside(true);
    HWND list = UsableControl(id);
    if (list != nullptr && (StyleOf(list) & LBS_NOTIFY) != 0)
        Notify(id, list, LBN_DBLCLK);
}

void CDialogRobot::Focus(UINT id)
{
    const CInside inside(true);
    if (HWND control = UsableControl(id))
        Outside([&] { FocusControl(control); });
}

void CDialogRobot::PressKey(UINT key, std::initializer_list<UINT> held)
{
    const CInside inside(true);
    const HWND focus = GetFocus();
    const HWND target = focus != nullptr ? focus : Current();

    BYTE keys[256] = {};
    GetKeyboardState(keys);
    BYTE pressed[256];
    std::copy(std::begin(keys), std::end(keys), pressed);
    for (UINT modifier : held)
        pressed[modifier] = 0x80;

    SetKeyboardState(pressed);
    PostMessageA(target, WM_KEYDOWN, key, 1);
    PostMessageA(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Pump();
    SetKeyboardState(keys);
}

void CDialogRobot::Pump()
{
    const CInside inside(true);
    MSG message;
    for (int i = 0; i < kMaxPumped && IsOpen(); ++i)
    {
        const bool found = PeekMessageA(&message, nullptr, 0, kStep - 1, PM_REMOVE) ||
                           PeekMessageA(&message, nullptr, kStep + 1, 0xFFFF, PM_REMOVE);
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
            DispatchMessageA(&message);
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
            return object == nullptr && IsDialogMessageA(window, message);
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

CString CDialogRobot::ClickAndAnswer(UINT id, UINT answer)
{
    const CInside inside(true);
    return Answering(answer, [=, this] { Click(id); });
}

void CDialogRobot::Dismiss()
{
    const CInside inside(true);
    if (IsOpen())
        Dismiss(Current());
}
