// The trend graph as a real window: no painting while its host is hidden.
#include <windows.h>

#include <gtest/gtest.h>

#include "base/win32/controls.h"
#include "base/win32/unique_resource.h"
#include "controls/win32/graph_move.h"

namespace controls {
namespace {

base::UniqueHwnd HiddenParent() {
    return base::UniqueHwnd(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_CLIPCHILDREN, 0, 0, 400, 300, nullptr,
                                            nullptr, base::ModuleInstance(), nullptr));
}

HWND FirstChild(HWND parent, const wchar_t* className) { return FindWindowExW(parent, nullptr, className, nullptr); }

TEST(GraphMoveWindow, AsksToBePaintedOnlyWhileItsHostIsShown) {
    const auto paintAsked = [](GraphMove& graph, float value) {
        const HWND picture = FirstChild(graph.hWnd(), L"picTrend");
        ValidateRect(picture, nullptr);
        graph.setValue(value);
        return GetUpdateRect(picture, nullptr, FALSE) != FALSE;
    };
    const base::UniqueHwnd parent = HiddenParent();
    ShowWindow(parent.Get(), SW_SHOWNA);
    GraphMove graph(parent.Get(), RECT{0, 0, 185, 113}, 7);
    EXPECT_TRUE(paintAsked(graph, 1));  // the parent was on screen at creation
    graph.SetHostShown(false);
    EXPECT_FALSE(paintAsked(graph, 2));
    EXPECT_EQ(graph.Model().Values().back(), 2.0f);
    graph.SetHostShown(true);
    EXPECT_TRUE(paintAsked(graph, 3));

    const base::UniqueHwnd hidden = HiddenParent();
    GraphMove later(hidden.Get(), RECT{0, 0, 185, 113}, 8);
    ShowWindow(hidden.Get(), SW_SHOWNA);  // without telling the graph
    EXPECT_FALSE(paintAsked(later, 1));
}

}  // namespace
}  // namespace controls
