#include "dialogs/base/Catalogue.h"

#include "core/Devices.h"
#include "resources/resource.h"

namespace
{

// ---- Lists ----------------------------------------------------------------------------------------------------------

constexpr SCatalogueItem kListA[] = {
    {IDS_LIST_SPD1_TRAPEZOIDAL, {kInstructionSpd1, 0}},
    {IDS_LIST_SPD1_HOME, {kInstructionSpd1, 1}},
    {IDS_LIST_PLS, {kInstructionPls, 0}},
    {IDS_LIST_PWM, {kInstructionPwm, 0}},
    {IDS_LIST_SPDH_TRAPEZOIDAL, {kInstructionSpdh, 0}},
    {IDS_LIST_SPDH_HOME, {kInstructionSpdh, 1}},
    {IDS_LIST_PLSH, {kInstructionPlsh, 0}},
    {IDS_LIST_PWMH, {kInstructionPwmh, 0}},
    {IDS_LIST_SP0H, {kInstructionSp0h, 0}},
    {IDS_LIST_SPSH, {kInstructionSpsh, 0}},
    {IDS_LIST_SPCH, {kInstructionSpch, 0}},
    // Hosts cannot register 355, so the list never shows it: PID has an opening operation of its own.
    {IDS_LIST_PID, {kInstructionPid, 0}},
};

constexpr SCatalogueItem kListB1[] = {
    {IDS_LIST_B_SPDH_TRAPEZOIDAL, {kInstructionSpdh, 0}},
    {IDS_LIST_B_SPDH_HOME, {kInstructionSpdh, 1}},
    {IDS_LIST_B_PLSH, {kInstructionPlsh, 0}},
    {IDS_LIST_B_PWMH, {kInstructionPwmh, 0}},
    {IDS_LIST_B_SP0H, {kInstructionSp0h, 0}},
    {IDS_LIST_B_SPSH, {kInstructionSpsh, 0}},
    {IDS_LIST_B_F177, {kInstructionF177, 0}},
};

constexpr SCatalogueItem kListB2[] = {
    {IDS_LIST_B_SPDH_TRAPEZOIDAL, {kInstructionSpdh, 0}},
    {IDS_LIST_B_PLSH, {kInstructionPlsh, 0}},
    {IDS_LIST_B_PWMH, {kInstructionPwmh, 0}},
    {IDS_LIST_B_SP0H, {kInstructionSp0h, 0}},
    {IDS_LIST_B_F177, {kInstructionF177, 0}},
};

constexpr SCatalogueItem kListB3[] = {
    {IDS_LIST_B_SPDH_TRAPEZOIDAL, {kInstructionSpdh, 0}},
    {IDS_LIST_B_PLSH, {kInstructionPlsh, 0}},
    {IDS_LIST_B_PWMH, {kInstructionPwmh, 0}},
    {IDS_LIST_B_SP0H, {kInstructionSp0h, 0}},
    {IDS_LIST_B_SPSH, {kInstructionSpsh, 0}},
    {IDS_LIST_B_F177, {kInstructionF177, 0}},
};

constexpr SCatalogueItem kUnitList[] = {
    {IDS_LIST_E_POINT, {kInstructionUnit, kUnitEPoint}},
    {IDS_LIST_P_POINT_START, {kInstructionUnit, kUnitPPointStart}},
    {IDS_LIST_P_POINT_PASSING, {kInstructionUnit, kUnitPPointPassing}},
    {IDS_LIST_JOG, {kInstructionUnit, kUnitJog}},
    {IDS_LIST_JOG_SPEED_CHANGE, {kInstructionUnit, kUnitJogSpeedChange}},
    {IDS_LIST_JOG_POSITIONING, {kInstructionUnit, kUnitJogPositioning}},
    {IDS_LIST_HOME_RETURN, {kInstructionUnit, kUnitHomeReturn}},
    {IDS_LIST_PULSAR, {kInstructionUnit, kUnitPulsar}},
};

constexpr BYTE kPlcTypeB2 = 114;
constexpr BYTE kPlcTypeB3 = 117;

// ---- What an instruction leads to in each family --------------------------------------------------------------------

/// An id for variant 0 and one for the other form of an instruction; 0 where there is nothing.
struct SForms
{
    UINT first;
    UINT second;

    constexpr SForms(UINT both = 0) : first(both), second(both) {}
    constexpr SForms(UINT one, UINT other) : first(one), second(other) {}
};

struct SFamilyRow
{
    int instruction;
    SForms a, b, c;

    const SForms& In(EPlcFamily family) const { return family == EPlcFamily::A ? a : family == EPlcFamily::B ? b : c; }
};

constexpr SFamilyRow kExplanations[] = {
    {kInstructionSpd1, {IDS_EXPLAIN_SPD1_TRAPEZOIDAL, IDS_EXPLAIN_SPD1_HOME}, {}, {}},
    {kInstructionPls, IDS_EXPLAIN_PLS, {}, {}},
    {kInstructionPwm, IDS_EXPLAIN_PWM, {}, {}},
    {kInstructionSpdh,
     {IDS_EXPLAIN_SPDH_TRAPEZOIDAL, IDS_EXPLAIN_SPDH_HOME},
     {IDS_EXPLAIN_B_SPDH_TRAPEZOIDAL, IDS_EXPLAIN_B_SPDH_HOME},
     {IDS_EXPLAIN_C_SPDH_TRAPEZOIDAL, IDS_EXPLAIN_C_SPDH_HOME}},
    {kInstructionPlsh, IDS_EXPLAIN_PLSH, IDS_EXPLAIN_B_PLSH, IDS_EXPLAIN_C_PLSH},
    {kInstructionPwmh, IDS_EXPLAIN_PWMH, IDS_EXPLAIN_B_PWMH, IDS_EXPLAIN_C_PWMH},
    {kInstructionSp0h, IDS_EXPLAIN_SP0H, IDS_EXPLAIN_B_SP0H, IDS_EXPLAIN_C_SP0H},
    {kInstructionSpsh, IDS_EXPLAIN_SPSH, IDS_EXPLAIN_B_SPSH, IDS_EXPLAIN_C_SPSH},
    {kInstructionSpch, IDS_EXPLAIN_SPCH, {}, {}},
    {kInstructionF177, {}, IDS_EXPLAIN_B_F177, {}},
    {kInstructionPid, IDS_EXPLAIN_PID, IDS_EXPLAIN_PID, {}},
};

constexpr SFamilyRow kTemplates[] = {
    {kInstructionSpd1, {IDD_SPD1_TRAPEZOIDAL, IDD_SPD1_HOME}, {}, {}},
    {kInstructionPls, IDD_PLS, {}, {}},
    {kInstructionPwm, IDD_PWM, {}, {}},
    {kInstructionSpdh,
     {IDD_SPDH_TRAPEZOIDAL, IDD_SPDH_HOME},
     {IDD_B_SPDH_TRAPEZOIDAL, IDD_B_SPDH_HOME},
     {IDD_C_SPDH_TRAPEZOIDAL, IDD_C_SPDH_HOME}},
    {kInstructionPlsh, IDD_PLSH, IDD_B_PLSH, IDD_C_PLSH},
    {kInstructionPwmh, IDD_PWMH, IDD_B_PWMH, IDD_C_PWMH},
    {kInstructionSp0h, IDD_SP0H, IDD_B_SP0H, IDD_C_SP0H},
    {kInstructionSpsh, IDD_SPSH, IDD_B_SPSH, IDD_C_SPSH},
    {kInstructionSpch, IDD_SPCH, {}, {}},
    {kInstructionF177, {}, IDD_B_F177, {}},
};

UINT LookUp(std::span<const SFamilyRow> rows, EPlcFamily family, const SWizardChoice& choice, bool second)
{
    for (const SFamilyRow& row : rows)
        if (row.instruction == choice.instruction)
            return second ? row.In(family).second : row.In(family).first;
    return 0;
}

UINT UnitTemplate(int variant)
{
    switch (variant)
    {
    case kUnitEPoint:
    case kUnitPPointStart:
    case kUnitJogPositioning:
        return IDD_EPOINT;
    case kUnitPPointPassing:
        return IDD_PPOINT;
    case kUnitJog:
        return IDD_JOG;
    case kUnitJogSpeedChange:
        return IDD_JOG_SPEED_CHANGE;
    case kUnitHomeReturn:
        return IDD_HOME_RETURN;
    case kUnitPulsar:
        return IDD_PULSAR;
    default:
        return 0;
    }
}

} // namespace

std::span<const SCatalogueItem> CatalogueItems(EWizardMode mode, BYTE plcType)
{
    if (mode != kPulseInstructions)
        return kUnitList;
    if (IsLargeFamilyB(plcType))
        return kListB1;
    if (plcType == kPlcTypeB2)
        return kListB2;
    if (plcType == kPlcTypeB3)
        return kListB3;
    return kListA;
}

UINT ExplanationText(EWizardMode mode, BYTE plcType, const SWizardChoice& choice)
{
    if (mode == kPulseInstructions)
        return LookUp(kExplanations, PlcFamily(plcType), choice, choice.variant != 0);
    for (const SCatalogueItem& item : kUnitList)
        if (item.choice == choice)
            return item.text + 1; // The explanation of an operation follows its name.
    return 0;
}

UINT DialogTemplate(EWizardMode mode, BYTE plcType, const SWizardChoice& choice)
{
    if (mode != kPulseInstructions)
        return UnitTemplate(choice.variant);
    const EPlcFamily family = PlcFamily(plcType);
    // Family C takes a negative variant for the first form.
    const bool second = family == EPlcFamily::C ? choice.variant > 0 : choice.variant != 0;
    return LookUp(kTemplates, family, choice, second);
}
