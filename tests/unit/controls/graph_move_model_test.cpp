#include "controls/graph_move_model.h"

#include <gtest/gtest.h>

#include "unit/expect_runtime_error.h"

namespace controls {
namespace {

// A graph whose scale is 150 x 75 units over 10 x 5 pixels of 15 twips: one unit is one twip
// both ways, so the measures below come out as given.
GraphMoveModel SmallGraph(float gridSpaceX = 40, float gridSpaceY = 30, float gridStep = 50) {
    GraphMoveModel graph;
    GraphProperties p = graph.Properties();
    p.innerWidth = 150;
    p.innerHeight = 75;
    p.GridSpaceX = gridSpaceX;
    p.GridSpaceY = gridSpaceY;
    p.GridStep = gridStep;
    p.MaxValue = 10;
    p.MinValue = 0;
    graph.SetProperties(p);
    graph.SetClientSize(10, 5);
    return graph;
}

constexpr base::Colour kGrid = base::Rgb(0, 128, 0);
constexpr base::Colour kTrend = base::Rgb(0, 255, 0);

const std::vector<GraphLine> kSmallGrid = {
    {0, 75, 150, 75, kGrid},  {0, 45, 150, 45, kGrid},  {0, 15, 150, 15, kGrid},
    {39, 0, 39, 75, kGrid},   {79, 0, 79, 75, kGrid},   {119, 0, 119, 75, kGrid},
};

std::vector<GraphLine> Trend(const GraphMoveModel& graph) {
    const auto& picture = graph.Picture();
    return {picture.begin() + static_cast<std::ptrdiff_t>(kSmallGrid.size()), picture.end()};
}

TEST(GraphMove, DefaultWidthHolds1359ValuesThenRolls) {
    GraphMoveModel graph;
    EXPECT_EQ(graph.Values(), std::vector<float>{0.0f});
    for (int i = 1; i <= 5999; ++i) {
        ASSERT_TRUE(graph.setValue(static_cast<float>(i % 100)));
        // Once full, the oldest value kept is the right one at every step, through several
        // compactions of the store; at 1359 values the creation zero falls off.
        if (i >= 1358) {
            ASSERT_EQ(graph.Values().front(), static_cast<float>((i - 1358) % 100)) << i;
        }
    }
    ASSERT_EQ(graph.Values().size(), 1359u);  // capacity 2715 / 2 = 1357.5 < upper bound 1358
    EXPECT_EQ(graph.Values().back(), 99.0f);
}

TEST(GraphMove, GridStaysAndTheTrendRollsLeft) {
    GraphMoveModel graph = SmallGraph();
    for (float v : {10.0f, 4.0f, 2.0f}) ASSERT_TRUE(graph.setValue(v));
    // Capacity 150 / 50 = 3: the array grows to four values before it rolls.
    EXPECT_EQ(graph.Values(), (std::vector<float>{0, 10, 4, 2}));
    EXPECT_EQ(Trend(graph), (std::vector<GraphLine>{
                                {0, 75, 50, 0, kTrend}, {50, 0, 100, 45, kTrend}, {100, 45, 150, 60, kTrend}}));
    EXPECT_EQ(graph.ScrollOffset(), 150.0f);  // reaching the width is not past it
    ASSERT_TRUE(graph.setValue(5));
    EXPECT_EQ(graph.ScrollOffset(), 0.0f);
    EXPECT_EQ(graph.Values(), (std::vector<float>{10, 4, 2, 5}));
    EXPECT_EQ(std::vector<GraphLine>(graph.Picture().begin(), graph.Picture().begin() + 6), kSmallGrid);
    EXPECT_EQ(Trend(graph).back(), (GraphLine{100, 60, 150, 37.5f, kTrend}));
}

TEST(GraphMove, StepUsesTheVerticalConversionAndTheGridItsOwnAxis) {
    GraphMoveModel graph = SmallGraph(40, 30, 50);
    graph.SetClientSize(20, 5);  // two pixels per unit across, one down
    ASSERT_TRUE(graph.setValue(10));
    EXPECT_EQ(graph.Picture()[3], (GraphLine{19, 0, 19, 75, kGrid}));  // every 20 units from 19
    EXPECT_EQ(graph.ScrollOffset(), 50.0f);
}

TEST(GraphMove, ValuesOutsideTheLimitsAreRefusedAndChangeNothing) {
    GraphMoveModel graph = SmallGraph();
    EXPECT_TRUE(graph.setValue(10));
    EXPECT_TRUE(graph.setValue(0));
    EXPECT_EQ(graph.ToPixels(graph.Picture().back().x2, graph.Picture().back().y2), (PixelPoint{9, 4}));
    EXPECT_FALSE(graph.setValue(10.001f));
    EXPECT_FALSE(graph.setValue(-0.001f));
    EXPECT_EQ(graph.Values(), (std::vector<float>{0, 10, 0}));
}

TEST(GraphMove, NarrowerWidthKeepsTheLengthAndDropsPointsOffTheLeft) {
    GraphMoveModel graph = SmallGraph();
    for (float v : {1.0f, 2.0f, 3.0f}) graph.setValue(v);
    GraphProperties p = graph.Properties();
    p.innerWidth = 60;  // capacity 1.2
    graph.SetProperties(p);
    graph.SetClientSize(4, 5);
    graph.setValue(4);
    EXPECT_EQ(graph.Values(), (std::vector<float>{1, 2, 3, 4}));
    EXPECT_EQ(graph.Picture()[graph.Picture().size() - 3].x1, -90.0f);
}

TEST(GraphMove, RuntimeErrorsOfTheDrawing) {
    GraphMoveModel graph = SmallGraph();
    GraphProperties p = graph.Properties();
    p.MaxValue = p.MinValue = 5;
    graph.SetProperties(p);
    ExpectRuntimeError(base::RuntimeErrorNumber::DivisionByZero, [&] { graph.setValue(5); });
    EXPECT_EQ(graph.Values(), (std::vector<float>{0, 5}));  // stored before the redraw failed
    p.innerHeight = 0;  // no height makes the step zero: the capacity fails first
    graph.SetProperties(p);
    ExpectRuntimeError(base::RuntimeErrorNumber::DivisionByZero, [&] { graph.setValue(5); });
    ExpectRuntimeError(base::RuntimeErrorNumber::Overflow, [&] { graph.Redraw(); });  // 0 / 0

    // The grid loops count in 16 bits: 32759 is the last line, but the counter steps to 32769.
    GraphMoveModel wide = SmallGraph(10, 30, 50);
    p = wide.Properties();
    p.innerWidth = 32760;
    wide.SetProperties(p);
    wide.SetClientSize(2184, 5);
    ExpectRuntimeError(base::RuntimeErrorNumber::Overflow, [&] { wide.Redraw(); });

    GraphMoveModel noGrid = SmallGraph(0.2f, 0.4f, 50);  // spacings that round to 0 draw no lines
    noGrid.setValue(5);
    EXPECT_EQ(noGrid.Picture().size(), 1u);
}

TEST(GraphMoveProperties, DefaultsAreNotStoredAndEveryOtherValueRoundTrips) {
    PropertyBag defaults;
    GraphMoveModel().WriteProperties(defaults);
    EXPECT_EQ(defaults.Save(), "");

    GraphMoveModel graph;
    GraphProperties p;
    p.BackColor = base::Rgb(1, 2, 3);
    p.BorderStyle = 0;
    p.GridSpaceX = 12.5f;
    p.GridSpaceY = 0.1f;
    p.GridStep = 4;
    p.MaxValue = 100000;
    p.MinValue = -5;
    p.innerWidth = 3000;
    p.innerHeight = 1000;
    p.ScaleMode = kScalePixels;
    p.ToolTipText = "受信\r\nA=B \\ C";
    p.MousePointer = 99;
    p.MouseIcon = "C:\\cursors\\hand.cur";
    p.GraphColor = base::Rgb(255, 0, 0);
    p.GridColor = 0x80000012;
    graph.SetProperties(p);
    PropertyBag bag;
    graph.WriteProperties(bag);
    EXPECT_EQ(bag.Read("GridColor", ""), "-2147483630");  // colours are stored signed
    GraphMoveModel restored;
    restored.ReadProperties(PropertyBag::Load(bag.Save()));
    EXPECT_EQ(restored.Properties(), p);
}

TEST(GraphMoveProperties, InitResetsTheGridRangeAndValuesAndABackColourErasesThePicture) {
    GraphMoveModel graph = SmallGraph();
    graph.setValue(7);
    graph.InitProperties();  // what every new graph runs
    EXPECT_EQ(graph.Values(), std::vector<float>{0.0f});
    EXPECT_EQ(graph.Properties().GridStep, 2.0f);
    EXPECT_EQ(graph.Properties().MaxValue, 100.0f);

    graph.setValue(4);
    GraphProperties p = graph.Properties();
    p.BackColor = base::kBlack;  // a new back colour erases the picture, not the values
    graph.SetProperties(p);
    EXPECT_TRUE(graph.Picture().empty());
    EXPECT_EQ(graph.Values().size(), 2u);
}

}  // namespace
}  // namespace controls
