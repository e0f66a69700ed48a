// CDialogRobot drives modal dialogs from inside: the scripted user of tests and of batch runs.
//
// A modal dialog blocks the call that opens it, so whoever wants to work in it must be called by its message loop. The
// robot owns a hidden window and, before anything that may open a modal loop, posts itself a message; whichever loop
// comes up next delivers it, and the robot works inside that loop. There is no second thread, no timer and no waiting,
// and nothing depends on where the windows live.
//
//     CDialogRobot robot;
//     int result = robot.Play([&] { return wizard.DoOpenPosDlg(0, 0, nullptr); },
//                             {[](CDialogRobot& select) { select.Click(IDOK); },
//                              [](CDialogRobot& spd1) {
//                                  spd1.Type(IDC_CONTACT_NUMBER, "10");
//                                  CString warning = spd1.ClickAndAnswer(IDOK);
//                                  spd1.Click(IDCANCEL);
//                              }});
//
// The robot never hangs: what its scenes do not close it closes itself, and every surprise is written to Failures().
#pragma once

#include "afx/afx.h"

#include <exception>
#include <functional>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

/// A message box that came up while a robot played, and the button it was answered with.
struct SRobotMessageBox
{
    CString caption;
    CString text;
    UINT icon;   ///< MB_ICONEXCLAMATION and its kin; 0 when it has none
    UINT answer; ///< 0 when it was closed otherwise
};

/// What can be seen of a control.
struct SRobotControl
{
    UINT id;           ///< 0xFFFF for the controls that all share the id -1
    CString className; ///< as the system spells it: "Button", "Edit", "ComboBox", "ListBox", "Static", ...
    CString text;
    DWORD style;
    bool enabled;
    bool visible;
    RECT rect; ///< in pixels, relative to the dialog's client area
};

class CDialogRobot
{
public:
    /// What a user does in one dialog. It must leave the dialog closed.
    using Scene = std::function<void(CDialogRobot&)>;
    using Action = std::function<void()>;

    CDialogRobot() = default;
    ~CDialogRobot();
    CDialogRobot(const CDialogRobot&) = delete;
    CDialogRobot& operator=(const CDialogRobot&) = delete;

    /// Calls open(), which blocks in modal dialogs, and plays one scene in each modal dialog in the order in which they
    /// come up; a dialog that opens on top of another one takes its scene while the scene below it waits. A message
    /// box takes a scene only when no scene is at work below it, else it needs Answering(). Returns what open()
    /// returned. Plays of one robot do not nest. An exception that leaves a scene or open() is thrown again once every
    /// dialog is closed.
    int Play(const std::function<int()>& open, std::vector<Scene> scenes);

    /// Everything that went otherwise than the scenes said, in readable words. Kept over several plays.
    const std::vector<CString>& Failures() const { return m_failures; }
    void ClearFailures() { m_failures.clear(); }
    /// Adds a failure of the scene's own.
    void Fail(const CString& what);

    /// Every message box that came up since the last Play began, expected or not.
    const std::vector<SRobotMessageBox>& MessageBoxes() const { return m_boxes; }

    /// Describes every top-level window of this thread, except those that the system keeps for its input methods.
    static std::vector<CString> OpenWindows();

    /// True while the robot's own code runs and not the program that it drives. An allocator that injects failures
    /// leaves the robot alone by asking this.
    static bool IsInside();

    // ---- Looking, inside a scene ------------------------------------------------------------------------------------
    // A control is named by its id. One that does not exist is a failure and reads as empty.

    /// The dialog that is being played. A temporary object when the window is a message box.
    CWnd* Dialog() const;
    CString Caption() const;
    bool IsMessageBox() const;
    /// Whether the dialog has not been ended yet.
    bool IsOpen() const;
    bool Exists(UINT id) const;
    /// The text of a control, for a drop-down list that of its selected item. 0 reads the text of a message box.
    CString Text(UINT id);
    bool Enabled(UINT id);
    /// Whether the control itself is shown, whatever the state of the dialog.
    bool Visible(UINT id);
    bool Checked(UINT id);
    /// The index of the selected item of a combo box or a list box; -1 when there is none.
    int Selection(UINT id);
    std::vector<CString> Items(UINT id);
    /// The most characters that an edit accepts.
    int Limit(UINT id);
    /// The selected characters of an edit: first, and one past the last.
    std::pair<int, int> SelectedRange(UINT id);
    /// The control that has the focus; 0 when none of the dialog has it.
    UINT FocusId() const;
    /// The direct children in tab order.
    std::vector<SRobotControl> Controls() const;

    // ---- Acting, inside a scene -------------------------------------------------------------------------------------
    // As a user could: to act on a control that is disabled, hidden or not there is a failure, and nothing happens.

    /// Replaces the text of an edit by typing: the edit's limit and style decide what becomes of each character.
    void Type(UINT id, LPCSTR text);
    /// Replaces the text of a control at once, past limits and styles, as the program itself could.
    void SetText(UINT id, LPCSTR text);
    /// Selects an item of a combo box or a list box.
    void Select(UINT id, int index);
    /// The same by the whole text of the item.
    void SelectText(UINT id, LPCSTR text);
    /// Clicks a button.
    void Click(UINT id);
    /// Clicks a check box or a radio button unless it stands as wanted.
    void Check(UINT id, bool checked = true);
    /// Double-clicks the selected item of a list box.
    void DoubleClick(UINT id);
    void Focus(UINT id);
    /// Presses and releases a key (VK_...) where the focus is, through the dialog's own key handling. `held` names the
    /// keys that are down meanwhile: {VK_SHIFT}.
    void PressKey(UINT key, std::initializer_list<UINT> held = {});
    /// Puts a text on the clipboard, as another program would, and pastes it where the focus is, by Ctrl+V.
    void Paste(LPCSTR text);
    /// Delivers the messages that wait in the queue, as the dialog's modal loop would.
    void Pump();

    /// Does something and answers the message box that comes up with the button `answer`. Returns the text of the box,
    /// empty when none came up; its caption is in MessageBoxes().
    CString Answering(UINT answer, const Action& action);
    CString ClickAndAnswer(UINT id, UINT answer = IDOK);
    /// Ends the dialog whatever it says: by its Cancel button, by WM_CLOSE, at last by force.
    void Dismiss();

private:
    int PlayScenes(const std::function<int()>& open, const std::vector<Scene>& scenes);
    void Abandon() { m_abandoned = true; }

    static LRESULT CALLBACK StepWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Arm();
    void OnStep();
    HWND FindNewModal() const;
    bool MayPlay(HWND window) const;
    void PlayScene(HWND window);
    void AnswerBox(HWND box, UINT answer);
    void Dismiss(HWND window);

    HWND Current() const { return m_stage.empty() ? nullptr : m_stage.back(); }
    HWND Control(UINT id);
    HWND UsableControl(UINT id);
    void Notify(UINT id, HWND control, UINT code);
    bool PreTranslate(MSG* message) const;

    HWND m_stepWindow = nullptr;
    bool m_armed = false;         // a step waits in the queue
    bool m_abandoned = false;     // the play is lost: whatever comes up is dismissed
    bool m_dismissing = false;    // the robot itself is closing a window
    std::optional<UINT> m_answer; // to the message box that is expected
    int m_idleSteps = 0;          // steps in a row that found nothing to do
    int m_dismissals = 0;         // windows dismissed since the play began
    size_t m_nextScene = 0;
    const std::vector<Scene>* m_scenes = nullptr;
    std::vector<HWND> m_finished; // windows that were there before the play, or that it has done with
    std::vector<HWND> m_stage;    // dialogs whose scenes are running, the topmost last
    std::vector<SRobotMessageBox> m_boxes;
    std::vector<CString> m_failures;
};

// Inline, so that exceptions are caught in the module that throws them: they cannot pass through the frames of another
// module, nor through those of the system's message dispatch.
inline int CDialogRobot::Play(const std::function<int()>& open, std::vector<Scene> scenes)
{
    std::exception_ptr thrown;
    for (Scene& scene : scenes)
    {
        scene = [this, &thrown, play = std::move(scene)](CDialogRobot& robot) {
            try
            {
                play(robot);
            }
            catch (...)
            {
                thrown = thrown ? thrown : std::current_exception();
                Abandon();
            }
        };
    }

    const int result = PlayScenes(
        [&] {
            try
            {
                return open();
            }
            catch (...)
            {
                thrown = thrown ? thrown : std::current_exception();
                Abandon();
                return -1;
            }
        },
        scenes);

    if (thrown)
        std::rethrow_exception(thrown);
    return result;
}
