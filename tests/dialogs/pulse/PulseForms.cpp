#include "tests/dialogs/pulse/PulseForms.h"

#include "dialogs/pulse/PlsDlg.h"
#include "dialogs/pulse/PlshDlg.h"
#include "dialogs/pulse/PwmDlg.h"
#include "dialogs/pulse/PwmhDlg.h"
#include "dialogs/pulse/SpchDlg.h"
#include "dialogs/pulse/SpshDlg.h"

#include "tests/dialogs/channel/ChannelForms.h"

#include <algorithm>
#include <stdexcept>

namespace
{

template <typename TDialog>
std::unique_ptr<CWzdDlgBase> Make(CFunWizard* wizard)
{
    return std::make_unique<TDialog>(wizard, nullptr);
}

const std::vector<SFormItem> kDutyItems = {{"Duty 1/2 (50%)", 0x0000}, {"Duty 1/4 (25%)", 0x1000}};
const std::vector<SFormItem> kMoveItems = {
    {"Incremental CW/CCW", 0x00},
    {"Incremental PLS+SIGN (forward off/reverse on)", 0x02},
    {"Incremental PLS+SIGN (forward on/reverse off)", 0x03},
    {"Absolute CW/CCW", 0x10},
    {"Absolute PLS+SIGN (forward off/reverse on)", 0x12},
    {"Absolute PLS+SIGN (forward on/reverse off)", 0x13},
};
const std::vector<SFormEntry> kPositions = {{"-8388608", -8388608}, {"8388607", 8388607}, {"-1234", -1234}};
const std::vector<const char*> kNoPositions = {"-8388609", "8388608", "99999999"};

SPulseForm Pls()
{
    return {.name = "Pls",
            .instruction = 169,
            .heading = "PLS (169)\tPulse output (with channel specification) (JOG operation)",
            .make = Make<CPlsDlg>,
            .start = 2151,
            .startLabel = 2152,
            .words = 2,
            .wordsBefore = 2,
            .width = 0,
            .codeFlag = 1,
            .output = kBuiltInOutput,
            .outputList = 2153,
            .outputLabel = "Candidate for a pulse output",
            .lists = {{2154,
                       "Pulse width specification",
                       0xF00,
                       {{"Fixed pulse width (approx80us)", 0x000},
                        {"Duty ration approx10%", 0x100},
                        {"Duty ration approx20%", 0x200},
                        {"Duty ration approx30%", 0x300},
                        {"Duty ration approx40%", 0x400},
                        {"Duty ration approx50%", 0x500},
                        {"Duty ration approx60%", 0x600},
                        {"Duty ration approx70%", 0x700},
                        {"Duty ration approx80%", 0x800},
                        {"Duty ration approx90%", 0x900}}},
                      {2155,
                       "Operation mode and directional output",
                       0xFF,
                       {{"No counting mode", 0x00},
                        {"Incremental counting with no directional output", 0x10},
                        {"Incremental counting with directional output off", 0x12},
                        {"Incremental counting with directional output on", 0x13},
                        {"Decremental counting with no directional output", 0x20},
                        {"Decremental counting with directional output on", 0x22},
                        {"Decremental counting with directional output off", 0x23}}}},
            .numbers = {{2156,
                         "Frequency",
                         "Hz",
                         "(40 - 10000)",
                         5,
                         1,
                         20008,
                         {{"40", 40}, {"10000", 10000}, {"500", 500}},
                         {"39", "10001", "0", "-40", "99999"}}},
            .labels = {}};
}

SPulseForm Pwm()
{
    return {.name = "Pwm",
            .instruction = 170,
            .heading = "PWM (170)\tPWM output (with channel specification)",
            .make = Make<CPwmDlg>,
            .start = 2201,
            .startLabel = 2202,
            .words = 2,
            .wordsBefore = 2,
            .width = 0,
            .codeFlag = 1,
            .output = kBuiltInOutput,
            .outputList = 2203,
            .outputLabel = "Candidate for a PWM output",
            .lists = {{2204,
                       "Frequency settings",
                       0xFFFF,
                       {{"Frequency 1 kHz (Cycle 1.0 ms)", 0x11},
                        {"Frequency 714 Hz (Cycle 1.25 ms)", 0x12},
                        {"Frequency 500 Hz (Cycle 2.0 ms)", 0x13},
                        {"Frequency 400 Hz (Cycle 2.5 ms)", 0x14},
                        {"Frequency 200 Hz (Cycle 5.0 ms)", 0x15},
                        {"Frequency 100 Hz (Cycle 10 ms)", 0x16},
                        {"Frequency 38 Hz (Cycle 26 ms)", 0x00},
                        {"Frequency 19 Hz (Cycle 52 ms)", 0x01},
                        {"Frequency 9.5 Hz (Cycle 105 ms)", 0x02},
                        {"Frequency 4.8 Hz (Cycle 210 ms)", 0x03},
                        {"Frequency 2.4 Hz (Cycle 420 ms)", 0x04},
                        {"Frequency 1.2 Hz (Cycle 840 ms)", 0x05},
                        {"Frequency 0.6 Hz (Cycle 1.6 s)", 0x06},
                        {"Frequency 0.3 Hz (Cycle 3.4 s)", 0x07},
                        {"Frequency 0.15 Hz (Cycle 6.7 s)", 0x08}}}},
            .numbers = {{2205,
                         "Duty",
                         "%",
                         "(0.1 - 99.9)",
                         4,
                         1,
                         20009,
                         {{"0.1", 1}, {"99.9", 999}, {"50.0", 500}, {"50", 500}, {"7.", 70}, {".5", 5}, {"1", 10}},
                         {"0", "0.0", "00.0"},
                         kTenths}},
            .labels = {}};
}

SPulseForm Plsh(bool target)
{
    SPulseForm form = {.name = target ? "PlshTarget" : "PlshNoTarget",
                       .instruction = 172,
                       .heading = "PLSH (172)\tPulse output (with channel specification) (JOG operation)",
                       .make = Make<CPlshDlg>,
                       .start = 2301,
                       .startLabel = 2302,
                       .words = target ? 6 : 4,
                       .wordsBefore = 4,
                       .width = 1,
                       .codeFlag = 1,
                       .output = kChannelOutput,
                       .outputList = 2303,
                       .outputLabel = "The channel for a pulse output",
                       .lists = {{2304,
                                  "Target value setting",
                                  0xF0000,
                                  {{"Mode with no target value", 0x00000}, {"Target value match stop mode", 0x10000}},
                                  target ? 1 : 0},
                                 {2305, "Duty (on width)", 0xF000, kDutyItems},
                                 {2306,
                                  "Frequency range",
                                  0xF00,
                                  {{"1.5Hz to 9.8kHz", 0x000}, {"48Hz to 100kHz", 0x100}, {"191Hz to 100kHz", 0x200}}},
                                 {2307,
                                  "Output method",
                                  0xFF,
                                  {{"No counting  CW", 0x00},
                                   {"No counting  CCW", 0x01},
                                   {"Addition counting  CW", 0x10},
                                   {"Addition counting  Directional output off", 0x12},
                                   {"Addition counting  Directional output on", 0x13},
                                   {"Subtraction counting  CCW", 0x21},
                                   {"Subtraction counting  Directional output off", 0x22},
                                   {"Subtraction counting  Directional output on", 0x23}}}},
                       .numbers = {{2308,
                                    "Frequency",
                                    "Hz",
                                    "(1 - 9800)",
                                    6,
                                    2,
                                    20008,
                                    {{"1", 1}, {"9800", 9800}, {"5000", 5000}},
                                    {"0", "9801", "-1", "999999"}}},
                       .labels = {{2309, "(1 - 9800)"}, {2311, "(-2147483648 - 2147483647)"}}};
    if (target)
        form.numbers.push_back({2310,
                                "Target value",
                                "Pulse No.",
                                "(-2147483648 - 2147483647)",
                                11,
                                4,
                                20007,
                                {{"-2147483648", -2147483647 - 1}, {"2147483647", 2147483647}, {"-1234", -1234}},
                                {"-2147483649", "2147483648", "99999999999"}});
    return form;
}

SPulseForm Pwmh(int resolution)
{
    const bool fine = resolution == 1000;
    const std::vector<SFormItem> fineItems = {
        {"1.5 Hz (Timing 666.7 ms)", 0},  {"2.0 Hz (Timing 502.5 ms)", 1},  {"4.1 Hz (Timing 245.7 ms)", 2},
        {"6.1 Hz (Timing 163.9 ms)", 3},  {"8.1 Hz (Timing 122.9 ms)", 4},  {"9.8 Hz (Timing 102.4 ms)", 5},
        {"19.5 Hz (Timing 51.2 ms)", 6},  {"48.8 Hz (Timing 20.5 ms)", 7},  {"97.7 Hz (Timing 10.2 ms)", 8},
        {"201.6 Hz (Timing 5.0 ms)", 9},  {"403.2 Hz (Timing 2.5 ms)", 10}, {"500.0 Hz (Timing 2.0 ms)", 11},
        {"694.4 Hz (Timing 1.4 ms)", 12}, {"1.0 kHz (Timing 1.0 ms)", 13},  {"1.3 kHz (Timing 0.8 ms)", 14},
        {"1.6 kHz (Timing 0.6 ms)", 15},  {"2.1 kHz (Timing 0.5 ms)", 16},  {"3.1 kHz (Timing 0.3 ms)", 17},
        {"6.3 kHz (Timing 0.2 ms)", 18},  {"12.5 kHz (Timing 0.1 ms)", 19}};
    const std::vector<SFormItem> coarseItems = {{"15.6 kHz (Timing 0.06 ms)", 20},
                                                {"20.8 kHz (Timing 0.05 ms)", 21},
                                                {"25.0 kHz (Timing 0.04 ms)", 22},
                                                {"31.3 kHz (Timing 0.03 ms)", 23},
                                                {"41.7 kHz (Timing 0.02 ms)", 24}};
    const SFormNumber fineDuty = {
        2357, "Duty", "%",   "0.0 - 99.9",
        4,    1,      20009, {{"0", 0}, {"99.9", 999}, {"50.0", 500}, {"50", 500}, {"7.", 70}, {".5", 5}},
        {},   kTenths};
    const SFormNumber coarseDuty = {
        2357, "Duty", "%", "(0 - 99)", 2, 1, 20009, {{"0", 0}, {"99", 990}, {"50", 500}, {"7", 70}}, {"100"}, kWhole};
    return {.name = fine ? "Pwmh1000" : "Pwmh100",
            .instruction = 173,
            .heading = "PWMH (173)\tPWM output (with channel specification)",
            .make = Make<CPwmhDlg>,
            .start = 2351,
            .startLabel = 2352,
            .words = 2,
            .wordsBefore = 2,
            .width = 0,
            .codeFlag = 0,
            .output = kChannelOutput,
            .outputList = 2353,
            .outputLabel = "The channel for a PWM output",
            .radio = UINT(fine ? 2355 : 2356),
            .lists = {{2354, nullptr, 0xFFFF, fine ? fineItems : coarseItems}},
            .numbers = {fine ? fineDuty : coarseDuty},
            .labels = {
                {2358, fine ? "0.0 - 99.9" : "(0 - 99)"}, {2355, "Resolution of 1000"}, {2356, "Resolution of 100"}}};
}

SPulseForm Spsh(int displayType)
{
    static const char* const names[] = {"SpshChannel", "SpshFirstAxes", "SpshPlainAxes"};
    static const char* const xTexts[] = {"X-axis (CH0)", "X-axis (CH0)", "X-axis"};
    static const char* const yTexts[] = {"Y-axis (CH1)", "Y-axis (CH1)", "Y-axis"};
    static const char* const xComments[] = {"Target value X-axis (CH0)", "Target value X-axis (CH0)",
                                            "Target value X-axis"};
    static const char* const yComments[] = {"Target value Y-axis (CH1)", "Target value Y-axis (CH1)",
                                            "Target value Y-axis"};
    static const char* const speedTexts[] = {"(1 - 100000)", "(1 - 100000)", "(1 - 20000)"};
    const char* const x = xTexts[displayType];
    const char* const y = yTexts[displayType];
    const std::vector<SFormEntry> chosenSpeeds = {{"1", 1}, {"100000", 100000}, {"5000", 5000}};
    const std::vector<SFormEntry> fixedSpeeds = {{"1", 1}, {"20000", 20000}, {"5000", 5000}};
    const std::vector<const char*> noChosenSpeeds = {"0", "100001", "-1", "999999"};
    const std::vector<const char*> noFixedSpeeds = {"0", "20001", "100000", "-1"};
    const auto& speeds = displayType == 0 ? chosenSpeeds : fixedSpeeds;
    const auto& noSpeeds = displayType == 0 ? noChosenSpeeds : noFixedSpeeds;
    return {.name = names[displayType],
            .instruction = 175,
            .heading = "SPSH (175)\tPulse output (Linear interporation)",
            .make = Make<CSpshDlg>,
            .start = 2451,
            .startLabel = 2452,
            .words = 24,
            .wordsBefore = 24,
            .width = 1,
            .codeFlag = 1,
            .output = displayType == 0 ? kChannelOutput : kNoOutput,
            .outputList = 2477,
            .outputLabel = "The channel for a pulse output",
            .displayType = displayType,
            .lists = {{2460, "Duty (on width)", 0xF000, kDutyItems},
                      {2461, "Operation mode and output method", 0xFF, kMoveItems}},
            .numbers = {{2453, "Composite speed Initial speed", "Hz", speedTexts[displayType], 6, 2, 20004, speeds,
                         noSpeeds},
                        {2456, "Composite speed Maximum speed", "Hz", nullptr, 6, 4, 20005, speeds, noSpeeds},
                        {2455,
                         "Acceleration/Deceleration time",
                         "ms",
                         "(0 - 32767)",
                         5,
                         6,
                         20006,
                         {{"0", 0}, {"32767", 32767}, {"300", 300}},
                         {"-1", "32768", "99999"}},
                        {2458, xComments[displayType], "Travel amount", nullptr, 8, 8, 20011, kPositions, kNoPositions,
                         kDecimal, "Target value X-axis (CH2)"},
                        {2459, yComments[displayType], "Travel amount", nullptr, 8, 10, 20012, kPositions, kNoPositions,
                         kDecimal, "Target value Y-axis (CH3)"}},
            .labels = {{2470, "Composite speed"},
                       {2471, "Initial speed"},
                       {2472, "Maximum speed"},
                       {2473, "Acceleration/Deceleration time"},
                       {2474, "Target value"},
                       {2454, speedTexts[displayType]},
                       {2475, x},
                       {2476, y},
                       {2478, x},
                       {2479, y},
                       {2480, x},
                       {2481, y},
                       {2482, x},
                       {2483, y}}};
}

SPulseForm Spch(bool center)
{
    return {
        .name = center ? "SpchCenter" : "SpchPass",
        .instruction = 176,
        .heading = "SPCH (176)\tPulse output (Arc interporation)",
        .make = Make<CSpchDlg>,
        .start = 2501,
        .startLabel = 2502,
        .words = center ? 14 : 18,
        .wordsBefore = 18,
        .width = 1,
        .codeFlag = 1,
        .output = kNoOutput,
        .outputList = 0,
        .outputLabel = nullptr,
        .lists = {{2503, "Operation connection mode", 0xF0000, {{"Stop", 0x00000}, {"Continue", 0x10000}}},
                  {2505,
                   "Rotation direction",
                   0xF000,
                   {{"Clockwise direction (Right rotation)", 0x0000}, {"Counterclockwise (Left rotation)", 0x1000}}},
                  {2506,
                   "Arc (Circular shape) method",
                   0xF00,
                   {{"Pass position setting method", 0x000}, {"Center position setting method", 0x100}},
                   center ? 1 : 0},
                  {2507, "Operation mode and output method", 0xFF, kMoveItems}},
        .numbers = {{2504,
                     "Composite speed",
                     "Hz",
                     "(100 - 20000)",
                     5,
                     2,
                     20013,
                     {{"100", 100}, {"20000", 20000}, {"5000", 5000}},
                     {"99", "20001", "0", "-100"}},
                    {2508, "Target position X-axis (CH0)", nullptr, nullptr, 8, 4, 20014, kPositions, kNoPositions},
                    {2509, "Target position Y-axis (CH2)", nullptr, nullptr, 8, 6, 20015, kPositions, kNoPositions},
                    {2511, center ? "Center position X-axis (CH0)" : "Pass position X-axis (CH0)", nullptr, nullptr, 8,
                     8, UINT(center ? 20017 : 20016), kPositions, kNoPositions},
                    {2512, center ? "Center position Y-axis (CH2)" : "Pass position Y-axis (CH2)", nullptr, nullptr, 8,
                     10, UINT(center ? 20019 : 20018), kPositions, kNoPositions}},
        .labels = {{2517, "Composite speed"},
                   {2518, "Target position"},
                   {2519, "X-axis (CH0)"},
                   {2520, "Y-axis (CH2)"},
                   {2510, center ? "Center position" : "Pass position"},
                   {2521, "X-axis (CH0)"},
                   {2522, "Y-axis (CH2)"},
                   {2514, "Center position"}}};
}

int Operand(const SPulseForm& form, int position)
{
    if (form.output == kNoOutput)
        return 0;
    return form.output == kBuiltInOutput ? position : kFormChannels[position];
}

} // namespace

const std::vector<SPulseForm>& PulseForms()
{
    static const std::vector<SPulseForm> forms = [] {
        std::vector<SPulseForm> all = {Pls(),   Pwm(),   Plsh(false), Plsh(true),  Pwmh(1000), Pwmh(100),
                                       Spsh(0), Spsh(1), Spsh(2),     Spch(false), Spch(true)};
        const std::vector<SPulseForm> others = ChannelForms(all);
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }();
    return forms;
}

const SPulseForm& PulseForm(const std::string& name)
{
    for (const SPulseForm& form : PulseForms())
        if (form.name == name)
            return form;
    throw std::out_of_range(name);
}

std::ostream& operator<<(std::ostream& out, const SPulseForm& form) { return out << form.name; }

size_t SelectedItem(const SPulseForm& form, const SFormEntries& entries, size_t list)
{
    if (list < entries.items.size())
        return entries.items[list];
    return static_cast<size_t>(std::max(form.lists[list].formItem, 0));
}

int ControlCode(const SPulseForm& form, const SFormEntries& entries)
{
    int code = 0;
    for (size_t i = 0; i < form.lists.size(); ++i)
        code += form.lists[i].items.at(SelectedItem(form, entries, i)).code;
    return code;
}

SResults FormResults(const SPulseForm& form, const SFormEntries& entries)
{
    SResults results;
    results.contacts = {{2, 1, 170}};
    results.operands = {{9, 100}, {11, Operand(form, entries.output)}};
    if (form.hasCode)
    {
        results.data = {{9, 100, form.width, form.codeFlag, ControlCode(form, entries)}};
        results.comments = {"Control code"};
    }
    for (const SFormNumber& number : form.numbers)
    {
        const int value = number.good[std::min(entries.entry, number.good.size() - 1)].value;
        results.data.push_back({9, 100 + number.offset, number.oneRegister ? 0 : form.width, 0, value});
        const bool other = entries.output > 0 && number.otherComment != nullptr;
        results.comments.push_back(other ? number.otherComment : number.comment);
    }
    if (form.end != 0)
        results.data.push_back({9, 100 + form.end, form.width, 0, 0});
    return results;
}

std::string ShownNumber(const SFormNumber& number, int value)
{
    if (number.notation == kDecimal)
        return std::to_string(value);
    return std::to_string(value / 10) + "." + std::to_string(value % 10);
}
