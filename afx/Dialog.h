// CDialog: a window made from a dialog template, modal or not. Its controls stay the system's own.
#pragma once

#include "afx/Window.h"

class AFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

    /// Names the template of a modal dialog, looked for in the current resource library when DoModal is called. A null
    /// parent means the thread's active window.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    /// `templateName` is not copied.
    explicit CDialog(LPCSTR templateName, CWnd* parent = nullptr);
    /// To be followed by InitModalIndirect or one of the Create operations.
    CDialog() = default;

    /// Gives a template in memory, which must outlive DoModal.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr);
    /// Opens the dialog, disables its owner while it is open, and returns what EndDialog was given; -1 when the
    /// template is not found or the dialog cannot be created, when OnInitDialog throws, and when the dialog is
    /// destroyed from outside.
    virtual INT_PTR DoModal();

    // A dialog that is not modal. It is shown when its style says so, and closed by DestroyWindow.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    BOOL Create(LPCSTR templateName, CWnd* parent = nullptr);
    BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr);

    /// Closes a modal dialog as soon as the running handler returns; hides any other. Called in OnInitDialog, the
    /// dialog is never shown.
    void EndDialog(int result);

    /// Moves the focus as the Tab key does.
    void GotoDlgCtrl(CWnd* control) { SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), TRUE); }
    /// Turns dialog units into pixels.
    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    DECLARE_MESSAGE_MAP()

    /// The controls exist and nothing is shown yet. FALSE when it has set the focus itself.
    virtual BOOL OnInitDialog() { return TRUE; }
    /// Enter, or a click on IDOK. The base ends the dialog with IDOK.
    virtual void OnOK();
    /// Esc, the close box, or a click on IDCANCEL. The base ends the dialog with IDCANCEL.
    virtual void OnCancel();

private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    BOOL CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE instance);
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    LPCSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr; // given by InitModalIndirect, or being created
    CWnd* m_pParentWnd = nullptr;
};
