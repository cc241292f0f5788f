#include "platform/ui/Geometry.h"

#include <gtest/gtest.h>

namespace
{
constexpr TRect kBox{10, 20, 30, 40};

struct TCase {
    const char* pName;
    TRect rect;
    bool bOverlaps;
    bool bContains;
};

constexpr TCase kCases[] = {
    {"itself", kBox, true, true},
    {"inside", {15, 25, 5, 5}, true, true},
    {"around", {0, 0, 100, 100}, true, false},
    {"touching on the right", {40, 20, 5, 5}, false, false},
    {"touching on the left", {5, 20, 5, 5}, false, false},
    {"touching below", {10, 60, 5, 5}, false, false},
    {"touching above", {10, 15, 5, 5}, false, false},
    {"one unit over the right", {35, 20, 6, 5}, true, false},
    {"one unit over the left", {9, 20, 5, 5}, true, false},
    {"one unit over the bottom", {10, 56, 5, 5}, true, false},
    {"one unit over the top", {10, 19, 5, 5}, true, false},
    {"far away", {100, 100, 5, 5}, false, false},
};

TEST(GeometryTest, OverlapsAndContains)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        EXPECT_EQ(kBox.Overlaps(rCase.rect), rCase.bOverlaps);
        EXPECT_EQ(rCase.rect.Overlaps(kBox), rCase.bOverlaps);
        EXPECT_EQ(kBox.Contains(rCase.rect), rCase.bContains);
    }
}

TEST(GeometryTest, EdgesAreSums)
{
    EXPECT_EQ(kBox.Right(), 40);
    EXPECT_EQ(kBox.Bottom(), 60);
}
} // namespace
