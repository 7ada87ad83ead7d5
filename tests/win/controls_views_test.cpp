// The trend graph, the alert window and frmDemo as real windows: classes, styles, placement,
// the mouse, and an alert's life driven tick by tick.
#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "base/win32/controls.h"
#include "base/win32/unique_resource.h"
#include "controls/win32/alert_window.h"
#include "controls/win32/demo_window.h"
#include "controls/win32/graph_move.h"
#include "controls/win32/screen.h"

namespace controls {
namespace {

base::UniqueHwnd HiddenParent() {
    return base::UniqueHwnd(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_CLIPCHILDREN, 0, 0, 400, 300, nullptr,
                                            nullptr, base::ModuleInstance(), nullptr));
}

HWND FirstChild(HWND parent, const wchar_t* className) { return FindWindowExW(parent, nullptr, className, nullptr); }

SIZE ClientSize(HWND window) {
    RECT r{};
    GetClientRect(window, &r);
    return {r.right, r.bottom};
}

std::vector<HWND> AlertWindows() {
    std::vector<HWND> found;
    for (HWND w = nullptr; (w = FindWindowExW(nullptr, w, L"frmAlertWindow", nullptr));) found.push_back(w);
    return found;
}

void TickUntil(AlertModel& model, const std::function<bool()>& done) {
    for (int i = 0; i < 100000 && !done(); ++i) model.Tick();
}

TEST(GraphMoveWindow, PicTrendFillsTheControlInsideItsBorder) {
    const base::UniqueHwnd parent = HiddenParent();
    GraphMove graph(parent.Get(), RECT{10, 10, 195, 123}, 7);
    EXPECT_EQ(GetDlgCtrlID(graph.hWnd()), 7);
    EXPECT_TRUE(graph.HasDC());
    EXPECT_NE(graph.hDC(), nullptr);
    const HWND picture = FirstChild(graph.hWnd(), L"picTrend");
    ASSERT_NE(picture, nullptr);
    EXPECT_TRUE(GetWindowLongPtrW(picture, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    const SIZE client = ClientSize(picture);
    EXPECT_EQ(graph.Model().ClientWidth(), client.cx);
    EXPECT_EQ(graph.Model().ClientHeight(), client.cy);
    EXPECT_EQ(graph.Model().ScrollOffset(), graph.Model().ConvertY(2));  // drawn once when sized

    EXPECT_TRUE(graph.setValue(100));
    EXPECT_FALSE(graph.setValue(100.5f));
    EXPECT_EQ(graph.Model().Values().size(), 2u);

    GraphProperties p = graph.Properties();
    p.BorderStyle = 0;
    graph.SetProperties(p);
    EXPECT_FALSE(GetWindowLongPtrW(picture, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    EXPECT_EQ(graph.Model().ClientWidth(), 185);

    graph.Move(RECT{0, 0, 300, 150});
    EXPECT_EQ(graph.Model().ClientWidth(), 300);
    EXPECT_EQ(graph.Model().ClientHeight(), 150);
}

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

TEST(GraphMoveWindow, StoredPropertiesAreReadAtCreation) {
    const base::UniqueHwnd parent = HiddenParent();
    PropertyBag bag;
    bag.Write("MaxValue", "100000", "100");
    bag.Write("ScaleMode", "3", "1");
    bag.Write("ToolTipText", "受信", "");
    GraphMove graph(parent.Get(), RECT{0, 0, 185, 113}, 1, &bag);
    EXPECT_EQ(graph.Properties().MaxValue, 100000.0f);
    EXPECT_EQ(graph.Properties().ScaleMode, kScalePixels);
    EXPECT_TRUE(graph.setValue(99999));
    PropertyBag written;
    graph.WriteProperties(written);
    EXPECT_EQ(written, bag);
}

TEST(GraphMoveWindow, MouseEventsAreRaisedAgainInScaleUnits) {
    const base::UniqueHwnd parent = HiddenParent();
    GraphMove graph(parent.Get(), RECT{0, 0, 185, 113}, 1);
    const HWND picture = FirstChild(graph.hWnd(), L"picTrend");
    std::vector<GraphMouseEvent> downs, ups;
    int clicks = 0, doubleClicks = 0;
    graph.MouseDown = [&](const GraphMouseEvent& e) { downs.push_back(e); };
    graph.MouseUp = [&](const GraphMouseEvent& e) { ups.push_back(e); };
    graph.Click = [&] { ++clicks; };
    graph.DblClick = [&] { ++doubleClicks; };

    const LPARAM corner = MAKELPARAM(180, 108);  // the last pixel: the scale's far corner
    SendMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, corner);
    SendMessageW(picture, WM_LBUTTONUP, MK_SHIFT, corner);
    ASSERT_EQ(downs.size(), 1u);
    EXPECT_EQ(downs[0].Button, 1);
    EXPECT_EQ(downs[0].Shift, 1);
    EXPECT_FLOAT_EQ(downs[0].X, 2715.0f);
    EXPECT_FLOAT_EQ(downs[0].Y, 1635.0f);
    EXPECT_EQ(ups.size(), 1u);
    EXPECT_EQ(clicks, 1);

    SendMessageW(picture, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    SendMessageW(picture, WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(doubleClicks, 1);
    EXPECT_EQ(clicks, 1);  // the release that ends a double click is no click
    SendMessageW(picture, WM_RBUTTONDOWN, MK_RBUTTON, 0);
    EXPECT_EQ(downs.back().Button, 2);
}

TEST(AlertWindowView, HiddenOwnedToolWindowUnderTheWorkArea) {
    AlertWindowFactory alerts;
    alerts.NewAlert();
    const auto windows = AlertWindows();
    ASSERT_EQ(windows.size(), 1u);
    const HWND window = windows[0];
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_NE(GetWindow(window, GW_OWNER), nullptr);
    const LONG_PTR exStyle = GetWindowLongPtrW(window, GWL_EXSTYLE);
    EXPECT_TRUE(exStyle & WS_EX_TOOLWINDOW);
    EXPECT_TRUE(exStyle & WS_EX_NOACTIVATE);
    RECT rect{};
    GetWindowRect(window, &rect);
    const RECT area = WorkArea();
    EXPECT_EQ(rect.right, area.right);
    EXPECT_EQ(rect.top, area.bottom);
    EXPECT_EQ(rect.right - rect.left, 160);
    EXPECT_EQ(rect.bottom - rect.top, 67);
}

TEST(AlertWindowView, RoundedAlertArrivesTopmostWithoutFocusAndLeavesOnAClick) {
    AlertWindowFactory alerts;
    alerts.NewAlert().DisplayMessage("クリックで閉じる", 0, false, true, false, base::Rgb(160, 195, 255));
    const HWND window = AlertWindows().at(0);
    AlertModel& model = *alerts.Board().open.at(0);
    EXPECT_EQ(base::WindowText(window), "クリックで閉じる");
    base::UniqueRgn region(CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(GetWindowRgn(window, region.Get()), COMPLEXREGION);

    const HWND before = GetForegroundWindow();
    TickUntil(model, [&] { return model.Arrived(); });
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_TRUE(GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_EQ(GetForegroundWindow(), before);
    RECT rect{};
    GetWindowRect(window, &rect);
    EXPECT_EQ(rect.bottom, WorkArea().bottom);

    SendMessageW(window, WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(model.TicksLeft(), 0);
    TickUntil(model, [&] { return !model.Loaded(); });
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(alerts.Board().slots.Mask(), 0);
}

TEST(AlertWindowView, FadingAlertIsLayeredAndSquareAlertsHaveNoRegion) {
    AlertWindowFactory alerts;
    alerts.NewAlert().DisplayMessage("fade", 4, true, true, true, 0xC0FFFF);
    const HWND window = AlertWindows().at(0);
    EXPECT_TRUE(GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYERED);
    EXPECT_TRUE(IsWindowVisible(window));
    base::UniqueRgn region(CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(GetWindowRgn(window, region.Get()), ERROR);
}

TEST(AlertWindowView, TheTimerDrivesTheAlert) {
    AlertWindowFactory alerts;
    alerts.NewAlert().DisplayMessage("timer", 1, false, true, true, 0);
    AlertModel& model = *alerts.Board().open.at(0);
    const DWORD start = GetTickCount();
    MSG msg;
    while (model.Loaded() && GetTickCount() - start < 20000) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
    }
    EXPECT_FALSE(model.Loaded());
    EXPECT_TRUE(AlertWindows().empty());
}

TEST(DemoWindowView, HiddenFormWhoseButtonsRaiseAlertsWithTheBoxText) {
    DemoWindow demo;
    EXPECT_FALSE(IsWindowVisible(demo.Handle()));
    const HWND text1 = GetDlgItem(demo.Handle(), 101);
    demo.Form().SetText1("[マシン名]\r\nPC01");
    EXPECT_EQ(base::WindowText(text1), "[マシン名]\r\nPC01");

    SendMessageW(text1, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"from outside"));
    SendMessageW(GetDlgItem(demo.Handle(), 122), BM_CLICK, 0, 0);
    EXPECT_EQ(demo.Form().Text1(), "from outside");
    ASSERT_EQ(AlertWindows().size(), 1u);
    EXPECT_EQ(base::WindowText(AlertWindows()[0]), "from outside");

    SendMessageW(GetDlgItem(demo.Handle(), 123), BM_CLICK, 0, 0);
    EXPECT_EQ(base::WindowText(GetDlgItem(demo.Handle(), 123)), "Click Here to Close");
    EXPECT_EQ(AlertWindows().size(), 2u);
}

}  // namespace
}  // namespace controls
