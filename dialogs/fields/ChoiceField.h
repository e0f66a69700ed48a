// A combo box that lists the choices of a row in order, so that the position in the list is the position of the choice.
#pragma once

#include "dialogs/base/WzdField.h"

#include <optional>

class CChoiceField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override;
    void OnChanged(UINT id) override;
    void Clear() override;

protected:
    /// Where the choice that the wizard's lists hold stands; any number that is no position when they hold none.
    virtual int StoredIndex() const = 0;

    std::optional<DWORD> SelectedCode() const;

private:
    void Refill();
};

/// A choice whose code is a constant among the operands.
class CConstantChoiceField : public CChoiceField
{
public:
    using CChoiceField::CChoiceField;

    bool Collect(CWzdResults& results) override;

protected:
    int StoredIndex() const override;
};
