// What room controls leave for their texts.
#pragma once

#include <climits>

#include <gtest/gtest.h>

#include "tests/resources/DialogPicture.h"
#include "tests/resources/ExpectedControl.h"

inline EControl KindOf(const SPicturedControl& control)
{
    if (control.className == "Edit")
        return EControl::Edit;
    if (control.className == "ListBox")
        return EControl::ListBox;
    if (control.className == "ComboBox" && (control.style & 3) == CBS_DROPDOWNLIST)
        return EControl::DropList;
    if (control.className == "Button" && (control.style & 0xF) == BS_AUTOCHECKBOX)
        return EControl::CheckBox;
    if (control.className == "Button" && (control.style & 0xF) == BS_AUTORADIOBUTTON)
        return EControl::RadioButton;
    if (control.className == "Button" && (control.style & 0xF) == BS_PUSHBUTTON)
        return EControl::PushButton;
    if (control.className == "Button" && (control.style & 0xF) == BS_DEFPUSHBUTTON)
        return EControl::DefaultButton;
    if (control.className == "Button" && (control.style & 0xF) == BS_GROUPBOX)
        return EControl::GroupBox;
    if (control.className == "Button" && (control.style & 0xF) == BS_OWNERDRAW)
        return EControl::DrawnButton;
    if (control.className == "ScrollBar")
        return EControl::ScrollBar;
    EXPECT_EQ(control.className, "Static") << control.id;
    return EControl::Static;
}

inline int Width(const RECT& rect) { return rect.right - rect.left; }
inline int Height(const RECT& rect) { return rect.bottom - rect.top; }

/// What is left of a control's width for its text.
inline int RoomForText(const SPicturedControl& control)
{
    constexpr int kCheckBoxAndGap = 13 + 5;
    constexpr int kButtonEdges = 2 * 6;
    switch (KindOf(control))
    {
    case EControl::CheckBox:
    case EControl::RadioButton:
        return Width(control.rect) - kCheckBoxAndGap;
    case EControl::PushButton:
    case EControl::DefaultButton:
        return Width(control.rect) - kButtonEdges;
    case EControl::DrawnButton: // shows no text
        return INT_MAX;
    default:
        return Width(control.rect);
    }
}

/// What is left of a closed drop-down list beside its arrow and within its edges.
inline int RoomForItem(const SPicturedControl& list) { return Width(list.rect) - Height(list.rect) - 2 * 4; }

/// Expects that the text of a control fits it.
inline void ExpectToFit(const SPicturedControl& control, int lineHeight)
{
    EXPECT_LE(control.textWidth, RoomForText(control)) << control.name;
    if (control.text.empty())
        return;
    const auto lines = 1 + std::count(control.text.begin(), control.text.end(), '\n');
    EXPECT_LE(lineHeight * lines, Height(control.rect)) << control.name;
}
