// Tells what fields a dialog has, without showing it.
#pragma once

#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/unseen/FormFiller.h"

class CGridField;

/// Numbers that are accepted.
struct SFieldNumbers
{
    SWzdRange range;
    std::string lowest; ///< as one types them
    std::string highest;
    int decimals;
};

/// An item of a list, or a column of a table.
struct SFieldItem
{
    DWORD code;
    std::string text;
    int limit = 0;
    std::optional<SFieldNumbers> numbers = {};
};

/// A field as it stands after the entries. Texts are in UTF-8.
struct SFieldDescription
{
    UINT control = 0;
    EFieldKind kind = kEditField;
    std::string name;
    std::string label;
    std::string text;
    bool enabled = false;
    int limit = 0;
    bool digitsOnly = false;
    int selected = 0;
    int mostRows = 0;
    std::vector<SFieldItem> items;
    std::optional<SFieldNumbers> numbers;
    UINT message = 0; ///< when the entry is outside the range
    UINT problem = 0; ///< the message with which the present entry would be refused
    SWzdEntry entry = {0, kOneRegister, 0};
    SWzdBits bits = {0, 0};
};

class CFormDescriber : public CFormFiller
{
public:
    using CFormFiller::CFormFiller;

    void BeRefused(UINT message, UINT control, int row, int column) override;

    const std::string& Caption() const { return m_caption; }
    const std::vector<SFieldDescription>& Fields() const { return m_fields; }

protected:
    /// OK is not pressed.
    void Finish(CWzdDialog& dialog) override;

private:
    void DescribeControls(CWzdDialog& dialog);
    void AddColumns(const CGridField& table);
    void AddDeclarations(CWzdDlgBase& dialog);
    SFieldDescription* FindField(UINT control);

    std::string m_caption;
    std::vector<SFieldDescription> m_fields;
};
