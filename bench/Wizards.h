// Wizards to measure.
#pragma once

#include "core/FunWizard.h"

/// Sets up a controller that has every device a contact can be on, two channels for each instruction, and F168 in the
/// selection list.
inline void SetUpController(CFunWizard& wizard)
{
    constexpr short kRangeKind = -1;
    for (const short device : std::initializer_list<short>{0, 1, 2, 3, 4, 5, 17, 18, 20001})
        wizard.SetDevRange(kRangeKind, device, 0, 15999);
    constexpr short kRegisters = 9;
    wizard.SetDevRange(kRangeKind, kRegisters, 0, 32764);
    for (int instruction = 171; instruction <= 175; ++instruction)
        for (int channel : {0, 1})
            wizard.SetChannelNo(channel, instruction);
    wizard.EntrySupportFunInfo(168);
}

/// Fills the lists with the results of an instruction whose data table has so many entries.
inline void FillLists(CFunWizard& wizard, int dataRecords)
{
    wizard.RemoveAllContInfo();
    wizard.RemoveAllOprdInfo();
    wizard.RemoveAllDataInfo();
    wizard.AddContInfo(2, 1, 170);
    wizard.AddOprdInfo(9, 100);
    wizard.AddOprdInfo(11, 1);
    for (int i = 0; i < dataRecords; ++i)
        wizard.AddDataInfo(9, 100 + i, static_cast<unsigned char>(i % 2), static_cast<unsigned char>(i % 3 == 0), i);
}
