#include "controls/graph_move_model.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/conversions.h"
#include "base/runtime_error.h"

namespace controls {
namespace {

// Twips in one unit of a scale mode along one axis.
double TwipsPerUnit(std::int16_t scaleMode, int twipsPerPixel, bool horizontal) {
    switch (scaleMode) {
    case kScalePoints: return 20;
    case kScalePixels: return twipsPerPixel;
    case kScaleCharacters: return horizontal ? 120 : 240;
    case kScaleInches: return 1440;
    case kScaleMillimetres: return 1440 / 25.4;
    case kScaleCentimetres: return 1440 / 2.54;
    default: return 1;
    }
}

// Single-precision division with the runtime's errors: x / 0 is a division by zero, 0 / 0 an overflow.
float Divide(float dividend, float divisor) {
    if (divisor == 0) {
        throw base::RuntimeError(dividend == 0 ? base::RuntimeErrorNumber::Overflow
                                               : base::RuntimeErrorNumber::DivisionByZero);
    }
    return dividend / divisor;
}

// A For loop over a 16-bit counter: bounds and step are converted to 16 bits, and the step
// that carries the counter past the 16-bit range raises the overflow error, even after the
// last pass. A step of zero draws nothing (the runtime would spin on it forever).
template <typename Body>
void ForInt16(double first, double last, double step, Body body) {
    const std::int32_t from = base::ToInt16(first);
    const std::int32_t to = base::ToInt16(last);
    const std::int32_t by = base::ToInt16(step);
    if (by == 0) return;
    for (std::int32_t i = from; by > 0 ? i <= to : i >= to;) {
        body(static_cast<float>(i));
        i += by;
        if (i > std::numeric_limits<std::int16_t>::max() || i < std::numeric_limits<std::int16_t>::min()) {
            throw base::RuntimeError(base::RuntimeErrorNumber::Overflow);
        }
    }
}

// Property values in the bag: colours as signed 32-bit numbers, as the runtime stores them.
std::string Encode(base::Colour colour) { return base::NumberText(static_cast<std::int32_t>(colour)); }
std::string Encode(std::int16_t value) { return base::NumberText(value); }
std::string Encode(float value) { return base::NumberText(value); }
std::string Encode(const std::string& value) { return value; }

void Decode(const std::string& text, base::Colour& colour) { colour = static_cast<base::Colour>(base::ToInt32(text)); }
void Decode(const std::string& text, std::int16_t& value) { value = base::ToInt16(text); }
void Decode(const std::string& text, float& value) { value = base::ToSingle(base::ToDouble(text)); }
void Decode(const std::string& text, std::string& value) { value = text; }

// Every persisted property with its name, in the order they are read; with two records the
// visitor gets the same member of each.
template <typename Visitor, typename... Properties>
void ForEachProperty(Visitor&& visit, Properties&... p) {
    visit("BackColor", p.BackColor...);
    visit("BorderStyle", p.BorderStyle...);
    visit("GridSpaceX", p.GridSpaceX...);
    visit("GridSpaceY", p.GridSpaceY...);
    visit("GridStep", p.GridStep...);
    visit("MaxValue", p.MaxValue...);
    visit("MinValue", p.MinValue...);
    visit("innerWidth", p.innerWidth...);
    visit("innerHeight", p.innerHeight...);
    visit("ScaleMode", p.ScaleMode...);
    visit("ToolTipText", p.ToolTipText...);
    visit("MousePointer", p.MousePointer...);
    visit("MouseIcon", p.MouseIcon...);
    visit("GraphColor", p.GraphColor...);
    visit("GridColor", p.GridColor...);
}

int PixelsFor(float scale, int twipsPerPixel) { return base::TwipsToPixels(scale, twipsPerPixel); }

}  // namespace

GraphMoveModel::GraphMoveModel(base::TwipsPerPixel screen)
    : m_screen(screen),
      m_clientWidth(PixelsFor(m_properties.innerWidth, screen.x)),
      m_clientHeight(PixelsFor(m_properties.innerHeight, screen.y)) {}

void GraphMoveModel::InitProperties() {
    const GraphProperties defaults;
    m_properties.GridColor = defaults.GridColor;
    m_properties.GridSpaceX = defaults.GridSpaceX;
    m_properties.GridSpaceY = defaults.GridSpaceY;
    m_properties.GridStep = defaults.GridStep;
    m_properties.MaxValue = defaults.MaxValue;
    m_properties.MinValue = defaults.MinValue;
    Picture();  // the picture keeps the values it was drawn with
    m_store.assign(1, 0.0f);
    m_first = 0;
}

void GraphMoveModel::ReadProperties(const PropertyBag& bag) {
    GraphProperties read;
    ForEachProperty([&bag](const char* name, auto& field) { Decode(bag.Read(name, Encode(field)), field); }, read);
    SetProperties(read);
}

void GraphMoveModel::WriteProperties(PropertyBag& bag) const {
    const GraphProperties defaults;
    ForEachProperty([&bag](const char* name, const auto& field, const auto& fallback) {
        bag.Write(name, Encode(field), Encode(fallback));
    }, m_properties, defaults);
}

void GraphMoveModel::SetProperties(const GraphProperties& properties) {
    if (properties.BackColor != m_properties.BackColor) {
        m_drawing.reset();
        m_picture.clear();
        m_pictureStale = false;
    }
    m_properties = properties;
}

bool GraphMoveModel::setValue(float Value) {
    if (Value > m_properties.MaxValue || Value < m_properties.MinValue) return false;
    const float step = ConvertY(m_properties.GridStep);
    const float capacity = Divide(m_properties.innerWidth, step);
    const auto upperBound = Series().size() - 1;
    if (static_cast<double>(capacity) <= static_cast<double>(upperBound)) {
        DropOldestAndAppend(Value);
    } else {
        m_store.push_back(Value);
    }
    Redraw();
    return true;
}

void GraphMoveModel::DropOldestAndAppend(float value) {
    ++m_first;
    m_store.push_back(value);
    // The dropped values are let go of once there are as many of them as retained ones: one copy
    // of the series per series' length of values.
    if (m_first >= m_store.size() - m_first) {
        m_store.erase(m_store.begin(), m_store.begin() + static_cast<std::ptrdiff_t>(m_first));
        m_first = 0;
    }
}

std::vector<float> GraphMoveModel::Values() const {
    const std::span<const float> series = Series();
    return {series.begin(), series.end()};
}

void GraphMoveModel::SetClientSize(int widthPixels, int heightPixels) {
    m_clientWidth = std::max(widthPixels, 0);
    m_clientHeight = std::max(heightPixels, 0);
}

void GraphMoveModel::Resize(int widthPixels, int heightPixels) {
    SetClientSize(widthPixels, heightPixels);
    Redraw();
}

void GraphMoveModel::Redraw() {
    Drawing drawing{.width = m_properties.innerWidth,
                    .height = m_properties.innerHeight,
                    .gridX = ConvertX(m_properties.GridSpaceX),
                    .gridY = ConvertY(m_properties.GridSpaceY),
                    .step = ConvertY(m_properties.GridStep),
                    .minimum = m_properties.MinValue,
                    .perValue = 0,
                    .gridColour = m_properties.GridColor,
                    .graphColour = m_properties.GraphColor};
    // The grid's loops run now, without drawing, for the errors their counters raise.
    ForEachGridLine(drawing, [](const GraphLine&) {});
    m_scrollOffset += drawing.step;
    if (m_scrollOffset > drawing.width) m_scrollOffset = 0;
    if (Series().size() >= 2) drawing.perValue = Divide(drawing.height, m_properties.MaxValue - drawing.minimum);
    m_drawing = std::move(drawing);
    m_pictureStale = true;
}

const std::vector<GraphLine>& GraphMoveModel::Picture() const {
    if (m_pictureStale) {
        m_picture.clear();
        ForEachGridLine(*m_drawing, [this](const GraphLine& line) { m_picture.push_back(line); });
        DrawTrend(*m_drawing);
        m_pictureStale = false;
    }
    return m_picture;
}

template <typename Draw>
void GraphMoveModel::ForEachGridLine(const Drawing& d, Draw draw) {
    const double spaceY = base::ToInt16(d.gridY);
    ForInt16(d.height, 0, -spaceY, [&](float y) { draw(GraphLine{0, y, d.width, y, d.gridColour}); });
    ForInt16(d.gridX - 1, d.width, d.gridX, [&](float x) { draw(GraphLine{x, 0, x, d.height, d.gridColour}); });
}

void GraphMoveModel::DrawTrend(const Drawing& d) const {
    const std::span<const float> values = Series();  // they change only through setValue, which redraws
    if (values.size() < 2) return;
    const std::size_t upper = values.size() - 1;
    for (std::size_t i = 1; i <= upper; ++i) {
        const float x1 = d.width - d.step * static_cast<float>(upper - i + 1);
        const float x2 = d.width - d.step * static_cast<float>(upper - i);
        const float y1 = d.height - d.perValue * (values[i - 1] - d.minimum);
        const float y2 = d.height - d.perValue * (values[i] - d.minimum);
        m_picture.push_back({x1, y1, x2, y2, d.graphColour});
    }
}

float GraphMoveModel::ConvertX(float measure) const {
    const double twips = measure * TwipsPerUnit(m_properties.ScaleMode, m_screen.x, true);
    // A client area squeezed to nothing still converts as if one pixel were left.
    const double clientTwips = std::max(m_clientWidth, 1) * static_cast<double>(m_screen.x);
    return base::ToSingle(twips * m_properties.innerWidth / clientTwips);
}

float GraphMoveModel::ConvertY(float measure) const {
    const double twips = measure * TwipsPerUnit(m_properties.ScaleMode, m_screen.y, false);
    const double clientTwips = std::max(m_clientHeight, 1) * static_cast<double>(m_screen.y);
    return base::ToSingle(twips * m_properties.innerHeight / clientTwips);
}

namespace {

int ScaleToPixel(float value, float extent, int pixels) {
    if (extent == 0 || pixels < 2) return 0;
    // Far-off points are only ever clipped: keep them well inside the drawing range.
    const double pixel = std::clamp(static_cast<double>(value) * (pixels - 1) / extent, -1e7, 1e7);
    return static_cast<int>(std::lround(pixel));
}

float PixelToScale(int pixel, float extent, int pixels) {
    if (pixels < 2) return 0;
    return static_cast<float>(static_cast<double>(pixel) * extent / (pixels - 1));
}

}  // namespace

PixelPoint GraphMoveModel::ToPixels(float x, float y) const {
    return {ScaleToPixel(x, m_properties.innerWidth, m_clientWidth),
            ScaleToPixel(y, m_properties.innerHeight, m_clientHeight)};
}

std::pair<float, float> GraphMoveModel::ToScale(int x, int y) const {
    return {PixelToScale(x, m_properties.innerWidth, m_clientWidth),
            PixelToScale(y, m_properties.innerHeight, m_clientHeight)};
}

}  // namespace controls
