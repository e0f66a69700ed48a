// What the command line says about every job.
#pragma once

#include "host/Plc.h"

#include "core/pexlo.hpp"

#include <string>

struct SFormName;

struct SSettings
{
    SPlc plc;
    int language = 0; ///< as SetLanguageInfo takes it
    bool comments = true;
    bool onlyTable = false;
    int workArea = 30; ///< registers that F355 uses beyond the first one
    unsigned controlCode = 0;
};

/// A preset by its name, or a file with the JSON object that describes a controller. Throws CFileError.
SPlc LoadPlc(const std::string& presetOrFile);

/// Hands them to a wizard object. False when the language has no library: the texts are English ones.
bool Configure(pexlo::Wizard& wizard, const SSettings& settings);

/// The dialog of a name with these settings.
pexlo::Form MakeForm(const SFormName& name, const SSettings& settings);
