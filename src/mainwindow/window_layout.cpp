#include "mainwindow/window_layout.h"

#include <algorithm>

#include "mainwindow/list_columns.h"

namespace mainwindow {
namespace {

// Assigns a size the way the form does: a negative one is refused and the old one stays.
void Assign(int& size, int value) {
    if (value >= 0) size = value;
}

// Widths along the band, in twips, so that they keep their proportions at every DPI.
constexpr int kBandMargin = 60;
constexpr int kBandGap = 120;
constexpr int kComputerNameWidth = 1800;
constexpr int kInterfaceWidth = 3000;
constexpr int kTrafficCaptionWidth = 450;
constexpr int kTrafficLabelWidth = 1000;
constexpr int kGraphGap = 60;
constexpr int kGraphWidth = 1800;

}  // namespace

void ResizeRule::Resize(int formWidthTwips, int formHeightTwips) {
    Assign(m_toolbarWidth, formWidthTwips);
    Assign(m_listWidth, formWidthTwips - 100);
    Assign(m_listHeight, formHeightTwips - 2100);
    Assign(m_tabWidth, formWidthTwips - 92);
    Assign(m_tabHeight, formHeightTwips - 2300);
}

BandLayout LayOutBand(const PixelRect& band, base::TwipsPerPixel tpp, int textHeight) {
    const auto across = [&](int twips) { return base::TwipsToPixels(twips, tpp.x); };
    // Texts sit on the band's middle line; the graphs fill the band but for a pixel each side.
    const int textBoxHeight = std::clamp(textHeight + 6, 0, std::max(band.height, 0));
    const int textTop = band.y + (std::max(band.height, 0) - textBoxHeight) / 2;
    const int graphHeight = std::max(band.height - 2, 0);
    const int graphTop = band.y + 1;

    BandLayout items;
    int x = band.x + across(kBandMargin);
    const auto next = [&](int widthTwips, int top, int height, int gapTwips) {
        const PixelRect rect{x, top, across(widthTwips), height};
        x += rect.width + across(gapTwips);
        return rect;
    };
    items.computerName = next(kComputerNameWidth, textTop, textBoxHeight, kBandGap);
    items.interfaceLabel = next(kInterfaceWidth, textTop, textBoxHeight, kBandGap);
    items.receivedCaption = next(kTrafficCaptionWidth, textTop, textBoxHeight, 0);
    items.receivedLabel = next(kTrafficLabelWidth, textTop, textBoxHeight, kGraphGap);
    items.receivedGraph = next(kGraphWidth, graphTop, graphHeight, kBandGap);
    items.sentCaption = next(kTrafficCaptionWidth, textTop, textBoxHeight, 0);
    items.sentLabel = next(kTrafficLabelWidth, textTop, textBoxHeight, kGraphGap);
    items.sentGraph = next(kGraphWidth, graphTop, graphHeight, 0);
    return items;
}

WindowGeometry Place(const ResizeRule& sizes, const WindowMetrics& m) {
    const base::TwipsPerPixel tpp = m.twipsPerPixel;
    const auto across = [&](int twips) { return base::TwipsToPixels(twips, tpp.x); };
    const auto down = [&](int twips) { return base::TwipsToPixels(twips, tpp.y); };

    WindowGeometry g;
    g.toolbar = {0, 0, across(sizes.ToolbarWidth()), m.toolbarHeight};
    g.list = {across(kListLeftTwips), down(kListTopTwips), across(sizes.ListWidth()), down(sizes.ListHeight())};
    // The tabs end where the lists begin, so the shown list reads as the page of its tab.
    const int tabTop = std::max(m.toolbarHeight, g.list.y - m.tabHeaderHeight);
    g.tabStrip = {0, tabTop, across(sizes.TabWidth()), down(sizes.TabHeight())};
    const int statusTop = m.clientHeight - m.statusHeight;
    g.band = {0, g.list.Bottom(), g.list.width, std::max(statusTop - g.list.Bottom(), 0)};
    g.bandItems = LayOutBand(g.band, tpp, m.textHeight);
    return g;
}

}  // namespace mainwindow
