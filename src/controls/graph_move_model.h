#pragma once
// The trend graph without a screen: its properties, the retained values and the lines each
// redraw produces. picTrend's scale runs from (0, 0) at the top-left of its client area to
// (innerWidth, innerHeight) at the bottom-right, whatever the area's size in pixels; grid
// measures are given in the control's scale mode and converted into that scale through the
// client area's size, so the step and the grid follow the control when it is resized.
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/colour.h"
#include "base/twips.h"
#include "controls/property_bag.h"

namespace controls {

// Scale modes of the grid measures.
enum ScaleModeValue : std::int16_t {
    kScaleUser = 0,  // the control keeps no scale of its own: measured like twips
    kScaleTwips = 1,
    kScalePoints = 2,
    kScalePixels = 3,
    kScaleCharacters = 4,
    kScaleInches = 5,
    kScaleMillimetres = 6,
    kScaleCentimetres = 7,
};

struct GraphProperties {
    base::Colour BackColor = base::kButtonFace;
    std::int16_t BorderStyle = 1;  // 0 none, 1 sunken single line
    float GridSpaceX = 10;
    float GridSpaceY = 10;
    float GridStep = 2;
    float MaxValue = 100;
    float MinValue = 0;
    float innerWidth = 2715;
    float innerHeight = 1635;
    std::int16_t ScaleMode = kScaleTwips;
    std::string ToolTipText;
    std::int16_t MousePointer = 0;  // 0 default, 1..15 the standard cursors, 99 MouseIcon
    std::string MouseIcon;          // cursor or icon file shown for MousePointer 99; empty for none
    base::Colour GraphColor = base::Rgb(0, 255, 0);
    base::Colour GridColor = base::Rgb(0, 128, 0);

    bool operator==(const GraphProperties&) const = default;
};

// One line of the picture, in picTrend's scale.
struct GraphLine {
    float x1, y1, x2, y2;
    base::Colour colour;

    bool operator==(const GraphLine&) const = default;
};

struct PixelPoint {
    int x, y;

    bool operator==(const PixelPoint&) const = default;
};

class GraphMoveModel {
public:
    // Twips per pixel of the screen; the client area starts at the size that makes one scale
    // unit one twip with the default inner size.
    explicit GraphMoveModel(base::TwipsPerPixel screen = {});

    // A control newly placed by its host: grid colour, grid measures, value range, one zero value.
    void InitProperties();
    // A control restored by its host: every property read from the bag, defaults for the rest.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    const GraphProperties& Properties() const { return m_properties; }
    // A new back colour erases the picture, as it does on a picture box.
    void SetProperties(const GraphProperties& properties);

    // Adds one value and redraws; false, with nothing changed, for a value outside
    // MinValue..MaxValue. A redraw with MaxValue equal to MinValue raises the division error.
    bool setValue(float Value);

    // picTrend's client area in pixels (its border changed); nothing is redrawn.
    void SetClientSize(int widthPixels, int heightPixels);
    // picTrend took the control's new inner size: the graph is drawn again.
    void Resize(int widthPixels, int heightPixels);
    void Redraw();

    // The retained values, oldest first.
    std::vector<float> Values() const;
    float ScrollOffset() const { return m_scrollOffset; }
    // The lines of the last redraw, grid first, in drawing order. A redraw only checks its
    // measures; the lines are made here, when somebody looks, so that a graph nobody sees (the
    // window hidden in the tray for days) costs no drawing per value.
    const std::vector<GraphLine>& Picture() const;

    // Measures of the control's scale mode in picTrend's scale, horizontally and vertically.
    float ConvertX(float measure) const;
    float ConvertY(float measure) const;

    // Scale units to client pixels and back. The scale's edges fall on the outermost pixel
    // columns and rows, so values equal to MaxValue and MinValue stay visible.
    PixelPoint ToPixels(float x, float y) const;
    std::pair<float, float> ToScale(int x, int y) const;
    int ClientWidth() const { return m_clientWidth; }
    int ClientHeight() const { return m_clientHeight; }

private:
    // What one redraw drew with: the measures in picTrend's scale and the colours of the time.
    struct Drawing {
        float width, height, gridX, gridY, step, minimum, perValue;
        base::Colour gridColour, graphColour;
    };

    template <typename Draw>
    static void ForEachGridLine(const Drawing& drawing, Draw draw);
    void DrawTrend(const Drawing& drawing) const;
    std::span<const float> Series() const { return std::span<const float>(m_store).subspan(m_first); }
    void DropOldestAndAppend(float value);

    base::TwipsPerPixel m_screen;
    GraphProperties m_properties;
    // The retained values are m_store[m_first..]: a full graph drops its oldest value by moving
    // m_first on, so a value written every second for days costs no copy of the whole series.
    std::vector<float> m_store{0.0f};
    std::size_t m_first = 0;
    float m_scrollOffset = 0;
    std::optional<Drawing> m_drawing;  // none: the picture is erased
    mutable std::vector<GraphLine> m_picture;
    mutable bool m_pictureStale = false;
    int m_clientWidth;
    int m_clientHeight;
};

}  // namespace controls
