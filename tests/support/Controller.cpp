#include "tests/support/Controller.h"

void SetDeviceRange(CFunWizard& wizard, int code, int low, int high)
{
    wizard.SetDevRange(-1, static_cast<short>(code), low, high);
}

void SetUpController(CFunWizard& wizard, int plcType)
{
    wizard.SetPlcType(static_cast<unsigned char>(plcType));

    SetDeviceRange(wizard, kX, 0, kLastInput);
    SetDeviceRange(wizard, kY, 0, kLastInput);
    SetDeviceRange(wizard, kR, 0, kLastRelay);
    SetDeviceRange(wizard, kSpecialR, Bit(900, 0), Bit(911, 15));
    SetDeviceRange(wizard, kT, 0, 1007);
    SetDeviceRange(wizard, kC, 1008, 1023);
    SetDeviceRange(wizard, kL, 0, Bit(127, 15));
    SetDeviceRange(wizard, kWX, 0, kLastInput / 16);
    SetDeviceRange(wizard, kWY, 0, kLastInput / 16);
    SetDeviceRange(wizard, kWR, 0, kLastRelay / 16);
    SetDeviceRange(wizard, kWL, 0, 127);
    SetDeviceRange(wizard, kDT, 0, kLastRegister);
    SetDeviceRange(wizard, kSpecialDT, 90000, 90511);
    SetDeviceRange(wizard, kSV, 0, 1023);
    SetDeviceRange(wizard, kEV, 0, 1023);

    wizard.ResetChannelNo();
    for (int instruction = 171; instruction <= 175; ++instruction)
    {
        for (int channel = 0; channel < 4; ++channel)
            wizard.SetChannelNo(channel, instruction);
    }
    for (int instruction = 168; instruction <= 177; ++instruction)
        wizard.EntrySupportFunInfo(instruction);
}
