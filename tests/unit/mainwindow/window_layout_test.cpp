#include "mainwindow/window_layout.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

TEST(ResizeRule, ANegativeSizeIsPassedOverAndTheOldOneStays) {
    ResizeRule rule;
    rule.Resize(15000, 9000);
    EXPECT_EQ(rule.ListWidth(), 14900);
    EXPECT_EQ(rule.ListHeight(), 6900);
    EXPECT_EQ(rule.TabWidth(), 14908);
    rule.Resize(15000, 2200);  // below 2300: the tab strip keeps its height, the lists shrink
    EXPECT_EQ(rule.TabHeight(), 6700);
    EXPECT_EQ(rule.ListHeight(), 100);
    rule.Resize(90, 0);  // minimised or tiny: nothing negative, the rest still follows
    EXPECT_EQ(rule.ToolbarWidth(), 90);
    EXPECT_EQ(rule.ListHeight(), 100);
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

TEST(Place, TheListsSitAt740TwipsAndTheBandBelowThem) {
    ResizeRule rule;  // the load-time size, 12775 x 5100 twips
    // At 96 DPI: a client area of 300 of the form's 340 pixels.
    const WindowGeometry g = Place(rule, Metrics(15, 300));
    EXPECT_EQ(g.list, (PixelRect{0, 49, 845, 200}));
    EXPECT_EQ(g.tabStrip.y, 28);  // the tabs end where the lists begin
    EXPECT_EQ(g.band, (PixelRect{0, 249, 845, 31}));

    const BandLayout& b = g.bandItems;
    const PixelRect order[] = {b.computerName, b.interfaceLabel, b.receivedCaption, b.receivedLabel,
                               b.receivedGraph, b.sentCaption,   b.sentLabel,       b.sentGraph};
    for (std::size_t i = 0; i < std::size(order); ++i) {
        EXPECT_GE(order[i].y, g.band.y);  // inside the band
        EXPECT_LE(order[i].Bottom(), g.band.Bottom());
        EXPECT_GE(order[i].height, 0);
        EXPECT_GT(order[i].width, 0);
        if (i > 0) {
            EXPECT_GE(order[i].x, order[i - 1].x + order[i - 1].width) << i;  // left to right, apart
        }
    }
    EXPECT_LE(b.sentGraph.x + b.sentGraph.width, g.band.width);
}

}  // namespace
}  // namespace mainwindow
