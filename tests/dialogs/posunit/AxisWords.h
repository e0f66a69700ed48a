// The control code of an axis, worked out apart from the library: where its fields stand, what their values are called,
// and what a word is shown as.
#pragma once

#include "afx/afx.h"

#include <string>
#include <vector>

/// A field of the word. Its values stand for the texts in their order.
struct SAxisField
{
    int shift;
    int width;
    std::vector<const char*> items;
};

/// All fields, from bit 0 up.
const std::vector<SAxisField>& AxisFields();
/// The field that begins at a bit.
const SAxisField& AxisFieldAt(int shift);

/// The position in the list of the field's texts for a word: the first one for a value that has no text.
int ItemOf(DWORD word, const SAxisField& field);

/// The word without what no list can show, and what is shown of it: with the bits that belong to no field.
DWORD ComposedOf(DWORD word);
DWORD ShownOf(DWORD word);

std::string HexText(DWORD word);
