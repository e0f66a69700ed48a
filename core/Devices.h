// What the wizard knows about PLCs: the device table and the controller families.
#pragma once

#include "afx/afx.h"

/// Device codes. The special areas ("Sp.") have codes of their own and become the ordinary ones in a program.
enum EDevice : short
{
    kDeviceL = 0,
    kDeviceR = 1,
    kDeviceY = 2,
    kDeviceX = 3,
    kDeviceT = 4,
    kDeviceC = 5,
    kDeviceSV = 6,
    kDeviceEV = 7,
    kDeviceLD = 8,
    kDeviceDT = 9,
    kDeviceFL = 10,
    kDeviceK = 11,
    kDeviceH = 12,
    kDeviceIndex = 15,
    kDeviceP = 17,
    kDeviceE = 18,
    kDeviceReal = 20,
    kDeviceWL = 64,
    kDeviceWR = 65,
    kDeviceWY = 66,
    kDeviceWX = 67,
    kDeviceSpecialR = 20001,
    kDeviceSpecialDT = 20009,
    kDeviceSpecialWR = 20065
};

/// Relays of special word 901.
constexpr int kAlwaysOnRelay = 901 * 16 + 0;
constexpr int kFirstScanRelay = 901 * 16 + 3; ///< on in the first scan alone

/// How a device is addressed.
enum EBitKind : unsigned char
{
    kWordDevice = 0,   ///< words and constants
    kBitDevice = 1,    ///< bits numbered word x 16 + bit, written with a hexadecimal last digit
    kContactDevice = 2 ///< bits with a timer or counter style contact, numbered in decimal
};

/// One row of the device table.
struct SDeviceKind
{
    short code;
    unsigned char bitKind;
    unsigned char options; ///< the option bits that must all be set for a walk to reach the row
};

/// Controller families: the sets of PLC types that share their dialogs.
enum class EPlcFamily
{
    A,
    B,
    C
};

/// The row of the device table at a sequence index, or null when there is none.
const SDeviceKind* DeviceAt(int index);

/// The sequence index of a device code, or -1 when the code is in no row.
int DeviceIndex(short code);

/// The code by which a device is addressed in a program: the special areas become the ordinary devices.
short ProgramDeviceCode(short code);

/// The family of a PLC type.
EPlcFamily PlcFamily(unsigned char plcType);

/// Types 70..74: the part of family B with a longer instruction list and instruction sequences of its own.
bool IsLargeFamilyB(unsigned char plcType);

/// Whether a host permits a device for an operand: `mask` has a bit for each device that can be left out. WX and Sp.DT
/// are never permitted, and devices without a bit always.
bool IsDevicePermitted(ULONGLONG mask, short code);
