// What the dialog of F168 makes of its entries, worked out apart from the dialog: from the entries' texts alone, in
// arithmetic of its own.
#pragma once

#include "tests/support/Controller.h"
#include "tests/support/Results.h"

#include <string>

enum ESpd1Variant
{
    kTrapezoidal,
    kHomeReturn
};

inline constexpr ESpd1Variant kVariants[] = {kTrapezoidal, kHomeReturn};

std::ostream& operator<<(std::ostream& out, ESpd1Variant variant);

/// What stands in the dialog. The defaults are accepted by both variants.
struct SSpd1Entries
{
    int device = kR; // code of the contact's device
    std::string contact = "10A";
    std::string start = "100";
    std::string initial = "500";
    std::string maximum = "5000";
    std::string time = "300";
    std::string target = "100000";
    int output = 0; // positions in the lists
    int width = 0;
    int mode = 0;
    bool onlyDataTable = false;
};

struct SSpd1Range
{
    long long low;
    long long high;
};

/// What the controller offers.
struct SSpd1Limits
{
    SSpd1Range contact;
    SSpd1Range registers;
};

/// Either the message that OK shows and the edit that it points at, or the results.
struct SSpd1Outcome
{
    unsigned message = 0; // 0: accepted
    unsigned edit = 0;
    SResults results;
};

SSpd1Outcome Spd1Outcome(ESpd1Variant variant, const SSpd1Entries& entries, const SSpd1Limits& limits);

/// The numbers that are accepted as the start of the data table.
SSpd1Range Spd1StartRange(ESpd1Variant variant, const SSpd1Limits& limits);

/// A number of a bit device as it is written.
std::string BitNumberText(int number);
