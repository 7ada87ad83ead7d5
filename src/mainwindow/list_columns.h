#pragma once
// The columns every list view of frmMain is created with: caption, width in twips, alignment.
#include <span>

#include "mainwindow/tabs.h"

namespace mainwindow {

struct Column {
    const char* caption;
    int widthTwips;
    bool rightAligned = false;
};

std::span<const Column> Columns(ListId list);

// Where every list view of a tab stands when the window loads, in twips.
inline constexpr int kListTopTwips = 740;
inline constexpr int kListLeftTwips = 0;
inline constexpr int kListHeightTwips = 3000;
inline constexpr int kListWidthTwips = 12675;
// The hidden working tables are this size, in twips.
inline constexpr int kHiddenListSizeTwips = 100;

}  // namespace mainwindow
