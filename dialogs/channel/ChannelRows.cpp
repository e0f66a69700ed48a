#include "dialogs/channel/ChannelRows.h"

void WDX_ChannelSpeed(CWzdExchange* wx, UINT edit, LONGLONG offset, UINT message)
{
    WDX_Number(wx,
               {.edit = edit, .entry = {offset, kTwoRegisters}, .limit = 6, .range = {1, 100000}, .message = message});
}

void WDX_ChannelTimes(CWzdExchange* wx, UINT acceleration, UINT deceleration, LONGLONG offset)
{
    constexpr SWzdRange kTimes = {0, 32767};
    WDX_Number(wx, {.edit = acceleration,
                    .entry = {offset, kTwoRegisters},
                    .limit = 5,
                    .range = kTimes,
                    .message = IDS_ERR_B_ACCELERATION_TIME});
    WDX_Number(wx, {.edit = deceleration,
                    .entry = {offset + 2, kTwoRegisters},
                    .limit = 5,
                    .range = kTimes,
                    .message = IDS_ERR_B_DECELERATION_TIME});
}

void WDX_CounterClear(CWzdExchange* wx, UINT edit, LONGLONG offset, UINT message)
{
    WDX_Number(wx, {.edit = edit, .entry = {offset, kTwoRegisters}, .limit = 3, .range = {0, 100}, .message = message});
}
