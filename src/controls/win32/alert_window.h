#pragma once
// frmAlertWindow: one borderless pop-up alert over its model. It shows nothing until the
// model switches it topmost, never takes the focus and has no taskbar button. lblMessage is
// drawn by the window itself, as the runtime's windowless label is, so clicks on it are
// clicks on the window; the window's own text is the message too, for tools that read it.
#include <windows.h>

#include <string>

#include "base/twips.h"
#include "base/win32/unique_resource.h"
#include "base/win32/window.h"
#include "controls/alert_factory.h"
#include "controls/alert_model.h"

namespace controls {

class AlertWindow : public base::Window, public IAlertSurface, public AlertInstance {
public:
    // The owner keeps the alert off the taskbar (an owned window gets no button).
    AlertWindow(AlertBoard& board, HWND owner);
    ~AlertWindow() override;

    AlertModel& Model() override { return m_model; }

    AlertScreen Screen() override;
    void Move(const FormPlacement& twips) override;
    void SetLabel(const PixelRect& bounds, const std::string& caption) override;
    void Paint(const AlertPicture& picture) override;
    void SetRegion(const RoundRegion& region) override;
    void SetAlpha(std::uint8_t alpha) override;
    void SetTopmost(bool on) override;
    void StartTimer() override;
    void Unload() override;

protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void OnPaint();

    AlertModel m_model;
    base::TwipsPerPixel m_twipsPerPixel;
    base::UniqueBitmap m_image;  // the persistent drawing: gradient and frame
    RECT m_labelBounds{};
    std::wstring m_labelCaption;
};

// Makes each alert as a window of its own, all owned by one hidden window.
class AlertWindowFactory : public AlertFactory {
public:
    AlertWindowFactory();

protected:
    std::unique_ptr<AlertInstance> Create(AlertBoard& board) override;

private:
    base::UniqueHwnd m_owner;
};

}  // namespace controls
