// Plays a recorded session in the library's own dialogs and reports what came of it.
#pragma once

#include "core/FunWizard.h"
#include "host/Session.h"

#include <iosfwd>
#include <map>
#include <string>

class CDialogRobot;

/// Looks on while a session is played.
class CSessionWatcher
{
public:
    virtual ~CSessionWatcher() = default;
    /// A dialog has come up, or a step has been played in it; that may have ended it.
    virtual void SeeDialog(CDialogRobot& robot) = 0;
    /// A run has ended with this result; the wizard's lists are complete.
    virtual void SeeRun(const CFunWizard& wizard, int result, ULONG controlCode) = 0;
};

class CSessionPlayer
{
public:
    /// The report goes to `report`. Unless `shots` is empty, a picture of each dialog is saved just before the step
    /// that closes it, and wherever the session asks for one; `shots` is what the paths of the files start with.
    /// Pictures need windows on a screen.
    CSessionPlayer(std::ostream& report, std::string shots, CSessionWatcher* watcher = nullptr);

    /// Plays every run on one wizard object. False when the dialogs did not do as the session said; the reasons are in
    /// the report.
    bool Play(const SSession& session);

    /// What the steps that were played did: the place in its list of an item selected by its text, and the caption of
    /// the dialog that a last step has closed.
    const std::map<const SStep*, int>& SelectedItems() const { return m_selectedItems; }
    const std::map<const SStep*, std::string>& Captions() const { return m_captions; }

private:
    void PlayRun(const SRun& run);
    void PlayDialog(CDialogRobot& robot, const CDialogSteps& steps);
    void PlayStep(CDialogRobot& robot, const SStep& step);
    void Act(CDialogRobot& robot, const SStep& step);
    void SaveShot(CDialogRobot& robot, const std::string& name);
    int Open(const SRun& run);
    void ReportFailures(CDialogRobot& robot, const std::string& where);

    std::ostream& m_report;
    std::string m_shots;
    CSessionWatcher* m_watcher;
    int m_shotCount = 0;
    std::map<const SStep*, int> m_selectedItems;
    std::map<const SStep*, std::string> m_captions;
    size_t m_reportedBoxes = 0;
    bool m_success = true;
    CFunWizard m_wizard;
    int m_axes = 4;
    ULONG m_controlCode = 0;
};
