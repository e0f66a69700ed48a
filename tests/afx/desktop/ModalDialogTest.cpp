// Modal dialogs, message boxes, activation, and the order of a window's life.

#include "tests/afx/desktop/TestDialog.h"

#include <functional>

using namespace desktop;

namespace
{
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
constexpr UINT kStep = WM_APP + 1;

// A modal dialog driven by one function, which runs when the dialog's loop does.
struct Modal
{
    std::function<void(HWND)> initialize;
    std::function<void(HWND)> step;
    std::function<bool(HWND, int id)> command;
    BOOL initResult = TRUE;

    INT_PTR Run(TemplateBuilder builder, HWND owner)
    {
        return DialogBoxIndirectParamA(GetModuleHandleA(nullptr), builder.Build(), owner, Procedure,
                                       reinterpret_cast<LPARAM>(this));
    }

    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_INITDIALOG)
        {
            SetWindowLongPtrA(dialog, static_cast<int>(DWLP_USER), lParam);
            auto* self = reinterpret_cast<Modal*>(lParam);
            if (self->initialize)
                self->initialize(dialog);
            if (IsWindow(dialog))
                PostMessageA(dialog, kStep, 0, 0);
            return self->initResult;
        }
        auto* self = reinterpret_cast<Modal*>(GetWindowLongPtrA(dialog, static_cast<int>(DWLP_USER)));
        if (self && message == kStep && self->step)
            self->step(dialog);
        if (self && message == WM_COMMAND && self->command)
            return self->command(dialog, LOWORD(wParam));
        return FALSE;
    }
};

TemplateBuilder OkAndCancel()
{
    TemplateBuilder builder(kDialog);
    builder.Control(kEdit, 10, "abc", WS_TABSTOP | ES_AUTOHSCROLL)
        .Control(kButton, IDOK, "&OK", BS_DEFPUSHBUTTON | WS_TABSTOP)
        .Control(kButton, IDCANCEL, "&Cancel", WS_TABSTOP);
    return builder;
}

BOOL CALLBACK Collect(HWND window, LPARAM windows)
{
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

std::vector<HWND> ThreadWindows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> VisibleWindows()
{
    std::vector<HWND> windows = ThreadWindows();
    std::erase_if(windows, [](HWND window) { return !IsWindowVisible(window); });
    return windows;
}

class ModalDialog : public ::testing::Test
{
protected:
    void SetUp() override { owner = MakeOwner(); }
    void TearDown() override
    {
        DestroyWindow(owner);
        EXPECT_TRUE(VisibleWindows().empty());
    }

    HWND owner = nullptr;
};

HWND g_box = nullptr;
std::function<void(HWND)> g_onBox;

LRESULT CALLBACK HelperProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kStep)
        return DefWindowProcA(window, message, wParam, lParam);
    for (HWND candidate : VisibleWindows())
    {
        char name[20];
        GetClassNameA(candidate, name, sizeof name);
        if (std::string(name) == "#32770" && GetDlgItem(candidate, 0xFFFF))
            g_box = candidate;
    }
    if (g_box)
        g_onBox(g_box);
    return 0;
}

// Runs `answer` inside the next message box, by a message that its loop delivers.
int AnswerBox(HWND owner, const char* text, const char* caption, UINT type, const std::function<void(HWND)>& answer)
{
    static const bool registered = [] {
        WNDCLASSA windowClass{};
        windowClass.lpszClassName = "DesktopTestHelper";
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpfnWndProc = HelperProc;
        return RegisterClassA(&windowClass) != 0;
    }();
    EXPECT_TRUE(registered);
    g_box = nullptr;
    g_onBox = answer;
    const HWND helper = CreateWindowExA(0, "DesktopTestHelper", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        GetModuleHandleA(nullptr), nullptr);
    PostMessageA(helper, kStep, 0, 0);
    const int result = MessageBoxA(owner, text, caption, type);
    DestroyWindow(helper);
    EXPECT_NE(g_box, nullptr);
    return result;
}
} // namespace

TEST_F(ModalDialog, RunsUntilItIsEnded)
{
    Modal modal;
    HWND inside = nullptr;
    modal.initialize = [&](HWND dialog) {
        inside = dialog;
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_FALSE(IsWindowVisible(dialog));
        EXPECT_EQ(GetWindow(dialog, GW_OWNER), owner);
        EXPECT_EQ(GetParent(dialog), owner);
    };
    modal.step = [&](HWND dialog) {
        EXPECT_EQ(GetActiveWindow(), dialog);
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, 10));
        EXPECT_EQ(GetLastActivePopup(owner), dialog);
        SendDlgItemMessageA(dialog, IDOK, BM_CLICK, 0, 0);
    };
    modal.command = [&](HWND dialog, int id) {
        if (id != IDOK)
            return false;
        EndDialog(dialog, 77);
        EXPECT_TRUE(IsWindow(dialog)); // It goes when its loop notices.
        EXPECT_FALSE(IsWindowVisible(dialog));
        EXPECT_TRUE(IsWindowEnabled(owner));
        return true;
    };
    EXPECT_EQ(modal.Run(OkAndCancel(), owner), 77);
    EXPECT_FALSE(IsWindow(inside));
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(GetActiveWindow(), owner);
}

TEST_F(ModalDialog, MayEndWhileItIsInitialized)
{
    Modal modal;
    modal.initialize = [](HWND dialog) { EndDialog(dialog, 2); };
    EXPECT_EQ(modal.Run(OkAndCancel(), owner), 2);
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(ModalDialog, ReturnsMinusOneForAnUnknownClass)
{
    Modal modal;
    EXPECT_EQ(modal.Run(OkAndCancel().Control("NoSuchClass", 50, "", 0), owner), -1);
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(ModalDialog, KeepsTheFocusThatInitializationGave)
{
    Modal modal;
    modal.initResult = FALSE;
    modal.initialize = [](HWND dialog) { SetFocus(GetDlgItem(dialog, IDCANCEL)); };
    modal.step = [](HWND dialog) {
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDCANCEL));
        EndDialog(dialog, 1);
    };
    EXPECT_EQ(modal.Run(OkAndCancel(), owner), 1);
}

TEST_F(ModalDialog, DialogsNest)
{
    Modal outer;
    Modal inner;
    inner.step = [](HWND dialog) { EndDialog(dialog, 5); };
    outer.step = [&](HWND dialog) {
        EXPECT_EQ(inner.Run(OkAndCancel(), dialog), 5);
        EXPECT_TRUE(IsWindowEnabled(dialog));
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(GetActiveWindow(), dialog);
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, 10)); // As before
        EndDialog(dialog, 6);
    };
    EXPECT_EQ(outer.Run(OkAndCancel(), owner), 6);
}

TEST_F(ModalDialog, EscAndEnterArriveAsCommands)
{
    for (const auto& [key, id] : {std::pair<WPARAM, int>{VK_ESCAPE, IDCANCEL}, {VK_RETURN, IDOK}})
    {
        Modal modal;
        int received = 0;
        const WPARAM pressed = key;
        modal.step = [=](HWND) { PostMessageA(GetFocus(), WM_KEYDOWN, pressed, 1); };
        modal.command = [&](HWND dialog, int command) {
            if (command > 2)
                return false;
            received = command;
            return EndDialog(dialog, command) != 0;
        };
        EXPECT_EQ(modal.Run(OkAndCancel(), owner), id);
        EXPECT_EQ(received, id);
    }
}

namespace
{
void CALLBACK EndByTimer(HWND window, UINT, UINT_PTR, DWORD) { EndDialog(window, 3); }
} // namespace

TEST_F(ModalDialog, TheOwnerIsToldOfIdleness)
{
    Modal modal;
    TestDialog notifying(TemplateBuilder(kDialog | WS_VISIBLE));
    notifying.Note(WM_ENTERIDLE);
    modal.step = [](HWND dialog) { SetTimer(dialog, 1, 10, EndByTimer); };
    EXPECT_EQ(modal.Run(OkAndCancel(), notifying.Window()), 3);
    EXPECT_NE(notifying.Log().find("#289"), std::string::npos);
}

TEST_F(ModalDialog, TheResultOfAMessage)
{
    TestDialog dialog(TemplateBuilder(kDialog | WS_VISIBLE));
    SetWindowLongPtrA(dialog.Window(), DWLP_MSGRESULT, 5);
    // Cleared before the dialog procedure is asked.
    EXPECT_EQ(SendMessageA(dialog.Window(), WM_APP + 7, 0, 0), 0);
}

TEST_F(ModalDialog, MessageBoxesAreDialogs)
{
    const int result = AnswerBox(owner, "Line one.\nLine two.", "Caption", MB_OK | MB_ICONEXCLAMATION, [&](HWND box) {
        EXPECT_EQ(WindowText(box), "Caption");
        EXPECT_EQ(WindowText(GetDlgItem(box, 0xFFFF)), "Line one.\nLine two.");
        EXPECT_EQ(GetWindow(box, GW_OWNER), owner);
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_NE(GetDlgItem(box, IDOK), nullptr);
        SendDlgItemMessageA(box, IDOK, BM_CLICK, 0, 0);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(GetActiveWindow(), owner);
}

TEST_F(ModalDialog, MessageBoxButtonsByType)
{
    const std::vector<std::pair<UINT, std::vector<int>>> kTypes = {
        {MB_OKCANCEL, {IDOK, IDCANCEL}},
        {MB_YESNO, {IDYES, IDNO}},
        {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
        {MB_RETRYCANCEL, {IDRETRY, IDCANCEL}},
        {MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}},
    };
    for (const auto& [type, ids] : kTypes)
        for (int id : ids)
        {
            const std::vector<int>& all = ids;
            EXPECT_EQ(AnswerBox(owner, "?", "", type,
                                [&](HWND box) {
                                    for (int candidate = IDOK; candidate <= IDNO; ++candidate)
                                    {
                                        const bool expected = std::find(all.begin(), all.end(), candidate) != all.end();
                                        const HWND button = GetDlgItem(box, candidate);
                                        EXPECT_EQ(button && IsWindowVisible(button), expected) << candidate;
                                    }
                                    SendMessageA(box, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                                                 reinterpret_cast<LPARAM>(GetDlgItem(box, id)));
                                }),
                      id);
        }
}

TEST_F(ModalDialog, MessageBoxKeys)
{
    EXPECT_EQ(AnswerBox(owner, "?", "", MB_OKCANCEL, [](HWND) { PostMessageA(GetFocus(), WM_KEYDOWN, VK_RETURN, 1); }),
              IDOK);
    EXPECT_EQ(AnswerBox(owner, "?", "", MB_OKCANCEL | MB_DEFBUTTON2,
                        [](HWND) { PostMessageA(GetFocus(), WM_KEYDOWN, VK_RETURN, 1); }),
              IDCANCEL);
    EXPECT_EQ(AnswerBox(owner, "?", "", MB_OKCANCEL, [](HWND) { PostMessageA(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1); }),
              IDCANCEL);
    EXPECT_EQ(AnswerBox(owner, "?", "", MB_YESNOCANCEL, [](HWND box) { PostMessageA(box, WM_CLOSE, 0, 0); }), IDCANCEL);
}

TEST_F(ModalDialog, TheFocusComesBackAfterAMessageBox)
{
    Modal modal;
    modal.step = [](HWND dialog) {
        SetFocus(GetDlgItem(dialog, IDCANCEL));
        SetFocus(GetDlgItem(dialog, 10));
        AnswerBox(dialog, "!", "", MB_OK, [](HWND box) { SendDlgItemMessageA(box, IDOK, BM_CLICK, 0, 0); });
        EXPECT_EQ(GetActiveWindow(), dialog);
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, 10));
        EndDialog(dialog, 1);
    };
    EXPECT_EQ(modal.Run(OkAndCancel(), owner), 1);
}

TEST_F(ModalDialog, OwnedWindowsGoWithTheirOwner)
{
    const HWND second = MakeOwner();
    TestDialog dialog(TemplateBuilder(kDialog | WS_VISIBLE), second);
    EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), second);
    DestroyWindow(second);
    EXPECT_FALSE(IsWindow(dialog.Window()));
}

namespace
{
std::string g_life;

LRESULT CALLBACK LifeProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const char* name = nullptr;
    switch (message)
    {
    case WM_NCCREATE:
        name = "nccreate";
        break;
    case WM_CREATE:
        name = "create";
        break;
    case WM_DESTROY:
        name = "destroy";
        break;
    case WM_NCDESTROY:
        name = "ncdestroy";
        break;
    case WM_SHOWWINDOW:
        name = wParam ? "show" : "hide";
        break;
    case WM_ENABLE:
        name = wParam ? "enable" : "disable";
        break;
    case WM_SETFOCUS:
        name = "focus";
        break;
    case WM_KILLFOCUS:
        name = "unfocus";
        break;
    case WM_ACTIVATE:
        name = LOWORD(wParam) ? "activate" : "deactivate";
        break;
    default:
        break;
    }
    if (name)
        g_life += std::to_string(
                      GetWindowLongPtrA(window, GWL_STYLE) & static_cast<LONG>(WS_CHILD) ? GetDlgCtrlID(window) : 0) +
                  name + " ";
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND MakeLife(HWND parent, int id)
{
    static const bool registered = [] {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = LifeProc;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "DesktopTestLife";
        return RegisterClassA(&windowClass) != 0;
    }();
    EXPECT_TRUE(registered);
    return CreateWindowExA(0, "DesktopTestLife", "", parent ? WS_CHILD | WS_VISIBLE : WS_POPUP, 0, 0, 10, 10, parent,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
}

std::string TakeLife()
{
    std::string life;
    life.swap(g_life);
    return life;
}
} // namespace

TEST(WindowLife, MessagesComeInOrder)
{
    TakeLife();
    const HWND top = MakeLife(nullptr, 0);
    EXPECT_EQ(TakeLife(), "0nccreate 0create ");
    const HWND child = MakeLife(top, 1);
    const HWND grandchild = MakeLife(child, 2);
    const HWND second = MakeLife(top, 3);
    EXPECT_EQ(TakeLife(), "1nccreate 1create 1show 2nccreate 2create 2show 3nccreate 3create 3show ");
    ShowWindow(top, SW_SHOW);
    EXPECT_EQ(TakeLife(), "0show 0activate 0focus ");
    SetFocus(child);
    EXPECT_EQ(TakeLife(), "0unfocus 1focus ");
    EnableWindow(second, FALSE);
    EnableWindow(second, FALSE);
    EnableWindow(second, TRUE);
    EXPECT_EQ(TakeLife(), "3disable 3enable ");
    EXPECT_EQ(GetWindow(top, GW_CHILD), child);
    EXPECT_EQ(GetWindow(child, GW_HWNDNEXT), second);
    EXPECT_EQ(GetWindow(second, GW_HWNDPREV), child);
    EXPECT_TRUE(IsChild(top, grandchild));
    EXPECT_FALSE(IsChild(second, grandchild));
    DestroyWindow(top);
    EXPECT_EQ(TakeLife(), "0deactivate 1unfocus 0destroy 1destroy 2destroy 3destroy 2ncdestroy 1ncdestroy 3ncdestroy "
                          "0ncdestroy ");
    EXPECT_FALSE(IsWindow(grandchild));
}

TEST(WindowLife, ADeadHandleFindsNothing)
{
    const HWND window = MakeLife(nullptr, 0);
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(DestroyWindow(window));
    EXPECT_EQ(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_FALSE(PostMessageA(window, WM_NULL, 0, 0));
    RECT rect{};
    EXPECT_FALSE(GetWindowRect(window, &rect));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
    EXPECT_EQ(GetParent(window), nullptr);
    EXPECT_EQ(GetDlgItem(window, 1), nullptr);
    TakeLife();
}

TEST(WindowLife, MessagesOfADeadWindowAreNotDelivered)
{
    const HWND window = MakeLife(nullptr, 0);
    PostMessageA(window, WM_APP, 0, 0);
    DestroyWindow(window);
    MSG msg;
    EXPECT_FALSE(PeekMessageA(&msg, window, 0, 0, PM_REMOVE));
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
        EXPECT_NE(msg.message, static_cast<UINT>(WM_APP));
    TakeLife();
}

TEST(WindowLife, QuitComesWhenTheQueueIsEmpty)
{
    const HWND window = MakeLife(nullptr, 0);
    PostQuitMessage(9);
    PostMessageA(window, WM_APP, 1, 2);
    MSG msg;
    ASSERT_TRUE(GetMessageA(&msg, nullptr, 0, 0));
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_APP));
    EXPECT_FALSE(GetMessageA(&msg, nullptr, 0, 0));
    EXPECT_EQ(msg.wParam, 9u);
    DestroyWindow(window);
    TakeLife();
}

TEST(WindowLife, MessageOnlyWindowsAreHiddenFromOthers)
{
    DestroyWindow(MakeOwner()); // Registers the class.
    const HWND window = CreateWindowExA(0, "DesktopTestOwner", "only", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(window, nullptr);
    for (HWND candidate : ThreadWindows())
        EXPECT_NE(candidate, window);
    DestroyWindow(window);
}

TEST(WindowLife, TimersTick)
{
    const HWND window = MakeLife(nullptr, 0);
    EXPECT_NE(SetTimer(window, 4, 20, nullptr), 0u);
    MSG msg;
    ASSERT_TRUE(GetMessageA(&msg, window, WM_TIMER, WM_TIMER));
    EXPECT_EQ(msg.wParam, 4u);
    EXPECT_TRUE(KillTimer(window, 4));
    EXPECT_FALSE(KillTimer(window, 4));
    DestroyWindow(window);
    TakeLife();
}

TEST_F(ModalDialog, EndingAModelessDialogHidesItAndEnablesItsOwner)
{
    TestDialog dialog(OkAndCancel(), owner);
    ShowWindow(dialog.Window(), SW_SHOW);
    EnableWindow(owner, FALSE);
    EXPECT_TRUE(EndDialog(dialog.Window(), 1));
    EXPECT_TRUE(IsWindow(dialog.Window()));
    EXPECT_FALSE(IsWindowVisible(dialog.Window()));
    EXPECT_TRUE(IsWindowEnabled(owner));
}
