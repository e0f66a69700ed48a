// Filling the list of a combo box.
#pragma once

#include "afx/afx.h"

/// Empties a list, which is not drawn while the object lives: neither item by item nor when there was nothing to
/// empty. What is selected afterwards shows the outcome.
class CListFilling
{
public:
    explicit CListFilling(CComboBox* list) : m_list(list)
    {
        m_list->SetRedraw(FALSE);
        if (m_list->GetCount() > 0)
            m_list->ResetContent();
    }
    ~CListFilling() { m_list->SetRedraw(TRUE); }

    CListFilling(const CListFilling&) = delete;
    CListFilling& operator=(const CListFilling&) = delete;

private:
    CComboBox* m_list;
};
