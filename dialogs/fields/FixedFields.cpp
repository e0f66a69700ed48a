// Contacts and operands that are always the same.
#include "core/Devices.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CFixedContactField : public CWzdField
{
public:
    CFixedContactField(CWzdDlgBase& dialog, const SWzdRow& row, short code, int number)
        : CWzdField(dialog, row), m_code(code), m_number(number)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        results.KeepContacts();
        results.AddContact(kInstContact, m_code, m_number);
        return true;
    }

private:
    short m_code;
    int m_number;
};

class CConstantOperandField : public CWzdField
{
public:
    CConstantOperandField(CWzdDlgBase& dialog, const SWzdRow& row, int value) : CWzdField(dialog, row), m_value(value)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        results.SetOperand(m_row.position, kDeviceK, m_value);
        return true;
    }

private:
    int m_value;
};

} // namespace

void WDX_FixedContact(CWzdExchange* wx, short code, int number)
{
    WzdDeclare<CFixedContactField>(wx, {}, code, number);
}

void WDX_ConstantOperand(CWzdExchange* wx, int position, int value)
{
    WzdDeclare<CConstantOperandField>(wx, {.position = position}, value);
}
