#include "core/Devices.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr unsigned char kWithConstants = 1;
constexpr unsigned char kWithReals = 3;

// In sequence order: the order in which hosts and contact combos list the devices.
constexpr SDeviceKind kDevices[] = {
    {kDeviceX, kBitDevice, 0},
    {kDeviceY, kBitDevice, 0},
    {kDeviceR, kBitDevice, 0},
    {kDeviceSpecialR, kBitDevice, 0},
    {kDeviceT, kContactDevice, 0},
    {kDeviceC, kContactDevice, 0},
    {kDeviceL, kBitDevice, 0},
    {kDeviceE, kContactDevice, 0},
    {kDeviceP, kBitDevice, 0},
    {kDeviceWX, kWordDevice, 0},
    {kDeviceWY, kWordDevice, 0},
    {kDeviceWR, kWordDevice, 0},
    {kDeviceSpecialWR, kWordDevice, 0},
    {kDeviceWL, kWordDevice, 0},
    {kDeviceDT, kWordDevice, 0},
    {kDeviceSpecialDT, kWordDevice, 0},
    {kDeviceSV, kWordDevice, 0},
    {kDeviceEV, kWordDevice, 0},
    {kDeviceFL, kWordDevice, 0},
    {kDeviceLD, kWordDevice, 0},
    {kDeviceIndex, kWordDevice, 0},
    {kDeviceK, kWordDevice, kWithConstants},
    {kDeviceH, kWordDevice, kWithConstants},
    {kDeviceReal, kWordDevice, kWithReals},
};

} // namespace

const SDeviceKind* DeviceAt(int index)
{
    return index >= 0 && index < static_cast<int>(std::size(kDevices)) ? &kDevices[index] : nullptr;
}

int DeviceIndex(short code)
{
    const auto* row = std::find_if(std::begin(kDevices), std::end(kDevices),
                                   [code](const SDeviceKind& device) { return device.code == code; });
    return row != std::end(kDevices) ? static_cast<int>(row - kDevices) : -1;
}

short ProgramDeviceCode(short code)
{
    switch (code)
    {
    case kDeviceSpecialR:
        return kDeviceR;
    case kDeviceSpecialDT:
        return kDeviceDT;
    case kDeviceSpecialWR:
        return kDeviceWR;
    default:
        return code;
    }
}

EPlcFamily PlcFamily(unsigned char plcType)
{
    switch (plcType)
    {
    case 114:
    case 117:
        return EPlcFamily::B;
    case 160:
    case 161:
    case 164:
    case 165:
    case 168:
        return EPlcFamily::C;
    default:
        return IsLargeFamilyB(plcType) ? EPlcFamily::B : EPlcFamily::A;
    }
}

bool IsLargeFamilyB(unsigned char plcType) { return plcType >= 70 && plcType <= 74; }

namespace
{

struct SPermission
{
    short code;
    DWORD bit; // 0: never permitted
};

// Hosts know a device, 81, that is in no row of the device table.
constexpr SPermission kPermissions[] = {
    {kDeviceL, 0x80},      {kDeviceR, 0x40},           {kDeviceY, 0x20},
    {kDeviceX, 0x10},      {kDeviceT, 0x200},          {kDeviceC, 0x400},
    {kDeviceSV, 0x200000}, {kDeviceEV, 0x400000},      {kDeviceLD, 0x1000000},
    {kDeviceDT, 0x800000}, {kDeviceFL, 0x2000000},     {kDeviceK, 0x1},
    {kDeviceH, 0x2},       {kDeviceIndex, 0x10000000}, {kDeviceP, 0x100},
    {kDeviceE, 0x800},     {kDeviceReal, 0x4},         {kDeviceWL, 0x80000},
    {kDeviceWR, 0x40000},  {kDeviceWY, 0x20000},       {81, 0x100000},
    {kDeviceWX, 0},        {kDeviceSpecialDT, 0},
};

} // namespace

bool IsDevicePermitted(ULONGLONG mask, short code)
{
    const auto* row = std::find_if(std::begin(kPermissions), std::end(kPermissions),
                                   [code](const SPermission& permission) { return permission.code == code; });
    return row == std::end(kPermissions) || (mask & row->bit) != 0;
}
