#include "dialogs/pulse/DutyFormat.h"

#include "core/Values.h"

bool WzdReadDutyInTenths(const SWzdFormat& format, LPCSTR text, LONGLONG& value)
{
    CString duty = Trimmed(text);
    const int point = duty.Find('.');
    if (point >= 0)
    {
        const int length = duty.GetLength();
        duty.TrimRight('0');
        if (duty.GetLength() < length)
            duty += '0';
        if (duty.GetLength() - (point + 1) > format.decimals)
            return false;
    }
    return ParseFixed(duty, format.whole, format.decimals, value);
}

bool WzdReadWholeDuty(const SWzdFormat&, LPCSTR text, LONGLONG& value)
{
    CString duty = Trimmed(text);
    if (const int point = duty.Find('.'); point >= 0)
    {
        const int length = duty.GetLength();
        duty.TrimRight('0');
        const bool isWhole = duty.GetLength() == point + 1 && length > duty.GetLength();
        if (!isWhole)
            return false;
        duty = duty.Left(point);
        if (duty != Trimmed(duty))
            return false;
    }
    constexpr LONGLONG kPercent = 10;
    LONGLONG percents;
    if (!kUnsigned.Parse(duty, percents))
        return false;
    value = std::min(percents, LLONG_MAX / kPercent) * kPercent;
    return true;
}
