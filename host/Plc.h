// The controllers that the ladder tool knows: everything the wizard library wants to be told before a dialog opens.
#pragma once

#include "core/FunWizard.h"

#include <string>
#include <vector>

struct SDeviceRange
{
    std::string device; ///< its name: "X", "DT", "Sp.R"
    int low;
    int high;
};

struct SOfferedChannel
{
    int channel;     ///< 0..15
    int instruction; ///< 171..175
};

struct SPlc
{
    std::string name;  ///< for sessions and command lines
    std::string title; ///< for people
    int type = 0;
    int slots = 32;
    int axes = 4;       ///< of the positioning units: 2 or 4
    int display175 = 0; ///< how the F175 dialog shows its channel: 0 the usual way, 1, 2
    std::vector<SDeviceRange> ranges;
    std::vector<SOfferedChannel> channels;
    std::vector<int> instructions; ///< of the pulse-output list: 168..177
    int startType = 2; ///< what starts a positioning unit: 0 the user's program, 1 the relay of the axis, 2 any output

    /// Hands everything to the wizard, in place of what another controller left there.
    void Configure(CFunWizard& wizard) const;
};

const std::vector<SPlc>& PlcPresets();
/// Null when there is no preset of that name.
const SPlc* FindPlcPreset(const std::string& name);
