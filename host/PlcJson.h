// A controller as files and command lines name it. README.md describes the form.
#pragma once

#include "host/Plc.h"

class CJsonNode;

/// A preset by its name, or an object that may start from a preset and says what is different. Throws CFileError.
SPlc ReadPlc(const CJsonNode& node);
