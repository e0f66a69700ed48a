// What the unit's dialogs read from the texts of their edits, worked out apart from the library.
#pragma once

#include "core/FunWizard.h"

#include <optional>
#include <string>

struct SBounds
{
    long long low;
    long long high;
};

std::optional<long long> DecimalNumber(const std::string& text);
std::optional<long long> ContactNumber(int device, const std::string& text);
/// As the number is shown.
std::string ContactText(int device, int number);

/// Nothing lies within the bounds of a device that the controller does not have.
SBounds DeviceBounds(const CFunWizard& wizard, int device);

/// The first check that fails names the message, and the edit that it points at.
class CEntryChecks
{
public:
    /// The number, or 0 once a check has failed.
    int Check(unsigned edit, std::optional<long long> number, SBounds bounds, unsigned message);

    unsigned m_message = 0; ///< 0: accepted
    unsigned m_edit = 0;
};
