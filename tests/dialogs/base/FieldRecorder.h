// Turns the declaration of a dialog's fields back into a table.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

#include <vector>

class CFieldRecorder : public CWzdExchange
{
public:
    explicit CFieldRecorder(CWzdDlgBase& dialog) : CWzdExchange(dialog) {}

    std::vector<SWzdFieldInfo> m_fields;

protected:
    bool Visit(CWzdField& field) override
    {
        m_fields.push_back(field.Describe());
        return true;
    }
};

/// The fields that a dialog declares in its present state.
inline std::vector<SWzdFieldInfo> RecordFields(CWzdDlgBase& dialog)
{
    CFieldRecorder recorder(dialog);
    dialog.DoFieldExchange(&recorder);
    return recorder.m_fields;
}
