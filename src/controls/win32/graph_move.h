#pragma once
// graphMove, the scrolling trend graph, as a child control. The host creates it at a
// rectangle of its client area, feeds it with setValue, and may keep its properties in a
// PropertyBag between runs (WriteProperties, then pass the bag back at creation).
//
//   controls::GraphMove graph(parent, rect, id);            // a new control: InitProperties
//   controls::GraphMove graph(parent, rect, id, &bag);      // restored: ReadProperties
//   auto p = graph.Properties(); p.MaxValue = 100000; graph.SetProperties(p);
//   graph.setValue(1234);   // false when outside MinValue..MaxValue
//   graph.Move(newRect);    // on the host's resize; the graph is redrawn
//   graph.SetHostShown(false);  // when the host's window is hidden or shown again
//
// Runtime errors of the drawing (MaxValue equal to MinValue, 16-bit grid counters) come out
// of setValue as base::RuntimeError for the caller's error trap.
#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>

#include "base/win32/unique_resource.h"
#include "base/win32/window.h"
#include "controls/graph_move_model.h"
#include "controls/property_bag.h"

namespace controls {

// Arguments of MouseDown, MouseMove and MouseUp: Button 1 left, 2 right, 4 middle (for
// MouseMove the buttons held down, added); Shift 1 Shift, 2 Ctrl, 4 Alt, added; X and Y in
// picTrend's scale.
struct GraphMouseEvent {
    std::int16_t Button;
    std::int16_t Shift;
    float X;
    float Y;
};

class GraphMove : public base::Window {
public:
    // Creates the control as a visible child of parent; bounds are in the parent's client pixels.
    GraphMove(HWND parent, const RECT& bounds, int id, const PropertyBag* stored = nullptr);
    ~GraphMove() override;

    bool setValue(float Value);

    const GraphProperties& Properties() const noexcept { return m_model.Properties(); }
    void SetProperties(const GraphProperties& properties);
    void WriteProperties(PropertyBag& bag) const { m_model.WriteProperties(bag); }

    void Move(const RECT& bounds);
    // Whether the host's window is on screen (at creation: whether the parent was visible). A
    // graph off screen takes its values without asking to be painted: it is painted whole when
    // shown, and a graph hidden in the tray for days costs no window-system call per value.
    void SetHostShown(bool shown) noexcept { m_hostShown = shown; }

    bool HasDC() const noexcept { return true; }
    HDC hDC() const noexcept;
    HWND hWnd() const noexcept { return Handle(); }
    const GraphMoveModel& Model() const noexcept { return m_model; }

    // The mouse events of picTrend, raised again as the control's own.
    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void(const GraphMouseEvent&)> MouseDown;
    std::function<void(const GraphMouseEvent&)> MouseMove;
    std::function<void(const GraphMouseEvent&)> MouseUp;

protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    class TrendPicture;
    friend class TrendPicture;
    using UniqueCursor = base::UniqueResource<base::SimpleTraits<HCURSOR, DestroyCursor>>;

    void FitPicture();
    void ApplyToPicture(const GraphProperties& before);
    void UpdateToolTip();
    void Paint(HDC target, const RECT& client) const;
    LRESULT PictureMessage(HWND picture, UINT message, WPARAM wParam, LPARAM lParam);
    bool SetPointer() const;

    GraphMoveModel m_model;
    std::unique_ptr<TrendPicture> m_picTrend;
    base::UniqueHwnd m_toolTip;
    UniqueCursor m_mouseIcon;
    bool m_afterDoubleClick = false;
    bool m_hostShown;
};

}  // namespace controls
