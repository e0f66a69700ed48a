// Controllers for tests to program.
#pragma once

#include "core/FunWizard.h"

// PLC type codes, one of each selection table and family.
constexpr int kPlcFamilyA = 1;
constexpr int kPlcFamilyB = 70;
constexpr int kPlcFamilyB114 = 114;
constexpr int kPlcFamilyB117 = 117;
constexpr int kPlcFamilyC = 160;

// Device codes.
constexpr int kL = 0;
constexpr int kR = 1;
constexpr int kY = 2;
constexpr int kX = 3;
constexpr int kT = 4;
constexpr int kC = 5;
constexpr int kSV = 6;
constexpr int kEV = 7;
constexpr int kDT = 9;
constexpr int kK = 11;
constexpr int kH = 12;
constexpr int kF = 20;
constexpr int kWL = 64;
constexpr int kWR = 65;
constexpr int kWY = 66;
constexpr int kWX = 67;
constexpr int kSpecialR = 20001;
constexpr int kSpecialDT = 20009;

/// The number of a bit device, as R10A is (10, 0xA).
constexpr int Bit(int word, int bit) { return word * 16 + bit; }

// What SetUpController declares present.
constexpr int kLastInput = Bit(109, 15); // X and Y
constexpr int kLastRelay = Bit(255, 15); // R
constexpr int kLastRegister = 32764;     // DT

void SetDeviceRange(CFunWizard& wizard, int code, int low, int high);

/// Declares a controller of the PLC type with X, Y, R, Sp.R, T, C, L, their words and DT, the channels 0 to 3 for the
/// instructions 171 to 175, and all pulse-output instructions. Nothing else of the wizard is touched.
void SetUpController(CFunWizard& wizard, int plcType = kPlcFamilyA);
