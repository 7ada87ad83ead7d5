#include "controls/graph_move_model.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"

namespace controls {
namespace {

void ExpectError(base::RuntimeErrorNumber number, auto&& call) {
    try {
        call();
        FAIL() << "no runtime error";
    } catch (const base::RuntimeError& error) {
        EXPECT_EQ(error.Number(), number);
    }
}

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

TEST(GraphMove, DefaultsHoldOneZeroAndConvertGridMeasuresOneToOne) {
    GraphMoveModel graph;
    EXPECT_EQ(graph.Values(), std::vector<float>{0.0f});
    EXPECT_EQ(graph.Properties(), GraphProperties{});
    EXPECT_EQ(graph.Properties().BackColor, 0x8000000Fu);
    EXPECT_EQ(graph.ClientWidth(), 181);
    EXPECT_EQ(graph.ClientHeight(), 109);
    EXPECT_FLOAT_EQ(graph.ConvertY(2), 2.0f);
    EXPECT_FLOAT_EQ(graph.ConvertX(10), 10.0f);
}

TEST(GraphMove, DefaultWidthHolds1359ValuesThenRolls) {
    GraphMoveModel graph;
    for (int i = 1; i <= 1358; ++i) ASSERT_TRUE(graph.setValue(static_cast<float>(i % 100)));
    ASSERT_EQ(graph.Values().size(), 1359u);  // capacity 2715 / 2 = 1357.5 < upper bound 1358
    EXPECT_EQ(graph.Values().front(), 0.0f);
    EXPECT_EQ(graph.Values().back(), 58.0f);

    ASSERT_TRUE(graph.setValue(99));
    ASSERT_EQ(graph.Values().size(), 1359u);
    EXPECT_EQ(graph.Values().front(), 1.0f);  // the creation zero fell off
    EXPECT_EQ(graph.Values()[1357], 58.0f);
    EXPECT_EQ(graph.Values().back(), 99.0f);
}

TEST(GraphMove, LongRollKeepsTheNewestValuesInOrder) {
    GraphMoveModel graph = SmallGraph();  // four values
    for (int i = 1; i <= 23; ++i) {
        ASSERT_TRUE(graph.setValue(static_cast<float>(i % 11)));
        if (i < 3) continue;
        const auto expected = [&](int back) { return static_cast<float>((i - back) % 11); };
        ASSERT_EQ(graph.Values(), (std::vector<float>{expected(3), expected(2), expected(1), expected(0)})) << i;
        ASSERT_EQ(Trend(graph).back(), (GraphLine{100, 75 - 7.5f * expected(1), 150, 75 - 7.5f * expected(0), kTrend}))
            << i;
    }
}

TEST(GraphMove, SmallCaseGridAndPoints) {
    GraphMoveModel graph = SmallGraph();
    ASSERT_TRUE(graph.setValue(10));
    EXPECT_EQ(graph.Picture(), [] {
        auto lines = kSmallGrid;
        lines.push_back({100, 75, 150, 0, kTrend});
        return lines;
    }());
    ASSERT_TRUE(graph.setValue(4));
    ASSERT_TRUE(graph.setValue(2));
    // Capacity 150 / 50 = 3: the array grows to four values before it rolls.
    EXPECT_EQ(graph.Values(), (std::vector<float>{0, 10, 4, 2}));
    EXPECT_EQ(Trend(graph), (std::vector<GraphLine>{
                                {0, 75, 50, 0, kTrend}, {50, 0, 100, 45, kTrend}, {100, 45, 150, 60, kTrend}}));
    ASSERT_TRUE(graph.setValue(5));
    EXPECT_EQ(graph.Values(), (std::vector<float>{10, 4, 2, 5}));
    // The grid stays where it was; only the trend moves left.
    EXPECT_EQ(std::vector<GraphLine>(graph.Picture().begin(), graph.Picture().begin() + 6), kSmallGrid);
    EXPECT_EQ(Trend(graph).front(), (GraphLine{0, 0, 50, 45, kTrend}));
    EXPECT_EQ(Trend(graph).back(), (GraphLine{100, 60, 150, 37.5f, kTrend}));
}

TEST(GraphMove, ScrollOffsetAdvancesByTheStepAndWrapsPastTheWidth) {
    GraphMoveModel graph = SmallGraph();
    graph.setValue(1);
    graph.setValue(1);
    graph.setValue(1);
    EXPECT_EQ(graph.ScrollOffset(), 150.0f);  // reaching the width is not past it
    graph.Redraw();
    EXPECT_EQ(graph.ScrollOffset(), 0.0f);
    graph.Resize(10, 5);
    EXPECT_EQ(graph.ScrollOffset(), 50.0f);
}

TEST(GraphMove, StepUsesTheVerticalConversionAndTheGridItsOwnAxis) {
    GraphMoveModel graph = SmallGraph(40, 30, 50);
    graph.SetClientSize(20, 5);  // two pixels per unit across, one down
    EXPECT_FLOAT_EQ(graph.ConvertX(40), 20.0f);
    ASSERT_TRUE(graph.setValue(10));
    const auto& picture = graph.Picture();
    // Vertical grid lines every 20 units from 19; the step stays 50.
    EXPECT_EQ(picture[3], (GraphLine{19, 0, 19, 75, kGrid}));
    EXPECT_EQ(picture[4], (GraphLine{39, 0, 39, 75, kGrid}));
    EXPECT_EQ(picture.back(), (GraphLine{100, 75, 150, 0, kTrend}));
    EXPECT_EQ(graph.ScrollOffset(), 50.0f);
}

TEST(GraphMove, BoundaryValuesAreAcceptedAndDrawnOnTheEdges) {
    GraphMoveModel graph = SmallGraph();
    EXPECT_TRUE(graph.setValue(10));
    EXPECT_TRUE(graph.setValue(0));
    const GraphLine last = graph.Picture().back();
    EXPECT_EQ(last.y1, 0.0f);
    EXPECT_EQ(last.y2, 75.0f);
    EXPECT_EQ(graph.ToPixels(last.x1, last.y1), (PixelPoint{6, 0}));
    EXPECT_EQ(graph.ToPixels(last.x2, last.y2), (PixelPoint{9, 4}));  // the last column and row
}

TEST(GraphMove, RefusedValuesChangeNothing) {
    GraphMoveModel graph = SmallGraph();
    graph.setValue(3);
    const auto values = graph.Values();
    const auto picture = graph.Picture();
    const float offset = graph.ScrollOffset();
    EXPECT_FALSE(graph.setValue(10.001f));
    EXPECT_FALSE(graph.setValue(-0.001f));
    EXPECT_FALSE(graph.setValue(250000));
    EXPECT_EQ(graph.Values(), values);
    EXPECT_EQ(graph.Picture(), picture);
    EXPECT_EQ(graph.ScrollOffset(), offset);
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
    const auto& picture = graph.Picture();
    EXPECT_EQ(picture[picture.size() - 3].x1, -90.0f);
    EXPECT_EQ(picture.back().x2, 60.0f);
}

TEST(GraphMove, EqualLimitsFailTheRedrawAfterTheValueIsStored) {
    GraphMoveModel graph = SmallGraph();
    GraphProperties p = graph.Properties();
    p.MaxValue = 5;
    p.MinValue = 5;
    graph.SetProperties(p);
    ExpectError(base::RuntimeErrorNumber::DivisionByZero, [&] { graph.setValue(5); });
    EXPECT_EQ(graph.Values(), (std::vector<float>{0, 5}));

    // No height makes the step zero: the capacity fails before anything is stored, and the
    // trend's zero over zero is the runtime's overflow.
    p.innerHeight = 0;
    graph.SetProperties(p);
    ExpectError(base::RuntimeErrorNumber::DivisionByZero, [&] { graph.setValue(5); });
    EXPECT_EQ(graph.Values(), (std::vector<float>{0, 5}));
    ExpectError(base::RuntimeErrorNumber::Overflow, [&] { graph.Redraw(); });
}

TEST(GraphMove, GridLoopsCountIn16Bits) {
    GraphMoveModel tall = SmallGraph();
    GraphProperties p = tall.Properties();
    p.innerHeight = 40000;
    tall.SetProperties(p);
    ExpectError(base::RuntimeErrorNumber::Overflow, [&] { tall.Redraw(); });

    // 32759 is the last line, but the counter then steps to 32769.
    GraphMoveModel wide = SmallGraph(10, 30, 50);
    p = wide.Properties();
    p.innerWidth = 32760;
    wide.SetProperties(p);
    wide.SetClientSize(2184, 5);
    ExpectError(base::RuntimeErrorNumber::Overflow, [&] { wide.Redraw(); });
    p.innerWidth = 32750;
    wide.SetProperties(p);
    wide.SetClientSize(2183, 5);  // 32745 twips: a whisker under one unit per twip
    EXPECT_NO_THROW(wide.Redraw());
}

TEST(GraphMove, ZeroGridSpacingDrawsNoGridLines) {
    GraphMoveModel graph = SmallGraph(0.2f, 0.4f, 50);
    graph.setValue(5);
    EXPECT_EQ(graph.Picture().size(), 1u);
}

TEST(GraphMove, OtherScaleModesConvertThroughTwips) {
    GraphMoveModel graph = SmallGraph();
    GraphProperties p = graph.Properties();
    p.ScaleMode = kScalePixels;
    graph.SetProperties(p);
    EXPECT_FLOAT_EQ(graph.ConvertX(2), 30.0f);
    p.ScaleMode = kScalePoints;
    graph.SetProperties(p);
    EXPECT_FLOAT_EQ(graph.ConvertY(3), 60.0f);
    p.ScaleMode = kScaleCharacters;
    graph.SetProperties(p);
    EXPECT_FLOAT_EQ(graph.ConvertX(1), 120.0f);
    EXPECT_FLOAT_EQ(graph.ConvertY(1), 240.0f);
}

TEST(GraphMove, NewBackColourErasesThePicture) {
    GraphMoveModel graph = SmallGraph();
    graph.setValue(4);
    GraphProperties p = graph.Properties();
    p.GraphColor = base::Rgb(255, 0, 0);
    graph.SetProperties(p);
    EXPECT_EQ(graph.Picture().back().colour, kTrend);  // drawn before the change
    graph.Redraw();
    EXPECT_EQ(graph.Picture().back().colour, base::Rgb(255, 0, 0));
    p.BackColor = base::kBlack;
    graph.SetProperties(p);
    EXPECT_TRUE(graph.Picture().empty());
    EXPECT_EQ(graph.Values().size(), 2u);
}

TEST(GraphMove, PixelsAndScaleConvertBothWays) {
    GraphMoveModel graph;  // 2715 x 1635 over 181 x 109
    EXPECT_EQ(graph.ToPixels(0, 0), (PixelPoint{0, 0}));
    EXPECT_EQ(graph.ToPixels(2715, 1635), (PixelPoint{180, 108}));
    EXPECT_EQ(graph.ToPixels(1357.5f, 817.5f), (PixelPoint{90, 54}));
    const auto [x, y] = graph.ToScale(180, 54);
    EXPECT_FLOAT_EQ(x, 2715.0f);
    EXPECT_FLOAT_EQ(y, 817.5f);
}

TEST(GraphMoveProperties, DefaultsAreNotStoredAndMissingNamesReadAsDefaults) {
    GraphMoveModel graph;
    PropertyBag bag;
    graph.WriteProperties(bag);
    EXPECT_EQ(bag.Save(), "");

    GraphMoveModel restored;
    restored.ReadProperties(bag);
    EXPECT_EQ(restored.Properties(), GraphProperties{});
}

TEST(GraphMoveProperties, EveryPropertyRoundTripsUnderItsOwnName) {
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
    for (const char* name : {"BackColor", "BorderStyle", "GridSpaceX", "GridSpaceY", "GridStep", "MaxValue",
                             "MinValue", "innerWidth", "innerHeight", "ScaleMode", "ToolTipText", "MousePointer",
                             "MouseIcon", "GraphColor", "GridColor"}) {
        EXPECT_TRUE(bag.Contains(name)) << name;
    }
    EXPECT_EQ(bag.Read("GridColor", ""), "-2147483630");
    EXPECT_EQ(bag.Read("MaxValue", ""), "100000");

    GraphMoveModel restored;
    restored.ReadProperties(PropertyBag::Load(bag.Save()));
    EXPECT_EQ(restored.Properties(), p);
}

TEST(GraphMoveProperties, StoredTextThatIsNoNumberIsATypeMismatch) {
    PropertyBag bag = PropertyBag::Load("MaxValue=lots\r\n");
    GraphMoveModel graph;
    ExpectError(base::RuntimeErrorNumber::TypeMismatch, [&] { graph.ReadProperties(bag); });
    ExpectError(base::RuntimeErrorNumber::Overflow,
                [&] { graph.ReadProperties(PropertyBag::Load("BorderStyle=40000\r\n")); });
    // Beyond the single-precision range.
    ExpectError(base::RuntimeErrorNumber::Overflow,
                [&] { graph.ReadProperties(PropertyBag::Load("MaxValue=1E39\r\n")); });
    graph.ReadProperties(PropertyBag::Load("MaxValue=3.4E38\r\n"));
    EXPECT_FLOAT_EQ(graph.Properties().MaxValue, 3.4e38f);
}

TEST(GraphMoveProperties, InitPropertiesResetsTheGridRangeAndValues) {
    GraphMoveModel graph = SmallGraph();
    graph.setValue(7);
    const std::vector<GraphLine> drawn = graph.Picture();
    graph.setValue(8);
    graph.InitProperties();
    EXPECT_EQ(graph.Values(), std::vector<float>{0.0f});
    EXPECT_NE(graph.Picture(), drawn);
    EXPECT_EQ(graph.Picture().back(), (GraphLine{100, 22.5f, 150, 15, kTrend}));  // the picture stays until a redraw
    EXPECT_EQ(graph.Properties().GridStep, 2.0f);
    EXPECT_EQ(graph.Properties().MaxValue, 100.0f);
    EXPECT_EQ(graph.Properties().GridColor, kGrid);
    EXPECT_EQ(graph.Properties().innerWidth, 150.0f);  // the picture box's own measures stay
}

}  // namespace
}  // namespace controls
