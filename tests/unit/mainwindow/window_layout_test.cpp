#include "mainwindow/window_layout.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

TEST(ResizeRule, SizesFollowTheFormsOuterSize) {
    ResizeRule rule;
    rule.Resize(15000, 9000);
    EXPECT_EQ(rule.ToolbarWidth(), 15000);
    EXPECT_EQ(rule.ListWidth(), 14900);
    EXPECT_EQ(rule.ListHeight(), 6900);
    EXPECT_EQ(rule.TabWidth(), 14908);
    EXPECT_EQ(rule.TabHeight(), 6700);
}

TEST(ResizeRule, ANegativeSizeIsPassedOverAndTheOldOneStays) {
    ResizeRule rule;
    rule.Resize(15000, 9000);
    rule.Resize(15000, 2200);  // below 2300: the tab strip keeps its height, the lists shrink
    EXPECT_EQ(rule.TabHeight(), 6700);
    EXPECT_EQ(rule.ListHeight(), 100);
    rule.Resize(90, 0);  // minimised or tiny: nothing negative, the rest still follows
    EXPECT_EQ(rule.ToolbarWidth(), 90);
    EXPECT_EQ(rule.ListWidth(), 14900);
    EXPECT_EQ(rule.TabWidth(), 14908);
    EXPECT_EQ(rule.ListHeight(), 100);
    rule.Resize(0, 0);
    EXPECT_EQ(rule.ToolbarWidth(), 0);
}

WindowMetrics Metrics(int twipsPerPixel, int clientHeight) {
    WindowMetrics m;
    m.twipsPerPixel = {twipsPerPixel, twipsPerPixel};
    m.clientHeight = clientHeight;
    m.toolbarHeight = 26;
    m.tabHeaderHeight = 21;
    m.statusHeight = 20;
    m.textHeight = 12;
    return m;
}

void ExpectInside(const PixelRect& inner, const PixelRect& outer) {
    EXPECT_GE(inner.y, outer.y);
    EXPECT_LE(inner.Bottom(), outer.Bottom());
    EXPECT_GE(inner.height, 0);
}

TEST(Place, TheListsSitAt740TwipsAndTheBandBelowThem) {
    ResizeRule rule;  // the load-time size, 12775 x 5100 twips
    // At 96 DPI: a client area of 300 of the form's 340 pixels.
    const WindowGeometry g = Place(rule, Metrics(15, 300));
    EXPECT_EQ(g.list, (PixelRect{0, 49, 845, 200}));
    EXPECT_EQ(g.tabStrip.y, 28);  // the tabs end where the lists begin
    EXPECT_EQ(g.toolbar, (PixelRect{0, 0, 852, 26}));
    EXPECT_EQ(g.band, (PixelRect{0, 249, 845, 31}));

    const BandLayout& b = g.bandItems;
    const PixelRect order[] = {b.computerName, b.interfaceLabel, b.receivedCaption, b.receivedLabel,
                               b.receivedGraph, b.sentCaption,   b.sentLabel,       b.sentGraph};
    for (std::size_t i = 0; i < std::size(order); ++i) {
        ExpectInside(order[i], g.band);
        EXPECT_GT(order[i].width, 0);
        if (i > 0) {
            EXPECT_GE(order[i].x, order[i - 1].x + order[i - 1].width) << i;  // left to right, apart
        }
    }
    EXPECT_LE(b.sentGraph.x + b.sentGraph.width, g.band.width);
    EXPECT_EQ(b.receivedGraph.height, 29);
    EXPECT_EQ(b.computerName.height, 18);
    EXPECT_EQ(b.receivedGraph.width, b.sentGraph.width);
}

TEST(Place, TheBandKeepsItsProportionsAtAnotherDpi) {
    ResizeRule rule;
    const WindowGeometry at96 = Place(rule, Metrics(15, 300));
    const WindowGeometry at144 = Place(rule, Metrics(10, 450));
    EXPECT_EQ(at144.list.y, 74);
    EXPECT_NEAR(at144.bandItems.sentGraph.x, at96.bandItems.sentGraph.x * 1.5, 2);
    EXPECT_NEAR(at144.bandItems.receivedGraph.width, at96.bandItems.receivedGraph.width * 1.5, 1);
}

TEST(Place, ATinyWindowGivesNoNegativeSizes) {
    ResizeRule rule;
    rule.Resize(300, 200);
    const WindowGeometry g = Place(rule, Metrics(15, 5));
    EXPECT_EQ(g.band.height, 0);
    for (const PixelRect& r : {g.bandItems.computerName, g.bandItems.receivedGraph, g.bandItems.sentLabel}) {
        EXPECT_GE(r.height, 0);
        EXPECT_GE(r.width, 0);
    }
    EXPECT_GE(g.list.height, 0);
}

}  // namespace
}  // namespace mainwindow
