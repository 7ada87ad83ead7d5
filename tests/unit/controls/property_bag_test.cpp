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

TEST(PropertyBag, LoadTakesBareLineFeedsAndSkipsLinesWithoutEquals) {
    const PropertyBag bag = PropertyBag::Load("GridStep=4\nnot a property\r\nMaxValue=7");
    EXPECT_EQ(bag.Read("GridStep", ""), "4");
    EXPECT_EQ(bag.Read("MaxValue", ""), "7");
    EXPECT_FALSE(bag.Contains("not a property"));
}

}  // namespace
}  // namespace controls
