// An instruction dialog with a table. It says which controls the table has, and declares it by a row such as WDX_Steps.
#pragma once

#include "dialogs/grid/GridView.h"

class CGridDlg : public CWzdDlgBase
{
public:
    /// `controls` and what it names live as long as the dialog.
    CGridDlg(CFunWizard* wizard, UINT templateId, const SGridControls& controls, CWnd* parent)
        : CWzdDlgBase(wizard, templateId, parent), m_grid(*this, controls)
    {
    }

    CGridView& Grid() { return m_grid; }
    const CGridView& Grid() const { return m_grid; }

    CGridView* Table() override { return &m_grid; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    [[nodiscard]] bool Confirm() override;

    void OnEditLeft(UINT id);
    void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    void OnPaste() { m_grid.Paste(); }
    void OnCopyLine() { m_grid.CopyRow(); }
    void OnCopyAll() { m_grid.CopyAll(); }
    void OnInsertLine() { m_grid.InsertRow(); }
    void OnDeleteLine() { m_grid.DeleteRow(); }

    DECLARE_MESSAGE_MAP()

private:
    CGridView m_grid;
};
