// The table and the clipboard.
#include "afx/Clipboard.h"
#include "core/FillText.h"
#include "dialogs/grid/GridView.h"

void CGridView::Paste()
{
    SGridLoss loss;
    Do([&] {
        CString text;
        if (AfxGetClipboardText(this, text))
            loss = m_model.Paste(text);
    });
    if (loss == SGridLoss())
        return;
    const int enough = WithMemory([&] {
        const CString message = FillText(IDS_GRID_NO_ROOM, {loss.rows, loss.columns});
        m_dialog.ShowWarningText(message);
    });
    if (!enough)
        m_dialog.ShowWarning(IDS_ERR_MEMORY);
}

void CGridView::CopyRow()
{
    Do([this] { AfxSetClipboardText(this, m_model.CopyRow()); });
}

void CGridView::CopyAll()
{
    Do([this] { AfxSetClipboardText(this, m_model.CopyAll()); });
}
