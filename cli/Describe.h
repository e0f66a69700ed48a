// The dialogs that a PLC has, and what one of them asks for.
#pragma once

#include "cli/Format.h"
#include "core/pexlo.hpp"

#include <string>
#include <vector>

/// An entry of `pexlo list`.
struct SOffered
{
    std::string name;
    int instruction;
    int variant;
    std::string text;
};

/// Dialogs that stand in no selection list are told by their captions.
std::vector<SOffered> Offered(pexlo::Wizard& wizard);

std::string OfferText(const std::vector<SOffered>& offers, EFormat format);

/// The fields of a dialog. JSON is made for programs that build a page of their own.
std::string DescriptionText(const std::string& instruction, const pexlo::Description& description, EFormat format);
