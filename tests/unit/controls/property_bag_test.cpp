#include "controls/property_bag.h"

#include <gtest/gtest.h>

namespace controls {
namespace {

TEST(PropertyBag, WritingTheDefaultForgetsTheName) {
    PropertyBag bag;
    bag.Write("MaxValue", "500", "100");
    EXPECT_EQ(bag.Read("MaxValue", "100"), "500");
    bag.Write("MaxValue", "100", "100");
    EXPECT_FALSE(bag.Contains("MaxValue"));
    EXPECT_EQ(bag.Read("MaxValue", "100"), "100");
}

TEST(PropertyBag, SavedTextKeepsLineBreaksBackslashesAndEqualsSigns) {
    PropertyBag bag;
    bag.Write("ToolTipText", "a=b\r\nc\\d\\r", "");
    bag.Write("GridStep", "4", "2");
    EXPECT_EQ(bag.Save(), "GridStep=4\r\nToolTipText=a=b\\r\\nc\\\\d\\\\r\r\n");
    EXPECT_EQ(PropertyBag::Load(bag.Save()), bag);
}

}  // namespace
}  // namespace controls
