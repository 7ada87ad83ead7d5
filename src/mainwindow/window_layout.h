#pragma once
// Where the controls of frmMain go. The resize rule works in twips on the form's outer size;
// the pixel places follow from the screen's twips per pixel and the controls' own heights.
#include "base/twips.h"

namespace mainwindow {

// The form's size when it loads: the lists' load-time size plus the margins the rule keeps.
inline constexpr int kFormWidthTwips = 12775;
inline constexpr int kFormHeightTwips = 5100;

struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int Bottom() const { return y + height; }
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// The sizes, in twips, that the resize rule assigns. The runtime refuses a negative size and
// the rule passes over that error, so such a size keeps what it had.
class ResizeRule {
public:
    void Resize(int formWidthTwips, int formHeightTwips);

    int ToolbarWidth() const { return m_toolbarWidth; }
    int ListWidth() const { return m_listWidth; }
    int ListHeight() const { return m_listHeight; }
    int TabWidth() const { return m_tabWidth; }
    int TabHeight() const { return m_tabHeight; }

private:
    int m_toolbarWidth = kFormWidthTwips;
    int m_listWidth = kFormWidthTwips - 100;
    int m_listHeight = kFormHeightTwips - 2100;
    int m_tabWidth = kFormWidthTwips - 92;
    int m_tabHeight = kFormHeightTwips - 2300;
};

// The band between the lists and the status bar: the computer-name box, the selected
// interface, and received and sent traffic, each as caption, figure and graph.
struct BandLayout {
    PixelRect computerName;
    PixelRect interfaceLabel;
    PixelRect receivedCaption, receivedLabel, receivedGraph;
    PixelRect sentCaption, sentLabel, sentGraph;
};

// What the window measures of itself and its controls, in pixels.
struct WindowMetrics {
    base::TwipsPerPixel twipsPerPixel;
    int clientHeight = 0;
    int toolbarHeight = 0;
    int tabHeaderHeight = 0;  // the tab strip's row of tabs
    int statusHeight = 0;
    int textHeight = 0;       // one line of the UI font
};

struct WindowGeometry {
    PixelRect toolbar;
    PixelRect tabStrip;
    PixelRect list;  // every tab's list view
    PixelRect band;
    BandLayout bandItems;
};

WindowGeometry Place(const ResizeRule& sizes, const WindowMetrics& metrics);
BandLayout LayOutBand(const PixelRect& band, base::TwipsPerPixel twipsPerPixel, int textHeight);

}  // namespace mainwindow
