#include "mainwindow/win32/frm_main.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

#include "base/resource_ids.h"
#include "base/win32/controls.h"
#include "base/win32/fatal_error.h"
#include "base/win32/wide.h"
#include "controls/win32/screen.h"
#include "mainwindow/list_columns.h"
#include "mainwindow/toolbar_buttons.h"
#include "mainwindow/win32/main_menu.h"

namespace mainwindow {
namespace {

constexpr wchar_t kClassName[] = L"Veskar_Lookout.frmMain";
constexpr UINT_PTR kTabStripSubclass = 1;
constexpr char kAutoLogCaption[] = "自動ログ保存";
constexpr const char* kTrafficCaptions[] = {"受信", "送信"};
// The status bar's panels, in twips.
constexpr int kPanelWidths[] = {2500, 2500, 3000, 1500, 1500};
// The tab lists in the order the form gives them full-row selection.
constexpr ListId kTabLists[] = {ListId::lstvMain,    ListId::lstvTask,    ListId::lstvProcess,
                                ListId::lstvStartup, ListId::lstvAddPort, ListId::lstvPc};

void MoveTo(HWND window, const PixelRect& r) { MoveWindow(window, r.x, r.y, r.width, r.height, TRUE); }

RECT ToRect(const PixelRect& r) { return {r.x, r.y, r.x + r.width, r.y + r.height}; }

int WindowHeight(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    return r.bottom - r.top;
}

SIZE TextSize(const std::string& text) {
    base::WindowDc screen(nullptr);
    base::SelectedObject font(screen.Get(), base::UiFont());
    const std::wstring wide = base::Widen(text);
    SIZE size{};
    GetTextExtentPoint32W(screen.Get(), wide.c_str(), static_cast<int>(wide.size()), &size);
    return size;
}

bool InListPopup(MenuItem item) {
    for (const MenuEntry& entry : ListPopupMenu()) {
        if (entry.item == item) return true;
    }
    return false;
}

}  // namespace

FrmMain::FrmMain(MainWindowModel& model)
    : m_model(model), m_twipsPerPixel(controls::ScreenTwipsPerPixel()), m_listPopup(CreateListPopupMenu()) {
    RegisterWindowClass(kClassName, CS_HREDRAW | CS_VREDRAW, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                        LoadIconW(base::ModuleInstance(), MAKEINTRESOURCEW(IDI_APPLICATION_ICON)));
    m_menuBar = CreateMainMenuBar();
    CreateWindowFor(0, kClassName, base::Widen(m_model.Caption()).c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                    CW_USEDEFAULT, CW_USEDEFAULT, base::TwipsToPixels(kFormWidthTwips, m_twipsPerPixel.x),
                    base::TwipsToPixels(kFormHeightTwips, m_twipsPerPixel.y), nullptr, m_menuBar);
    CreateControls();
    m_taskbarCreatedMessage = RegisterWindowMessageW(L"TaskbarCreated");
    m_created = true;
    ApplyAll();
    m_model.SetView(this);
    LayOut();
}

FrmMain::~FrmMain() {
    // The controls go one by one before the window: nothing they report may reach them.
    m_created = false;
    m_model.SetView(nullptr);
    if (m_tabStrip) RemoveWindowSubclass(m_tabStrip, &FrmMain::TabStripProcedure, kTabStripSubclass);
}

void FrmMain::CreateControls() {
    const HWND self = Handle();
    // Whole pixels only: the pictures double from 144 DPI on, and stay as drawn below.
    const int pictureScale = std::max(1, static_cast<int>(std::lround(15.0 / m_twipsPerPixel.x)));
    m_toolbar = std::make_unique<Toolbar>(self, control_id::kToolbar, pictureScale);

    m_tabStrip = base::CreateControl(WC_TABCONTROLW, "", WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP, 0, 0, 0, 0, self,
                                     control_id::kTabStrip);
    for (int tab = 1; tab <= kTabCount; ++tab) {
        std::wstring caption = base::Widen(Tab(tab).caption);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.data();
        SendMessageW(m_tabStrip, TCM_INSERTITEMW, static_cast<WPARAM>(tab - 1), reinterpret_cast<LPARAM>(&item));
    }
    SetWindowSubclass(m_tabStrip, &FrmMain::TabStripProcedure, kTabStripSubclass, reinterpret_cast<DWORD_PTR>(this));

    // The working tables of the sessions, never shown.
    const int hidden = base::TwipsToPixels(kHiddenListSizeTwips, m_twipsPerPixel.x);
    for (const ListId list : {ListId::ListView1, ListId::ListView2}) {
        m_lists[ListIndex(list)] = std::make_unique<VirtualListView>(
            self, control_id::kFirstList + ListIndex(list), m_model.List(list), Columns(list), m_twipsPerPixel,
            PixelRect{0, 0, hidden, hidden});
    }
    const PixelRect listBounds{base::TwipsToPixels(kListLeftTwips, m_twipsPerPixel.x),
                               base::TwipsToPixels(kListTopTwips, m_twipsPerPixel.y),
                               base::TwipsToPixels(kListWidthTwips, m_twipsPerPixel.x),
                               base::TwipsToPixels(kListHeightTwips, m_twipsPerPixel.y)};
    for (const ListId list : kTabLists) {
        auto& view = m_lists[ListIndex(list)];
        view = std::make_unique<VirtualListView>(self, control_id::kFirstList + ListIndex(list), m_model.List(list),
                                                 Columns(list), m_twipsPerPixel, listBounds);
        SetWindowPos(view->Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }

    m_statusBar = base::CreateControl(STATUSCLASSNAMEW, "", WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0, self,
                                      control_id::kStatusBar);
    std::array<int, std::size(kPanelWidths)> rights{};
    int right = 0;
    for (std::size_t i = 0; i < rights.size(); ++i) {
        right += kPanelWidths[i];
        rights[i] = base::TwipsToPixels(right, m_twipsPerPixel.x);
    }
    SendMessageW(m_statusBar, SB_SETPARTS, rights.size(), reinterpret_cast<LPARAM>(rights.data()));

    // The automatic-log switch sits at the right end of the row of tabs, whose refreshes it logs.
    m_autoLog = base::CreateControl(L"BUTTON", kAutoLogCaption, WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX, 0, 0, 0,
                                    0, self, control_id::kAutoLog);
    const SIZE text = TextSize(kAutoLogCaption);
    m_autoLogSize = {text.cx + GetSystemMetrics(SM_CXMENUCHECK) + 8, std::max<LONG>(text.cy + 4, 16)};
    SetWindowPos(m_autoLog, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    CreateBand();
}

void FrmMain::CreateBand() {
    const HWND self = Handle();
    m_computerName = base::CreateControl(L"EDIT", "", WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, 0, 0, 0, 0, self,
                                         control_id::kComputerName, WS_EX_CLIENTEDGE);
    m_interfaceLabel = base::CreateControl(L"STATIC", "", WS_VISIBLE | SS_LEFT | SS_CENTERIMAGE | SS_ENDELLIPSIS, 0,
                                           0, 0, 0, self, control_id::kInterfaceLabel, WS_EX_STATICEDGE);
    const int captionIds[] = {control_id::kReceivedCaption, control_id::kSentCaption};
    const int labelIds[] = {control_id::kReceivedLabel, control_id::kSentLabel};
    const int graphIds[] = {control_id::kReceivedGraph, control_id::kSentGraph};
    for (std::size_t i = 0; i < 2; ++i) {
        m_trafficCaptions[i] = base::CreateControl(L"STATIC", kTrafficCaptions[i],
                                                   WS_VISIBLE | SS_CENTER | SS_CENTERIMAGE, 0, 0, 0, 0, self,
                                                   captionIds[i]);
        m_trafficLabels[i] = base::CreateControl(L"STATIC", "", WS_VISIBLE | SS_RIGHT | SS_CENTERIMAGE, 0, 0, 0, 0,
                                                 self, labelIds[i], WS_EX_STATICEDGE);
        m_graphs[i] = std::make_unique<controls::GraphMove>(self, RECT{0, 0, 0, 0}, graphIds[i]);
        // The monitoring feeds octets per interval and clips them at 100000. A dark trend
        // picture with a grid every few pixels and a few pixels per sample, measured in twips
        // so that it looks the same at every DPI.
        controls::GraphProperties properties = m_graphs[i]->Properties();
        properties.MaxValue = 100000;
        properties.BackColor = base::kBlack;
        properties.GridSpaceX = 150;
        properties.GridSpaceY = 90;
        properties.GridStep = 45;
        properties.ToolTipText = kTrafficCaptions[i];
        m_graphs[i]->SetProperties(properties);
    }
}

// Brings every control to the model's state, as the form stands after loading.
void FrmMain::ApplyAll() {
    for (const Change change : {Change::Caption, Change::ComputerName, Change::ShownList, Change::AutoLog,
                                Change::InterfaceLabel, Change::ListColours, Change::AlwaysOnTop, Change::ListStyle}) {
        OnChanged(change, 0);
    }
    for (int panel = 1; panel <= 5; ++panel) OnChanged(Change::Panel, panel);
    for (int timer = 0; timer < kTimerCount; ++timer) OnChanged(Change::Timer, timer);
    for (int item = 0; item < kMenuItemCount; ++item) OnChanged(Change::MenuItem, item);
    for (std::size_t button = 0; button < ToolbarButtons().size(); ++button) {
        OnChanged(Change::ToolbarButton, static_cast<int>(button));
    }
    for (int label = 0; label < 2; ++label) OnChanged(Change::TrafficLabel, label);
    OnChanged(Change::Visible, 0);
}

void FrmMain::OnChanged(Change what, int index) {
    switch (what) {
        case Change::Caption: base::SetWindowTextUtf8(Handle(), m_model.Caption()); break;
        case Change::ComputerName:
            // The box also reports the user's typing to the model: leave it alone when it agrees.
            if (base::WindowText(m_computerName) != m_model.ComputerNameText()) {
                base::SetWindowTextUtf8(m_computerName, m_model.ComputerNameText());
            }
            break;
        case Change::Panel:
            SendMessageW(m_statusBar, SB_SETTEXTW, static_cast<WPARAM>(index - 1),
                         reinterpret_cast<LPARAM>(base::Widen(m_model.PanelText(index)).c_str()));
            break;
        case Change::Visible: ShowWindow(Handle(), m_model.Visible() ? SW_SHOW : SW_HIDE); break;
        case Change::ShownList:
            for (const ListId list : kTabLists) {
                ShowWindow(ListHandle(list), list == m_model.ShownList() ? SW_SHOWNA : SW_HIDE);
            }
            break;
        case Change::Timer: ApplyTimer(index); break;
        case Change::MenuItem: {
            const auto item = static_cast<MenuItem>(index);
            ApplyMenuState(InListPopup(item) ? m_listPopup.Get() : m_menuBar, item, m_model.MenuEnabled(item),
                           m_model.MenuChecked(item));
            break;
        }
        case Change::AutoLog:
            EnableWindow(m_autoLog, m_model.AutoLogEnabled() ? TRUE : FALSE);
            SendMessageW(m_autoLog, BM_SETCHECK, m_model.AutoLogChecked() ? BST_CHECKED : BST_UNCHECKED, 0);
            break;
        case Change::ToolbarButton:
            m_toolbar->SetButtonEnabled(static_cast<std::size_t>(index),
                                        m_model.ButtonEnabled(ToolbarButtons()[static_cast<std::size_t>(index)].key));
            break;
        case Change::TrafficLabel:
            base::SetWindowTextUtf8(m_trafficLabels.at(static_cast<std::size_t>(index)), m_model.TrafficLabel(index));
            break;
        case Change::InterfaceLabel: base::SetWindowTextUtf8(m_interfaceLabel, m_model.InterfaceLabel()); break;
        case Change::ListColours:
            for (const ListId list : kTabLists) {
                m_lists[ListIndex(list)]->SetColours(m_model.ListBackColour(), m_model.ListTextColour());
            }
            break;
        case Change::AlwaysOnTop:
            SetWindowPos(Handle(), m_model.AlwaysOnTop() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE);
            break;
        case Change::ListStyle:
            // wParam 0: the style given is the whole extended style.
            for (const ListId list : kTabLists) {
                SendMessageW(ListHandle(list), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, m_model.TabListStyle());
            }
            break;
        case Change::ColumnWidths:
            for (const ColumnWidths& widths : ResetColumnWidths()) {
                for (std::size_t column = 0; column < widths.twips.size(); ++column) {
                    SendMessageW(ListHandle(widths.list), LVM_SETCOLUMNWIDTH, column,
                                 base::TwipsToPixels(widths.twips[column], m_twipsPerPixel.x));
                }
            }
            break;
        case Change::ShowNormal: ShowWindow(Handle(), SW_SHOWNORMAL); break;
    }
}

void FrmMain::ApplyTimer(int index) {
    const auto timer = static_cast<FormTimer>(index);
    const auto id = static_cast<UINT_PTR>(index + 1);
    if (!m_model.TimerRunning(timer)) {
        KillTimer(Handle(), id);
        return;
    }
    // Setting a running timer again starts its interval afresh, as assigning an interval does.
    if (!SetTimer(Handle(), id, static_cast<UINT>(m_model.TimerInterval(timer)), nullptr)) {
        base::FatalSystemError(L"SetTimer");
    }
}

// The resize rule: the form's outer size in twips decides the sizes; what the rule leaves
// between the lists and the status bar is the traffic band.
void FrmMain::LayOut() {
    RECT outer{};
    RECT client{};
    if (!GetWindowRect(Handle(), &outer) || !GetClientRect(Handle(), &client)) return;
    m_sizes.Resize((outer.right - outer.left) * m_twipsPerPixel.x, (outer.bottom - outer.top) * m_twipsPerPixel.y);
    SendMessageW(m_statusBar, WM_SIZE, 0, 0);

    RECT firstTab{};
    SendMessageW(m_tabStrip, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&firstTab));
    TEXTMETRICW text{};
    {
        base::WindowDc dc(Handle());
        base::SelectedObject font(dc.Get(), base::UiFont());
        GetTextMetricsW(dc.Get(), &text);
    }
    WindowMetrics metrics;
    metrics.twipsPerPixel = m_twipsPerPixel;
    metrics.clientHeight = client.bottom;
    metrics.toolbarHeight = m_toolbar->Height();
    metrics.tabHeaderHeight = firstTab.bottom;
    metrics.statusHeight = WindowHeight(m_statusBar);
    metrics.textHeight = text.tmHeight;
    const WindowGeometry g = Place(m_sizes, metrics);

    MoveTo(m_toolbar->Handle(), g.toolbar);
    MoveTo(m_tabStrip, g.tabStrip);
    for (const ListId list : kTabLists) MoveTo(ListHandle(list), g.list);
    const int autoLogRight = std::min<int>(client.right, g.tabStrip.x + g.tabStrip.width) - 6;
    MoveTo(m_autoLog, {autoLogRight - m_autoLogSize.cx, g.tabStrip.y + (firstTab.bottom - m_autoLogSize.cy) / 2,
                      m_autoLogSize.cx, m_autoLogSize.cy});
    const BandLayout& band = g.bandItems;
    MoveTo(m_computerName, band.computerName);
    MoveTo(m_interfaceLabel, band.interfaceLabel);
    const PixelRect* captions[] = {&band.receivedCaption, &band.sentCaption};
    const PixelRect* labels[] = {&band.receivedLabel, &band.sentLabel};
    const PixelRect* graphs[] = {&band.receivedGraph, &band.sentGraph};
    for (std::size_t i = 0; i < 2; ++i) {
        MoveTo(m_trafficCaptions[i], *captions[i]);
        MoveTo(m_trafficLabels[i], *labels[i]);
        m_graphs[i]->Move(ToRect(*graphs[i]));
    }
}

void FrmMain::OnCommand(int id, int code) {
    if (const auto button = Toolbar::ButtonOfCommand(id)) {
        m_model.ToolbarClick(ToolbarButtons()[*button].key);
    } else if (id == control_id::kAutoLog && code == BN_CLICKED) {
        m_model.SetAutoLogChecked(SendMessageW(m_autoLog, BM_GETCHECK, 0, 0) == BST_CHECKED);
    } else if (id == control_id::kComputerName && code == EN_CHANGE) {
        m_model.SetComputerNameText(base::WindowText(m_computerName));
    } else if (const auto item = MenuItemOfCommand(id); item && code == 0) {
        m_model.MenuClick(*item);
    } else if (code == 0 && m_otherCommand) {
        m_otherCommand(id);
    }
}

bool FrmMain::OnNotify(NMHDR& header) {
    if (header.hwndFrom == m_tabStrip && header.code == TCN_SELCHANGE) {
        m_model.ClickTab(static_cast<int>(SendMessageW(m_tabStrip, TCM_GETCURSEL, 0, 0)) + 1);
        return true;
    }
    if (m_toolbar->OnNotify(header)) return true;
    if (header.code == NM_RCLICK &&
        (header.hwndFrom == ListHandle(ListId::lstvTask) || header.hwndFrom == ListHandle(ListId::lstvProcess))) {
        ShowListPopup(header.hwndFrom, reinterpret_cast<const NMITEMACTIVATE&>(header).ptAction);
        return true;
    }
    for (const auto& list : m_lists) {
        if (list->OnNotify(header)) return true;
    }
    return false;
}

// The right button's release on a list: the pop-up menu where it was released, its command
// coming back as WM_COMMAND.
void FrmMain::ShowListPopup(HWND list, POINT at) {
    ClientToScreen(list, &at);
    TrackPopupMenu(m_listPopup.Get(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, at.x, at.y, 0, Handle(),
                   nullptr);
}

// A click on the tab already selected changes no selection, so the tab control reports
// nothing; the form still handles it as a click on that tab.
LRESULT CALLBACK FrmMain::TabStripProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                            DWORD_PTR self) {
    if (message != WM_LBUTTONDOWN) return DefSubclassProc(window, message, wParam, lParam);
    TCHITTESTINFO hit{};
    hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    const int before = static_cast<int>(SendMessageW(window, TCM_GETCURSEL, 0, 0));
    const int tab = static_cast<int>(SendMessageW(window, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    if (tab >= 0 && tab == before) {
        try {
            reinterpret_cast<FrmMain*>(self)->m_model.ClickTab(tab + 1);
        } catch (...) {
            base::ReportUntrappedError();
        }
    }
    return result;
}

LRESULT FrmMain::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // The system sizes the window and its controls report while they are being created.
    if (!m_created) return base::Window::HandleMessage(message, wParam, lParam);
    if (message == m_taskbarCreatedMessage && m_taskbarCreatedMessage != 0) {
        if (m_taskbarCreated) m_taskbarCreated();
        return 0;
    }
    switch (message) {
        case WM_MOUSEMOVE:
            if (m_mouseMove) m_mouseMove(GET_X_LPARAM(lParam));
            return 0;
        case WM_SIZE:
            m_model.SetMinimised(wParam == SIZE_MINIMIZED);
            LayOut();
            return 0;
        case WM_TIMER:
            if (wParam >= 1 && wParam <= static_cast<WPARAM>(kTimerCount)) {
                m_model.TimerTick(static_cast<FormTimer>(wParam - 1));
                return 0;
            }
            break;
        case WM_WINDOWPOSCHANGED: {
            const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
            if ((flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) != 0) {
                for (const auto& graph : m_graphs) graph->SetHostShown((flags & SWP_SHOWWINDOW) != 0);
            }
            break;  // the default handling sends WM_SIZE and WM_MOVE
        }
        case WM_COMMAND: OnCommand(LOWORD(wParam), HIWORD(wParam)); return 0;
        case WM_NOTIFY:
            if (OnNotify(*reinterpret_cast<NMHDR*>(lParam))) return 0;
            break;
        case WM_QUERYENDSESSION:
            if (m_sessionEnding) m_sessionEnding();
            return TRUE;
        case WM_CLOSE:
            if (m_close) {
                m_close();
                return 0;
            }
            break;
        case WM_DESTROY: PostQuitMessage(0); return 0;
        default: break;
    }
    return base::Window::HandleMessage(message, wParam, lParam);
}

}  // namespace mainwindow
