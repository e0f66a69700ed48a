// The dialog templates as the interface demands them: every control in tab order, with its English text. Written down
// apart from the resource scripts, by number.
#pragma once

#include "tests/resources/ExpectedChannel.h"
#include "tests/resources/ExpectedProcess.h"
#include "tests/resources/ExpectedPulse.h"
#include "tests/resources/ExpectedUnit.h"

inline SExpectedTemplate ExpectedSelect()
{
    return {1001,
            "Positioning processing selection",
            {
                {3002, EControl::Static, "Instruction &list"},
                {2001, EControl::ListBox, ""},
                {kNoId, EControl::Static, "&Explain"},
                {2002, EControl::Edit, ""},
                {3001, EControl::CheckBox, "I/O comment is registered automatically."},
                {1, EControl::DefaultButton, "&OK"},
                {2, EControl::PushButton, "&Cancel"},
                {2003, EControl::PushButton, "&Help"},
            },
            {}};
}

/// Every template that is tested; a template that stands in a script and not here fails a test.
inline std::vector<SExpectedTemplate> ExpectedTemplates()
{
    std::vector<SExpectedTemplate> all = {ExpectedSelect(),
                                          ExpectedSpd1Trapezoidal(),
                                          ExpectedSpd1Home(),
                                          ExpectedPls(),
                                          ExpectedPwm(),
                                          ExpectedSpdhTrapezoidal(),
                                          ExpectedSpdhHome(),
                                          ExpectedPlsh(),
                                          ExpectedPwmh(),
                                          ExpectedSp0h(),
                                          ExpectedSpsh(),
                                          ExpectedSpch(),
                                          ExpectedScaling(),
                                          ExpectedPid(),
                                          ExpectedScreenDisplay(),
                                          ExpectedEPoint(),
                                          ExpectedPPoint(),
                                          ExpectedJog(),
                                          ExpectedJogSpeedChange(),
                                          ExpectedHomeReturn(),
                                          ExpectedPulsar(),
                                          ExpectedControlCode(),
                                          ExpectedControlCodeHex()};
    const std::vector<SExpectedTemplate> channel = ExpectedChannelTemplates();
    all.insert(all.end(), channel.begin(), channel.end());
    return all;
}
