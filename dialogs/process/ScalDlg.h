// F282 SCAL, F283 DSCAL, F354 FSCAL: the operands of scaling and its table of reference points.
#pragma once

#include "dialogs/grid/GridDlg.h"

struct SScaling;

class CScalDlg : public CGridDlg
{
public:
    /// `kind` 0 = F282, 1 = F283, any other = F354. `permitted` holds the devices that are permitted for the input, the
    /// table and the output, in this order, and lives as long as the dialog; null permits all.
    CScalDlg(CFunWizard* wizard, const ULONGLONG* permitted, int kind, CWnd* parent);

    /// The instruction of a kind.
    static int InstructionOf(int kind);

    void DoFieldExchange(CWzdExchange* wx) override;

protected:
    int HelpTopic() const override;

private:
    const ULONGLONG* Permitted(int operand) const { return m_permitted != nullptr ? m_permitted + operand : nullptr; }
    /// For how many points there are registers behind the table's start, or behind the lowest one as long as none is
    /// entered.
    int MostPoints() const;
    /// The number of points as entered; 0 when it cannot be used.
    int Points(int most) const;

    const SScaling& m_scaling;
    const ULONGLONG* m_permitted;
};
