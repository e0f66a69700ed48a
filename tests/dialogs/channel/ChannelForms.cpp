#include "tests/dialogs/channel/ChannelForms.h"

#include "dialogs/channel/F177Dlg.h"
#include "dialogs/channel/PlshChDlg.h"
#include "dialogs/channel/PwmhChDlg.h"
#include "dialogs/channel/PwmhFrequencyDlg.h"
#include "dialogs/channel/SpdhChDlg.h"
#include "dialogs/pulse/PlshDlg.h"
#include "dialogs/pulse/SpdhDlg.h"
#include "dialogs/pulse/SpshDlg.h"

namespace
{

template <typename TDialog, auto... arguments>
std::unique_ptr<CWzdDlgBase> Make(CFunWizard* wizard)
{
    return std::make_unique<TDialog>(wizard, arguments..., nullptr);
}

// ---- Entries --------------------------------------------------------------------------------------------------------

SFormNumber Speed(UINT id, const char* comment, int offset, UINT message)
{
    return {id,
            comment,
            "Hz",
            "(1 - 100000)",
            6,
            offset,
            message,
            {{"1", 1}, {"100000", 100000}, {"5000", 5000}},
            {"0", "100001", "-1", "999999"}};
}

SFormNumber Time(UINT id, const char* comment, int offset, UINT message)
{
    return {id,
            comment,
            "ms",
            "(0 - 32767)",
            5,
            offset,
            message,
            {{"0", 0}, {"32767", 32767}, {"300", 300}},
            {"-1", "32768", "99999"}};
}

SFormNumber AnyTarget(UINT id, int offset)
{
    return {id,
            "Target value",
            "Pulse No.",
            "(-2147483648 - 2147483647)",
            11,
            offset,
            20007,
            {{"-2147483648", -2147483647 - 1}, {"2147483647", 2147483647}, {"-1234", -1234}},
            {"-2147483649", "2147483648", "99999999999"}};
}

SFormNumber CounterClear(UINT id, int offset, UINT message)
{
    return {id,
            "Deviation counter clear signal",
            "ms",
            "(0, 1 - 100)  0: Not using",
            3,
            offset,
            message,
            {{"0", 0}, {"100", 100}, {"50", 50}},
            {"-1", "101", "999"}};
}

SFormNumber Duty(int offset)
{
    return {2357,
            "Duty",
            "%",
            "0.0 - 99.9",
            4,
            offset,
            20009,
            {{"0", 0},
             {"99.9", 999},
             {"50.0", 500},
             {"5", 50},
             {".5", 5},
             {"50.", 500},
             {"1.50", 15},
             {"5.00", 50},
             {".500", 5},
             {"0.00", 0}},
            {}, // there is nothing that can be read and is outside
            kAnyTenths};
}

// ---- Lists ----------------------------------------------------------------------------------------------------------

const std::vector<SFormItem> kDutyItems = {{"Duty 1/2 (50%)", 0x0000}, {"Duty 1/4 (25%)", 0x1000}};

const std::vector<SFormItem> kMoveItems = {
    {"Incremental CW/CCW", 0x00},
    {"Incremental PLS+SIGN (forward off/reverse on)", 0x02},
    {"Incremental PLS+SIGN (forward on/reverse off)", 0x03},
    {"Absolute CW/CCW", 0x10},
    {"Absolute PLS+SIGN (forward off/reverse on)", 0x12},
    {"Absolute PLS+SIGN (forward on/reverse off)", 0x13},
};

const std::vector<SFormItem> kHomeItems = {
    {"Homing mode1  CW", 0x20},
    {"Homing mode1  CCW", 0x21},
    {"Homing mode1  Direction output off", 0x22},
    {"Homing mode1  Direction output on", 0x23},
    {"Homing mode1  CW + deviation counter reset", 0x24},
    {"Homing mode1  CCW + deviation counter reset", 0x25},
    {"Homing mode1  Direction output off + deviation counter reset", 0x26},
    {"Homing mode1  Direction output on + deviation counter reset", 0x27},
    {"Homing mode2  CW", 0x30},
    {"Homing mode2  CCW", 0x31},
    {"Homing mode2  Direction output off", 0x32},
    {"Homing mode2  Direction output on", 0x33},
    {"Homing mode2  CW + deviation counter reset", 0x34},
    {"Homing mode2  CCW + deviation counter reset", 0x35},
    {"Homing mode2  Direction output off + deviation counter reset", 0x36},
    {"Homing mode2  Direction output on + deviation counter reset", 0x37},
};

std::vector<int> CodesOf(const std::vector<SFormItem>& items)
{
    std::vector<int> codes;
    for (const SFormItem& item : items)
        codes.push_back(item.code);
    return codes;
}

/// Both forms are restored from the codes of either, by position.
SFormList SpdhMode(bool homeReturn, const char* label)
{
    return {.id = 2257,
            .label = label,
            .mask = 0xFF,
            .items = homeReturn ? kHomeItems : kMoveItems,
            .otherCodes = CodesOf(homeReturn ? kMoveItems : kHomeItems)};
}

// ---- F171 -----------------------------------------------------------------------------------------------------------

SPulseForm Spdh(bool homeReturn, int plcType)
{
    return {.name = nullptr,
            .instruction = 171,
            .heading = homeReturn ? "SPDH (171)\tPulse output (with channel specification) (Home position return)"
                                  : "SPDH (171)\tPulse output (with channel specification) (Trapezoidal control)",
            .make = nullptr,
            .start = 2251,
            .startLabel = 2252,
            .words = 0,
            .wordsBefore = 0,
            .width = 1,
            .codeFlag = 1,
            .output = kChannelOutput,
            .outputList = 2253,
            .outputLabel = "The channel for a pulse output",
            .plcType = plcType,
            .variant = homeReturn ? 1 : 0};
}

SPulseForm SpdhOfFamilyB(bool homeReturn)
{
    SPulseForm form = Spdh(homeReturn, kPlcFamilyB);
    form.name = homeReturn ? "SpdhHomeB" : "SpdhTrapezoidalB";
    form.make = homeReturn ? Make<CSpdhChDlg, true> : Make<CSpdhChDlg, false>;
    form.words = form.wordsBefore = homeReturn ? 14 : 12;
    form.lists = {{2255, "Duty (on width)", 0xF000, kDutyItems},
                  SpdhMode(homeReturn, homeReturn ? "Homing mode" : "Operation mode and output method")};
    form.numbers = {Speed(2261, "Initial speed", 2, 20004), Speed(2262, "Target speed", 4, 20024),
                    Time(2259, "Acceleration time", 6, 20046), Time(2266, "Deceleration time", 8, 20047)};
    if (homeReturn)
    {
        form.numbers.push_back(Speed(2063, "Creep speed", 10, 20048));
        form.numbers.push_back(CounterClear(2265, 12, 20051));
    }
    else
        form.numbers.push_back(AnyTarget(2260, 10));
    return form;
}

SPulseForm SpdhOfFamilyC(bool homeReturn)
{
    const auto speed = [](UINT id, const char* comment, int offset, UINT message) {
        return SFormNumber{id,
                           comment,
                           "Hz",
                           "(1 - 9800)",
                           6,
                           offset,
                           message,
                           {{"1", 1}, {"9800", 9800}, {"5000", 5000}},
                           {"0", "9801", "-1", "999999"}};
    };
    SPulseForm form = Spdh(homeReturn, kPlcFamilyC);
    form.name = homeReturn ? "SpdhHomeC" : "SpdhTrapezoidalC";
    form.make = homeReturn ? Make<CSpdhDlg, true, UINT{1069}> : Make<CSpdhDlg, false, UINT{1061}>;
    form.words = form.wordsBefore = homeReturn ? 10 : 12;
    form.lists = {{2254,
                   homeReturn ? "Acceleration/Deceleration steps" : "Number of acceleration/deceleration steps",
                   0xF0000,
                   {{"30 steps", 0x00000}, {"60 steps", 0x10000}}},
                  {2255, "Duty (on width)", 0xF000, kDutyItems},
                  {2256,
                   "Frequency range",
                   0xF00,
                   {{"1.5Hz to 9.8kHz", 0x000}, {"48Hz to 100kHz", 0x100}, {"191Hz to 100kHz", 0x200}}},
                  SpdhMode(homeReturn, "Operation mode and output method")};
    form.numbers = {speed(2261, "Initial speed", 2, 20004), speed(2262, "Maximum speed", 4, 20005),
                    SFormNumber{2259,
                                "Acceleration/deceleration time",
                                "ms",
                                "(30 - 32767)",
                                5,
                                6,
                                20006,
                                {{"30", 30}, {"32767", 32767}, {"300", 300}},
                                {"29", "32768", "0", "-1", "99999"}},
                    homeReturn ? CounterClear(2265, 8, 20010) : AnyTarget(2260, 8)};
    form.labels = {{2258, "(1 - 9800)"}, {2263, "(1 - 9800)"}, {2264, "(30 - 32767)"}};
    form.end = homeReturn ? 0 : 10;
    return form;
}

// ---- F172 -----------------------------------------------------------------------------------------------------------

SPulseForm PlshOfFamilyB(SPulseForm form, bool target)
{
    form.name = target ? "PlshTargetB" : "PlshNoTargetB";
    form.make = Make<CPlshChDlg>;
    form.plcType = kPlcFamilyB;
    form.words = target ? 12 : 10;
    form.wordsBefore = 10;
    std::erase_if(form.lists, [](const SFormList& list) { return list.id == 2306; }); // any frequency
    form.numbers = {Speed(2306, "Initial speed", 2, 20004), Speed(2308, "Target speed", 4, 20024),
                    Time(2309, "Acceleration time", 6, 20046), Time(2311, "Deceleration time", 8, 20047)};
    if (target)
        form.numbers.push_back(AnyTarget(2310, 10));
    form.labels.clear();
    return form;
}

SPulseForm PlshOfFamilyC(SPulseForm form, const char* name)
{
    form.name = name;
    form.make = Make<CPlshDlg, UINT{1070}>;
    form.plcType = kPlcFamilyC;
    std::erase_if(form.labels, [](const SLabelText& label) { return label.id > 2310; });
    return form;
}

// ---- F173 -----------------------------------------------------------------------------------------------------------

SPulseForm Pwmh()
{
    return {.name = nullptr,
            .instruction = 173,
            .heading = "PWMH (173)\tPWM output (with channel specification)",
            .make = nullptr,
            .start = 2351,
            .startLabel = 2352,
            .words = 0,
            .wordsBefore = 0,
            .width = 0,
            .codeFlag = 0,
            .output = kChannelOutput,
            .outputList = 2353,
            .outputLabel = "The channel for a PWM output"};
}

SPulseForm PwmhOfFamilyB()
{
    SPulseForm form = Pwmh();
    form.name = "PwmhB";
    form.make = Make<CPwmhChDlg>;
    form.plcType = kPlcFamilyB;
    form.words = form.wordsBefore = 2;
    form.lists = {{2354,
                   "Frequency setting",
                   0xFFFF,
                   {{"6.1 Hz (Timing 163.9 ms)", 3},
                    {"8.1 Hz (Timing 122.9 ms)", 4},
                    {"9.8 Hz (Timing 102.4 ms)", 5},
                    {"19.5 Hz (Timing 51.2 ms)", 6},
                    {"48.8 Hz (Timing 20.5 ms)", 7},
                    {"97.7 Hz (Timing 10.2 ms)", 8},
                    {"201.6 Hz (Timing 5.0 ms)", 9},
                    {"403.2 Hz (Timing 2.5 ms)", 10},
                    {"500.0 Hz (Timing 2.0 ms)", 11},
                    {"694.4 Hz (Timing 1.4 ms)", 12},
                    {"1.0 kHz (Timing 1.0 ms)", 13},
                    {"1.3 kHz (Timing 0.8 ms)", 14},
                    {"1.6 kHz (Timing 0.6 ms)", 15},
                    {"2.1 kHz (Timing 0.5 ms)", 16},
                    {"3.1 kHz (Timing 0.3 ms)", 17},
                    {"6.3 kHz (Timing 0.2 ms)", 18}}}};
    form.numbers = {Duty(1)};
    form.labels = {{2358, "0.0 - 99.9"}};
    return form;
}

SPulseForm PwmhOfFamilyC()
{
    SPulseForm form = Pwmh();
    form.name = "PwmhC";
    form.make = Make<CPwmhFrequencyDlg>;
    form.plcType = kPlcFamilyC;
    form.words = form.wordsBefore = 3;
    form.width = 1;
    form.hasCode = false;
    form.numbers = {Speed(2354, "Frequency", 0, 20008), Duty(2)};
    form.numbers[1].oneRegister = true;
    form.labels = {{2355, "(1 - 100000)"}, {2356, "0.0 - 99.9"}};
    return form;
}

// ---- F175 -----------------------------------------------------------------------------------------------------------

/// The labels of the results have no ids, and so show what the template says.
SPulseForm SpshOfFamilyC(SPulseForm form)
{
    static const char* const names[] = {"SpshChannelC", "SpshFirstAxesC", "SpshPlainAxesC"};
    form.name = names[form.displayType];
    form.make = Make<CSpshDlg, UINT{1073}>;
    form.plcType = kPlcFamilyC;
    std::erase_if(form.labels, [](const SLabelText& label) { return label.id > 2477; });
    return form;
}

SPulseForm SpshOfFamilyB(const SPulseForm& familyA)
{
    static const char* const names[] = {"SpshChannelB", "SpshFirstAxesB", "SpshPlainAxesB"};
    SPulseForm form = SpshOfFamilyC(familyA);
    form.name = names[form.displayType];
    form.make = Make<CSpshDlg, UINT{1065}>;
    form.plcType = kPlcFamilyB;
    form.words = form.wordsBefore = 26;
    SFormNumber& maximum = form.numbers[1];
    maximum.comment = "Composite speed Target speed";
    maximum.message = 20024;
    form.numbers[2] = Time(2455, "Acceleration time", 6, 20046);
    form.numbers.insert(form.numbers.begin() + 3, Time(2457, "Deceleration time", 8, 20047));
    form.numbers[4].offset = 10;
    form.numbers[5].offset = 12;
    for (SLabelText& label : form.labels)
        if (label.id == 2472)
            label.text = "Target speed";
        else if (label.id == 2473)
            label.text = "Acceleration time";
    return form;
}

// ---- F177 -----------------------------------------------------------------------------------------------------------

SPulseForm F177()
{
    return {.name = "F177",
            .instruction = 177,
            .heading = "F177 (177)\tPulse output (with channel specification) (Home position return)",
            .make = Make<CF177Dlg>,
            .start = 2551,
            .startLabel = 2552,
            .words = 12,
            .wordsBefore = 12,
            .width = 1,
            .codeFlag = 1,
            .output = kChannelOutput,
            .outputList = 2553,
            .outputLabel = "The channel for a pulse output",
            .lists = {{2554, "Homing mode", 0xFF, kHomeItems}},
            .numbers = {Speed(2555, "Target speed", 2, 20024), Time(2556, "Acceleration time", 4, 20046),
                        Time(2557, "Deceleration time", 6, 20047), Speed(2558, "Creep speed", 8, 20049),
                        CounterClear(2559, 10, 20050)},
            .labels = {},
            .plcType = kPlcFamilyB};
}

} // namespace

std::vector<SPulseForm> ChannelForms(const std::vector<SPulseForm>& familyA)
{
    std::vector<SPulseForm> forms = {SpdhOfFamilyB(false), SpdhOfFamilyB(true), PwmhOfFamilyB(), F177(),
                                     SpdhOfFamilyC(false), SpdhOfFamilyC(true), PwmhOfFamilyC()};
    for (const SPulseForm& form : familyA)
        if (form.instruction == 172)
        {
            const bool target = form.numbers.size() > 1;
            forms.push_back(PlshOfFamilyB(form, target));
            forms.push_back(PlshOfFamilyC(form, target ? "PlshTargetC" : "PlshNoTargetC"));
        }
        else if (form.instruction == 175)
        {
            forms.push_back(SpshOfFamilyB(form));
            forms.push_back(SpshOfFamilyC(form));
        }
    return forms;
}
