// Turns the declaration of a dialog's fields back into a table.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

#include <vector>

/// A row as the dialog declared it, with choices of its own: those of the declaration may live no longer than that.
struct SDeclaredField : SWzdRow
{
    explicit SDeclaredField(const SWzdRow& row) : SWzdRow(row), items(row.choices.begin(), row.choices.end()) {}

    bool IsEntry() const { return entry.count > 0; }

    std::vector<SWzdChoice> items;
};

class CFieldRecorder : public CWzdExchange
{
public:
    explicit CFieldRecorder(CWzdDlgBase& dialog) : CWzdExchange(dialog) {}

    std::vector<SDeclaredField> m_fields;

protected:
    bool Visit(CWzdField& field) override
    {
        m_fields.emplace_back(field.Describe());
        return true;
    }
};

/// The fields that count in the present state of a dialog.
inline std::vector<SDeclaredField> RecordFields(CWzdDlgBase& dialog)
{
    CFieldRecorder recorder(dialog);
    dialog.DoFieldExchange(&recorder);
    return recorder.m_fields;
}
