#include "host/SessionPlayer.h"

#include "afx/DialogRobot.h"
#include "afx/Screenshot.h"
#include "host/Ladder.h"
#include "host/ResultText.h"
#include "host/Utf8.h"
#include "host/WizardLists.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <ostream>
#include <utility>

namespace
{
std::string Quoted(const std::string& text) { return '"' + text + '"'; }

// The robot speaks as the dialogs do, in the code page of their language.
std::string Utf8(const CString& text) { return ToUtf8(text, AfxGetTextPage()); }
CString Narrow(const std::string& text) { return FromUtf8(text, AfxGetTextPage()); }

// What a step did, as the report tells it.
std::string Describe(const SStep& step)
{
    const std::string control = std::to_string(step.control);
    switch (step.verb)
    {
    case EVerb::Type:
        return "type " + Quoted(step.text) + " in " + control;
    case EVerb::Set:
        return "set " + Quoted(step.text) + " in " + control;
    case EVerb::SelectIndex:
        return "select " + std::to_string(step.number) + " in " + control;
    case EVerb::SelectText:
        return "select " + Quoted(step.text) + " in " + control;
    case EVerb::Check:
        return "check " + control;
    case EVerb::Uncheck:
        return "uncheck " + control;
    case EVerb::Click:
        return "click " + control;
    case EVerb::DoubleClick:
        return "double-click " + control;
    case EVerb::Focus:
        return "focus " + control;
    case EVerb::Press:
        return "press " + step.text;
    case EVerb::Paste:
        return "paste " + Quoted(step.text);
    case EVerb::Shot:
        return "shot " + step.text;
    }
    return {};
}

const char* ButtonName(UINT id)
{
    constexpr std::array kNames = {"closed", "OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};
    return id < kNames.size() ? kNames[id] : "?";
}

// A text as one line of the report.
std::string OneLine(std::string text)
{
    for (size_t i = 0; (i = text.find_first_of("\r\n\t", i)) != std::string::npos;)
        text.replace(i, 1, text[i] == '\n' ? "\\n" : text[i] == '\t' ? "\\t" : "");
    return text;
}

// A caption as part of a file name: "F168 (SPD1)" is f168-spd1.
std::string FileName(const std::string& text)
{
    std::string name;
    for (const unsigned char c : text)
    {
        if (std::isalnum(c))
            name += static_cast<char>(std::tolower(c));
        else if (!name.empty() && name.back() != '-')
            name += '-';
    }
    if (!name.empty() && name.back() == '-')
        name.pop_back();
    return name;
}
} // namespace

CSessionPlayer::CSessionPlayer(std::ostream& report, std::string shots, CSessionWatcher* watcher)
    : m_report(report), m_shots(std::move(shots)), m_watcher(watcher)
{
}

bool CSessionPlayer::Play(const SSession& session)
{
    m_success = true;
    m_axes = session.plc.axes;
    session.plc.Configure(m_wizard);
    m_wizard.SetLanguageInfo(session.language);
    m_wizard.SetHelpPath(session.help.c_str());
    m_wizard.SetCmtRec(session.comments ? 1 : 0);

    if (!session.title.empty())
        m_report << session.title << '\n';
    m_report << "PLC: " << session.plc.name << ", type " << session.plc.type << '\n';
    for (const SRun& run : session.runs)
        PlayRun(run);
    return m_success;
}

void CSessionPlayer::PlayRun(const SRun& run)
{
    m_report << "\nOpen: " << run.name << '\n';
    m_controlCode = run.controlCode;

    std::vector<CDialogRobot::Scene> scenes;
    for (const CDialogSteps& steps : run.dialogs)
        scenes.emplace_back([this, &steps](CDialogRobot& robot) { PlayDialog(robot, steps); });
    CDialogRobot robot;
    m_reportedBoxes = 0;
    const int result = robot.Play([&] { return Open(run); }, scenes);
    m_report << "Result: " << result << '\n';
    ReportFailures(robot, "");

    const bool fillsLists = run.wizard != EWizard::ControlCode;
    const int generated = fillsLists ? m_wizard.CreateInstCode() : 0;
    if (m_watcher != nullptr)
        m_watcher->SeeRun(m_wizard, result, m_controlCode);
    if (!fillsLists)
    {
        char code[9];
        std::snprintf(code, sizeof code, "%08X", static_cast<unsigned>(m_controlCode));
        m_report << "Control code: " << code << '\n';
        return;
    }
    const SResultLists lists = ReadLists(m_wizard);
    m_report << '\n' << ResultText(lists);
    m_report << "Ladder: " << (generated != 0 ? "complete" : "incomplete") << '\n'
             << CLadder::Of(lists.instructions).Text();
}

int CSessionPlayer::Open(const SRun& run)
{
    ULONGLONG permitted[4] = {};
    if (run.permitted)
        std::copy(run.permitted->begin(), run.permitted->end(), permitted);
    ULONGLONG* masks = run.permitted ? permitted : nullptr;

    const unsigned char axisFlag = m_axes == 2 ? 0 : 1;
    switch (run.wizard)
    {
    case EWizard::Pulse:
        return m_wizard.DoOpenPosDlg(0, axisFlag, nullptr);
    case EWizard::Unit:
        return m_wizard.DoOpenPosDlg(1, axisFlag, nullptr);
    case EWizard::Pid:
        return m_wizard.DoOpenPIDDlg(run.workArea, nullptr);
    case EWizard::Scaling:
        return m_wizard.DoOpenSCALDlg(masks, run.instruction == 282 ? 0 : run.instruction == 283 ? 1 : 2, nullptr);
    case EWizard::Screen:
        return m_wizard.DoOpenSCRDlg(masks, nullptr);
    case EWizard::ControlCode:
        return m_wizard.DoInputPosCtrlDlg(m_controlCode, nullptr);
    }
    return 0;
}

void CSessionPlayer::PlayDialog(CDialogRobot& robot, const CDialogSteps& steps)
{
    if (robot.IsMessageBox())
        m_report << "Message box " << Quoted(Utf8(robot.Caption())) << ": " << Quoted(OneLine(Utf8(robot.Text(0))))
                 << '\n';
    else
        m_report << "Dialog " << Quoted(Utf8(robot.Caption())) << '\n';

    if (m_watcher != nullptr)
        m_watcher->SeeDialog(robot);
    for (const SStep& step : steps)
    {
        if (&step == &steps.back())
        {
            m_captions[&step] = Utf8(robot.Caption());
            SaveShot(robot, step.shot.empty() ? m_captions[&step] : step.shot);
        }
        PlayStep(robot, step);
        if (m_watcher != nullptr)
            m_watcher->SeeDialog(robot);
    }
}

void CSessionPlayer::PlayStep(CDialogRobot& robot, const SStep& step)
{
    m_report << "  " << OneLine(Describe(step)) << '\n';
    if (step.answer)
        robot.Answering(*step.answer, [&] { Act(robot, step); });
    else
        Act(robot, step);

    // An edit need not take everything that is typed.
    if (step.verb == EVerb::Type && robot.IsOpen() && Utf8(robot.Text(step.control)) != step.text)
        m_report << "    it holds " << Quoted(OneLine(Utf8(robot.Text(step.control)))) << '\n';
    for (; m_reportedBoxes < robot.MessageBoxes().size(); ++m_reportedBoxes)
    {
        const SRobotMessageBox& box = robot.MessageBoxes()[m_reportedBoxes];
        m_report << "    message box " << Quoted(Utf8(box.caption)) << ": " << Quoted(OneLine(Utf8(box.text))) << ", "
                 << ButtonName(box.answer) << '\n';
    }
    ReportFailures(robot, " (" + step.where + ")");
}

void CSessionPlayer::Act(CDialogRobot& robot, const SStep& step)
{
    switch (step.verb)
    {
    case EVerb::Type:
        return robot.Type(step.control, Narrow(step.text));
    case EVerb::Set:
        return robot.SetText(step.control, Narrow(step.text));
    case EVerb::SelectIndex:
        return robot.Select(step.control, step.number);
    case EVerb::SelectText:
        robot.SelectText(step.control, Narrow(step.text));
        m_selectedItems[&step] = robot.Selection(step.control);
        return;
    case EVerb::Check:
        return robot.Check(step.control, true);
    case EVerb::Uncheck:
        return robot.Check(step.control, false);
    case EVerb::Click:
        return robot.Click(step.control);
    case EVerb::DoubleClick:
        return robot.DoubleClick(step.control);
    case EVerb::Focus:
        return robot.Focus(step.control);
    case EVerb::Press:
        return step.ctrl ? robot.PressKey(static_cast<UINT>(step.number), {VK_CONTROL})
                         : robot.PressKey(static_cast<UINT>(step.number));
    case EVerb::Paste:
        return robot.Paste(Narrow(step.text));
    case EVerb::Shot:
        return SaveShot(robot, step.text);
    }
}

void CSessionPlayer::SaveShot(CDialogRobot& robot, const std::string& name)
{
    if (m_shots.empty())
        return;
    char number[16];
    std::snprintf(number, sizeof number, "-%02d-", ++m_shotCount);
    const std::string path = m_shots + number + FileName(name) + ".png";
    AfxSaveScreenshot(robot.Dialog()->m_hWnd, path.c_str());
}

// Failures are told where they happen, once.
void CSessionPlayer::ReportFailures(CDialogRobot& robot, const std::string& where)
{
    for (const CString& failure : robot.Failures())
        m_report << "FAILED: " << OneLine(Utf8(failure)) << where << '\n';
    m_success = m_success && robot.Failures().empty();
    robot.ClearFailures();
}
