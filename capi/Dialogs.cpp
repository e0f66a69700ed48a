// The operations that open dialogs, through the C interface.
#include "capi/Handles.h"

#include <array>

namespace
{

/// `open` takes the wizard and the window above which the dialog is to open, and returns what the operation does.
template <typename TOpen>
int OpenDialog(PexloHandle handle, void* parent, TOpen open)
{
    return OnWizard(handle, [&](CFunWizard& wizard) -> int {
        if (!AfxHasScreen())
            return PEXLO_E_DESKTOP;
        return open(wizard, WindowOf(parent));
    });
}

/// The masks as the class takes them: of each the low 32 bits count.
template <size_t count>
class CPermitted
{
public:
    explicit CPermitted(const unsigned int* masks) : m_isGiven(masks != nullptr)
    {
        if (m_isGiven)
            std::copy(masks, masks + count, m_masks.begin());
    }

    ULONGLONG* Get() { return m_isGiven ? m_masks.data() : nullptr; }

private:
    std::array<ULONGLONG, count> m_masks = {};
    bool m_isGiven;
};

} // namespace

int PEXLO_CALL Pexlo_DoOpenPosDlg(PexloHandle handle, int mode, int axisFlag, void* parent)
{
    if (!Fits<unsigned char>(mode) || !Fits<unsigned char>(axisFlag))
        return OnWizard(handle, [](CFunWizard&) { return PEXLO_E_ARGUMENT; });
    return OpenDialog(handle, parent, [=](CFunWizard& wizard, CWnd* owner) {
        return wizard.DoOpenPosDlg(static_cast<unsigned char>(mode), static_cast<unsigned char>(axisFlag), owner);
    });
}

int PEXLO_CALL Pexlo_DoInputPosCtrlDlg(PexloHandle handle, unsigned int* code, void* parent)
{
    return OpenDialog(handle, parent, [=](CFunWizard& wizard, CWnd* owner) -> int {
        if (code == nullptr)
            return PEXLO_E_ARGUMENT;
        ULONG shown = *code;
        const int result = wizard.DoInputPosCtrlDlg(shown, owner);
        *code = static_cast<unsigned int>(shown);
        return result;
    });
}

int PEXLO_CALL Pexlo_DoOpenPIDDlg(PexloHandle handle, int workArea, void* parent)
{
    return OpenDialog(handle, parent,
                      [=](CFunWizard& wizard, CWnd* owner) { return wizard.DoOpenPIDDlg(workArea, owner); });
}

int PEXLO_CALL Pexlo_DoOpenSCRDlg(PexloHandle handle, const unsigned int* permitted, void* parent)
{
    return OpenDialog(handle, parent, [=](CFunWizard& wizard, CWnd* owner) {
        CPermitted<4> masks(permitted);
        return wizard.DoOpenSCRDlg(masks.Get(), owner);
    });
}

int PEXLO_CALL Pexlo_DoOpenSCALDlg(PexloHandle handle, const unsigned int* permitted, int kind, void* parent)
{
    return OpenDialog(handle, parent, [=](CFunWizard& wizard, CWnd* owner) {
        CPermitted<3> masks(permitted);
        return wizard.DoOpenSCALDlg(masks.Get(), kind, owner);
    });
}
