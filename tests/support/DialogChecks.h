// What the tests of all instruction dialogs look at.
#pragma once

#include "afx/DialogRobot.h"

#include <string>
#include <utility>
#include <vector>

/// The name that the tests of dialogs give the application; message boxes stand under it.
inline constexpr const char* kTestAppName = "Ladder tool";

/// The English text of a message, by its number.
std::string MessageText(unsigned id);
/// The name under which a device stands in the list of contacts.
std::string DeviceName(int code);

/// Clicks OK, which must be refused: with this message, in a box under the application's name, pointing at the edit,
/// the dialog open.
void ExpectRefusal(CDialogRobot& dialog, unsigned message, unsigned edit);

/// Clicks OK in a dialog that is ready for it, again and again, each time with one more allocation that succeeds before
/// one fails: all but the last click are refused for want of memory. Returns how many were.
int ConfirmShortOfMemory(CDialogRobot& dialog);

constexpr UINT kSharedId = 0xFFFF; // of the controls that all share the id -1

/// A control as a test writes it.
struct SShownControl
{
    UINT id;
    const char* className;
    const char* text;
    bool enabled = true;
    bool visible = true;
};
/// The direct children in tab order.
void ExpectControls(const CDialogRobot& dialog, const std::vector<SShownControl>& expected);
/// Goes through the dialog by the tab key, from the control that has the focus, and back again.
void ExpectTabOrder(CDialogRobot& dialog, const std::vector<UINT>& order);
/// Everything is disabled but the first control and Back.
void ExpectOnlyFirstAndBack(const CDialogRobot& dialog);
/// The limits of edits; what is typed into one ends there.
void ExpectLimits(CDialogRobot& dialog, const std::vector<std::pair<UINT, int>>& limits);

/// A control of the dialog with the id -1, by the control that it stands before or after.
CWnd* ControlBefore(CDialogRobot& dialog, UINT id, int steps = 1);
CWnd* ControlAfter(CDialogRobot& dialog, UINT id, int steps = 1);
std::string TextBefore(CDialogRobot& dialog, UINT id);
std::string TextAfter(CDialogRobot& dialog, UINT id, int steps = 1);

// What no user can do, but a program can.

/// Takes the selection of a list away, or selects an item, without or with telling the dialog.
void SelectSilently(CDialogRobot& dialog, UINT combo, int index);
void SelectByProgram(CDialogRobot& dialog, UINT combo, int index);
/// Changes the text of a control that may be disabled.
void SetTextByProgram(CDialogRobot& dialog, UINT id, const std::string& text);
