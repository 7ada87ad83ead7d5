#pragma once
// An alert window that records what the model asks of it, so an alert's whole life runs in a test.
#include <optional>
#include <string>
#include <vector>

#include "controls/alert_model.h"

namespace controls::testing {

// A 1280 x 1024 screen of 15 twips per pixel with a 30-pixel taskbar at the bottom.
inline AlertScreen StandardScreen() { return {1280, 994, 1024, {15, 15}}; }

class RecordingAlertSurface : public IAlertSurface {
public:
    explicit RecordingAlertSurface(AlertScreen screen = StandardScreen()) : screen(screen) {}

    AlertScreen Screen() override { return screen; }
    void Move(const FormPlacement& twips) override { moves.push_back(twips); }
    void SetLabel(const PixelRect& bounds, const std::string&) override { labelBounds = bounds; }
    void Paint(const AlertPicture& painted) override { picture = painted; }
    void SetRegion(const RoundRegion& clip) override { region = clip; }
    void SetAlpha(std::uint8_t alpha) override { alphas.push_back(alpha); }
    void SetTopmost(bool on) override { topmost.push_back(on); }
    void StartTimer() override { ++timerStarts; }
    void Unload() override { ++unloads; }

    AlertScreen screen;
    std::vector<FormPlacement> moves;
    std::optional<PixelRect> labelBounds;
    std::optional<AlertPicture> picture;
    std::optional<RoundRegion> region;
    std::vector<std::uint8_t> alphas;
    std::vector<bool> topmost;
    int unloads = 0;
    int timerStarts = 0;
};

}  // namespace controls::testing
