#include "tests/dialogs/posunit/Layout.h"

#include <gtest/gtest.h>

namespace
{

bool IsFrame(const SRobotControl& control)
{
    return control.className == "Button" && (control.style & BS_TYPEMASK) == BS_GROUPBOX;
}

bool Overlap(const RECT& one, const RECT& other)
{
    return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom;
}

} // namespace

SLayout LayoutOf(CDialogRobot& dialog)
{
    SLayout layout{dialog.Controls(), {}};
    dialog.Dialog()->GetClientRect(&layout.client);
    return layout;
}

size_t IndexOf(const SLayout& layout, UINT id)
{
    size_t index = 0;
    while (index < layout.controls.size() && layout.controls[index].id != id)
        ++index;
    return index;
}

CRect RectOf(const SLayout& layout, UINT id) { return CRect(layout.controls.at(IndexOf(layout, id)).rect); }

void ExpectTidy(const SLayout& layout)
{
    for (size_t i = 0; i < layout.controls.size(); ++i)
    {
        const SRobotControl& one = layout.controls[i];
        if (!one.visible)
            continue;
        EXPECT_TRUE(one.rect.top >= 0 && one.rect.left >= 0 && one.rect.right <= layout.client.right &&
                    one.rect.bottom <= layout.client.bottom)
            << "outside: " << one.id << " " << one.text;
        for (size_t k = i + 1; k < layout.controls.size(); ++k)
        {
            const SRobotControl& other = layout.controls[k];
            const bool counts = other.visible && !IsFrame(one) && !IsFrame(other);
            EXPECT_FALSE(counts && Overlap(one.rect, other.rect))
                << one.id << " " << one.text << " over " << other.id << " " << other.text;
        }
    }
}

void ExpectCompacted(const SLayout& layout, const SLayout& full, size_t firstHidden, size_t countHidden, int gained,
                     const CRect& frame)
{
    ASSERT_EQ(layout.controls.size(), full.controls.size());
    const size_t frameIndex = IndexOf(full, 2054) - 1;
    for (size_t i = 0; i < full.controls.size(); ++i)
    {
        const UINT id = full.controls[i].id;
        const bool hidden = i >= firstHidden && i < firstHidden + countHidden;
        CRect expected(full.controls[i].rect);
        if (id == 1 || id == 2 || id == 3099)
            expected.OffsetRect(0, -gained);
        if (i == frameIndex)
            expected = frame;
        EXPECT_EQ(layout.controls[i].visible, !hidden) << "control " << i << ", " << id;
        EXPECT_EQ(CRect(layout.controls[i].rect), expected) << "control " << i << ", " << id;
    }
    EXPECT_EQ(layout.client.Width(), full.client.Width());
    EXPECT_EQ(layout.client.Height(), full.client.Height() - gained);
    ExpectTidy(layout);
}
