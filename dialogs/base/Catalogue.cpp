#include "dialogs/base/Catalogue.h"

#include "core/Devices.h"
#include "resources/resource.h"

namespace
{

// ---- Lists ----------------------------------------------------------------------------------------------------------

constexpr SCatalogueItem kListA[] = {
    {IDS_LIST_SPD1_TRAPEZOIDAL, {168, 0}},
    {IDS_LIST_SPD1_HOME, {168, 1}},
    {IDS_LIST_PLS, {169, 0}},
    {IDS_LIST_PWM, {170, 0}},
    {IDS_LIST_SPDH_TRAPEZOIDAL, {171, 0}},
    {IDS_LIST_SPDH_HOME, {171, 1}},
    {IDS_LIST_PLSH, {172, 0}},
    {IDS_LIST_PWMH, {173, 0}},
    {IDS_LIST_SP0H, {174, 0}},
    {IDS_LIST_SPSH, {175, 0}},
    {IDS_LIST_SPCH, {176, 0}},
    // Hosts cannot register 355, so the list never shows it: PID has an opening operation of its own.
    {IDS_LIST_PID, {355, 0}},
};

constexpr SCatalogueItem kListB1[] = {
    {IDS_LIST_B_SPDH_TRAPEZOIDAL, {171, 0}},
    {IDS_LIST_B_SPDH_HOME, {171, 1}},
    {IDS_LIST_B_PLSH, {172, 0}},
    {IDS_LIST_B_PWMH, {173, 0}},
    {IDS_LIST_B_SP0H, {174, 0}},
    {IDS_LIST_B_SPSH, {175, 0}},
    {IDS_LIST_B_F177, {177, 0}},
};

constexpr SCatalogueItem kListB2[] = {
    {IDS_LIST_B_SPDH_TRAPEZOIDAL, {171, 0}},
    {IDS_LIST_B_PLSH, {172, 0}},
    {IDS_LIST_B_PWMH, {173, 0}},
    {IDS_LIST_B_SP0H, {174, 0}},
    {IDS_LIST_B_F177, {177, 0}},
};

constexpr SCatalogueItem kListB3[] = {
    {IDS_LIST_B_SPDH_TRAPEZOIDAL, {171, 0}},
    {IDS_LIST_B_PLSH, {172, 0}},
    {IDS_LIST_B_PWMH, {173, 0}},
    {IDS_LIST_B_SP0H, {174, 0}},
    {IDS_LIST_B_SPSH, {175, 0}},
    {IDS_LIST_B_F177, {177, 0}},
};

constexpr SCatalogueItem kUnitList[] = {
    {IDS_LIST_E_POINT, {kUnitInstruction, kUnitEPoint}},
    {IDS_LIST_P_POINT_START, {kUnitInstruction, kUnitPPointStart}},
    {IDS_LIST_P_POINT_PASSING, {kUnitInstruction, kUnitPPointPassing}},
    {IDS_LIST_JOG, {kUnitInstruction, kUnitJog}},
    {IDS_LIST_JOG_SPEED_CHANGE, {kUnitInstruction, kUnitJogSpeedChange}},
    {IDS_LIST_JOG_POSITIONING, {kUnitInstruction, kUnitJogPositioning}},
    {IDS_LIST_HOME_RETURN, {kUnitInstruction, kUnitHomeReturn}},
    {IDS_LIST_PULSAR, {kUnitInstruction, kUnitPulsar}},
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
    constexpr SForms(UINT normal, UINT other) : first(normal), second(other) {}
};

struct SFamilyRow
{
    int instruction;
    SForms a, b, c;

    const SForms& In(EPlcFamily family) const { return family == EPlcFamily::A ? a : family == EPlcFamily::B ? b : c; }
};

constexpr SFamilyRow kExplanations[] = {
    {168, {IDS_EXPLAIN_SPD1_TRAPEZOIDAL, IDS_EXPLAIN_SPD1_HOME}, {}, {}},
    {169, IDS_EXPLAIN_PLS, {}, {}},
    {170, IDS_EXPLAIN_PWM, {}, {}},
    {171,
     {IDS_EXPLAIN_SPDH_TRAPEZOIDAL, IDS_EXPLAIN_SPDH_HOME},
     {IDS_EXPLAIN_B_SPDH_TRAPEZOIDAL, IDS_EXPLAIN_B_SPDH_HOME},
     {IDS_EXPLAIN_C_SPDH_TRAPEZOIDAL, IDS_EXPLAIN_C_SPDH_HOME}},
    {172, IDS_EXPLAIN_PLSH, IDS_EXPLAIN_B_PLSH, IDS_EXPLAIN_C_PLSH},
    {173, IDS_EXPLAIN_PWMH, IDS_EXPLAIN_B_PWMH, IDS_EXPLAIN_C_PWMH},
    {174, IDS_EXPLAIN_SP0H, IDS_EXPLAIN_B_SP0H, IDS_EXPLAIN_C_SP0H},
    {175, IDS_EXPLAIN_SPSH, IDS_EXPLAIN_B_SPSH, IDS_EXPLAIN_C_SPSH},
    {176, IDS_EXPLAIN_SPCH, {}, {}},
    {177, {}, IDS_EXPLAIN_B_F177, {}},
    {355, IDS_EXPLAIN_PID, IDS_EXPLAIN_PID, {}},
};

constexpr SFamilyRow kTemplates[] = {
    {168, {IDD_SPD1_TRAPEZOIDAL, IDD_SPD1_HOME}, {}, {}},
    {169, IDD_PLS, {}, {}},
    {170, IDD_PWM, {}, {}},
    {171,
     {IDD_SPDH_TRAPEZOIDAL, IDD_SPDH_HOME},
     {IDD_B_SPDH_TRAPEZOIDAL, IDD_B_SPDH_HOME},
     {IDD_C_SPDH_TRAPEZOIDAL, IDD_C_SPDH_HOME}},
    {172, IDD_PLSH, IDD_B_PLSH, IDD_C_PLSH},
    {173, IDD_PWMH, IDD_B_PWMH, IDD_C_PWMH},
    {174, IDD_SP0H, IDD_B_SP0H, IDD_C_SP0H},
    {175, IDD_SPSH, IDD_B_SPSH, IDD_C_SPSH},
    {176, IDD_SPCH, {}, {}},
    {177, {}, IDD_B_F177, {}},
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
