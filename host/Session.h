// A recorded session: what a user did in the wizard's dialogs, read from a JSON file. README.md describes the form.
#pragma once

#include "host/Plc.h"
#include "host/TextFile.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// A file that is no session: the message says where and why.
using CSessionError = CFileError;

enum class EVerb
{
    Type,        ///< text into an edit, key by key
    Set,         ///< text into a control, at once
    SelectIndex, ///< the item at `number` of a list
    SelectText,  ///< the item `text` of a list
    Check,
    Uncheck,
    Click,
    DoubleClick,
    Focus,
    Press, ///< the key `number`, with Ctrl when `ctrl`
    Paste, ///< `text` by way of the clipboard, with Ctrl+V
    Shot   ///< a picture named `text`
};

/// One thing the user did in a dialog.
struct SStep
{
    EVerb verb = EVerb::Click;
    unsigned control = 0;
    int number = 0;
    bool ctrl = false;
    std::string text;
    std::string where; ///< its place in the file
    std::string shot;  ///< the name of the picture before it, the last step; the dialog's caption when empty
    std::optional<unsigned> answer; ///< to the message box that comes up: IDOK, IDYES, ...
};

using CDialogSteps = std::vector<SStep>;

enum class EWizard
{
    Pulse,
    Unit,
    Pid,
    Scaling,
    Screen,
    ControlCode
};

/// One opening of a wizard, and what was done in each dialog that came up.
struct SRun
{
    EWizard wizard = EWizard::Pulse;
    std::string name; ///< of the wizard, as the file has it
    int workArea = 30;
    int instruction = 282;
    unsigned controlCode = 0;
    std::optional<std::array<unsigned long long, 4>> permitted;
    std::vector<CDialogSteps> dialogs;
};

struct SSession
{
    std::string title;
    SPlc plc;
    int language = 0;
    std::string help;
    bool comments = true;
    std::vector<SRun> runs;
};

/// Both throw CSessionError.
SSession ParseSession(const std::string& json);
SSession LoadSession(const std::string& path);
