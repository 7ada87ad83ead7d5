#pragma once
// frmAlertWindow without a screen: where the window stands, its slot, and what each tick of
// its timer does. The model moves the window through an IAlertSurface; positions and sizes
// of the form are in twips, drawing inside it in pixels.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "base/twips.h"
#include "controls/alert.h"
#include "controls/alert_slots.h"

namespace controls {

class AlertModel;

// The process-wide state of the alerts: AlertSlotMask and the alerts that are loaded.
class AlertBoard {
public:
    AlertSlots slots;
    std::vector<AlertModel*> open;
};

// What the screen looks like from the alert, in pixels.
struct AlertScreen {
    int workAreaRight = 0;
    int workAreaBottom = 0;
    int screenHeight = 0;
    base::TwipsPerPixel twipsPerPixel;
};

// The form's Left, Top, Width and Height in twips.
struct FormPlacement {
    float left, top, width, height;
    bool operator==(const FormPlacement&) const = default;
};

struct PixelRect {
    int left, top, width, height;
    bool operator==(const PixelRect&) const = default;
};

// A corner of the background gradient: 16-bit colour channels, as the system takes them.
struct GradientVertex {
    int x, y;
    std::int16_t red, green, blue, alpha;
    bool operator==(const GradientVertex&) const = default;
};

struct FrameLine {
    int x1, y1, x2, y2;
    base::Colour colour;
    bool operator==(const FrameLine&) const = default;
};

// A hollow rounded rectangle: right and bottom are exclusive, as for the system's RoundRect.
struct FrameRoundRect {
    int left, top, right, bottom, ellipseWidth, ellipseHeight;
    base::Colour colour;
    bool operator==(const FrameRoundRect&) const = default;
};

// The persistent picture of the alert: the gradient over triangles (0, 1, 2) and (0, 2, 3),
// then the frame.
struct AlertPicture {
    int width = 0, height = 0;
    std::array<GradientVertex, 4> vertices{};
    std::vector<FrameLine> lines;            // square frame
    std::vector<FrameRoundRect> roundRects;  // rounded frame
};

// The rounded window region, exclusive right and bottom.
struct RoundRegion {
    int right, bottom, ellipseWidth, ellipseHeight;
    bool operator==(const RoundRegion&) const = default;
};

// What the alert asks of its window.
class IAlertSurface {
public:
    virtual ~IAlertSurface() = default;
    virtual AlertScreen Screen() = 0;
    virtual void Move(const FormPlacement& twips) = 0;
    virtual void SetLabel(const PixelRect& bounds, const std::string& caption) = 0;
    virtual void Paint(const AlertPicture& picture) = 0;
    virtual void SetRegion(const RoundRegion& region) = 0;
    // Layered transparency; a system without layered windows shows the alert opaque.
    virtual void SetAlpha(std::uint8_t alpha) = 0;
    // On: topmost and shown; off: behind topmost windows, still shown. Never activates.
    virtual void SetTopmost(bool on) = 0;
    virtual void StartTimer() = 0;
    // The window goes away for good.
    virtual void Unload() = 0;
};

// Each 8-bit channel c of a colour as a gradient channel: c x 256 kept in a signed 16-bit
// field, so values from 0x8000 up keep their bit pattern.
std::int16_t GradientChannel(int channel);
// Percent transparency (100 invisible, 0 opaque) as a layered-window alpha, or nothing when
// the rounded value falls outside 0..255.
std::optional<std::uint8_t> AlphaForTransparency(std::int32_t percent);

class AlertModel : public IAlert {
public:
    explicit AlertModel(AlertBoard& board);
    ~AlertModel() override;
    AlertModel(const AlertModel&) = delete;
    AlertModel& operator=(const AlertModel&) = delete;

    // Load: the window goes just under the work area's bottom-right corner, not yet visible,
    // and the alert takes a slot.
    void Load(IAlertSurface& surface);

    void DisplayMessage(const std::string& Message, std::int32_t TimeOut, bool Fade, bool Reserved, bool Square,
                        base::Colour BackColor) override;
    void SetCloseActivate(bool value) override;
    bool CloseActivate() const override { return false; }

    // A click on the window or on lblMessage.
    void Click();
    // One tick of Timer1.
    void Tick();
    // The form unloads: its slot is free and its window goes. The timer does this when the
    // alert has left; the system does it when it closes the window.
    void Unload();

    bool Loaded() const { return m_surface != nullptr; }
    std::int32_t StepOrTransparency() const { return m_stepOrTransparency; }
    std::int32_t TicksLeft() const { return m_ticksLeft; }
    std::int32_t WorkAreaBottom() const { return m_workAreaBottom; }
    bool Arrived() const { return m_arrived; }
    std::int32_t Slot() const { return m_slot; }
    bool Untimed() const { return m_untimed; }
    bool CodeCloseOnly() const { return m_codeCloseOnly; }
    bool FadeMode() const { return m_fadeMode; }
    const FormPlacement& Placement() const { return m_placement; }

private:
    float TargetTop() const;
    void SetTop(float top);
    void ApplyTransparency(std::int32_t percent);
    void SlideTick();
    void FadeTick();
    AlertPicture Picture(bool square, base::Colour backColor) const;
    int InnerWidth() const;
    int InnerHeight() const;

    AlertBoard& m_board;
    IAlertSurface* m_surface = nullptr;
    base::TwipsPerPixel m_twipsPerPixel;
    FormPlacement m_placement{};
    std::int32_t m_stepOrTransparency = 0;
    std::int32_t m_ticksLeft = 0;
    std::int32_t m_workAreaBottom = 0;
    bool m_arrived = false;
    std::int32_t m_slot = 0;
    bool m_untimed = false;
    bool m_codeCloseOnly = false;
    bool m_fadeMode = false;
};

}  // namespace controls
