// The names of fields: part of the interface, the same in every language, never changed.
#pragma once

#include "afx/afx.h"

#include <string_view>

/// The name of a control of a dialog; empty when it has none.
std::string_view FieldName(UINT templateId, UINT control);
