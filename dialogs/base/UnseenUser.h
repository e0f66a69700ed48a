// Dialogs that nobody sees. They are made as ever and check as ever, but are never shown: a program works in them in
// the place of a user, and is told what he would have been.
#pragma once

#include "afx/afx.h"

#include <optional>

class CGridView;
class CPosSelectDlg;
class CWzdDialog;

class CUnseenUser
{
public:
    virtual ~CUnseenUser() = default;

    /// Chooses in the selection dialog, which is not made. False leaves it as by Cancel.
    [[nodiscard]] virtual bool Choose(CPosSelectDlg& selection) = 0;
    /// Works in a dialog that has opened. It is closed afterwards, as by Cancel unless OK has been accepted.
    virtual void Work(CWzdDialog& dialog) = 0;
    /// Whether what a dialog accepts is stored in the wizard object.
    virtual bool Stores() const { return true; }
    /// The dialog refuses what `control` holds; 0 when it is no control's fault. Rows and columns count from 1, and are
    /// 0 outside of a table.
    virtual void BeRefused(UINT message, UINT control, int row, int column) = 0;

    /// The user of the dialogs that the calling thread opens; null for the one at the screen.
    static CUnseenUser* Current();
};

/// While it lives, the dialogs of the calling thread are unseen.
class CUnseenScope
{
public:
    explicit CUnseenScope(CUnseenUser& user);
    ~CUnseenScope();

    CUnseenScope(const CUnseenScope&) = delete;
    CUnseenScope& operator=(const CUnseenScope&) = delete;

private:
    CUnseenUser* m_outer;
};
