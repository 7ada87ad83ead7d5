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

// What "アイテムの幅を初期値に戻す(&W)" gives back to one list view, column by column, in twips.
struct ColumnWidths {
    ListId list;
    std::span<const int> twips;
};
// The lists in the order the reset treats them. It is not the load-time table: three path and
// command columns come back a little wider, and lstvPc keeps the widths the user gave it.
std::span<const ColumnWidths> ResetColumnWidths();

// Where every list view of a tab stands when the window loads, in twips.
inline constexpr int kListTopTwips = 740;
inline constexpr int kListLeftTwips = 0;
inline constexpr int kListHeightTwips = 3000;
inline constexpr int kListWidthTwips = 12675;
// The hidden working tables are this size, in twips.
inline constexpr int kHiddenListSizeTwips = 100;

}  // namespace mainwindow
