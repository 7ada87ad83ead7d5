#include "controls/alert_model.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/conversions.h"
#include "base/runtime_error.h"

namespace controls {
namespace {

constexpr float kFormWidth = 2400;
constexpr float kFormHeight = 1000;
constexpr float kLabelHeight = 825;  // lblMessage's design-time height, twips
constexpr std::int32_t kInvisible = 100;

}  // namespace

std::int16_t GradientChannel(int channel) { return static_cast<std::int16_t>(static_cast<std::uint16_t>(channel << 8)); }

std::optional<std::uint8_t> AlphaForTransparency(std::int32_t percent) {
    const double alpha = base::RoundHalfEven((100.0 - percent) / 100.0 * 255.0);
    if (alpha < 0 || alpha > 255) return std::nullopt;
    return static_cast<std::uint8_t>(alpha);
}

AlertModel::AlertModel(AlertBoard& board) : m_board(board) {}

AlertModel::~AlertModel() {
    // Ending the program unloads what is still loaded; the window is already gone.
    if (Loaded()) {
        m_board.slots.Release(m_slot);
        std::erase(m_board.open, this);
    }
}

void AlertModel::Load(IAlertSurface& surface) {
    m_surface = &surface;
    const AlertScreen screen = surface.Screen();
    m_twipsPerPixel = screen.twipsPerPixel;
    m_workAreaBottom = base::ToInt32(static_cast<double>(screen.workAreaBottom) * m_twipsPerPixel.y);
    const std::int32_t right = base::ToInt32(static_cast<double>(screen.workAreaRight) * m_twipsPerPixel.x);
    m_placement = {static_cast<float>(right) - kFormWidth, static_cast<float>(m_workAreaBottom), kFormWidth,
                   kFormHeight};
    surface.Move(m_placement);
    m_slot = m_board.slots.Take();
    m_board.open.push_back(this);
}

void AlertModel::DisplayMessage(const std::string& Message, std::int32_t TimeOut, bool Fade, bool /*Reserved*/,
                                bool Square, base::Colour BackColor) {
    if (!Loaded()) return;
    if (TimeOut >= 1) {
        const std::int64_t ticks = static_cast<std::int64_t>(TimeOut) * 100;
        if (ticks > std::numeric_limits<std::int32_t>::max()) throw base::RuntimeError(base::RuntimeErrorNumber::Overflow);
        m_ticksLeft = static_cast<std::int32_t>(ticks);
    } else {
        m_untimed = true;
        m_ticksLeft = 1;
        if (TimeOut != 0) m_codeCloseOnly = true;
    }
    const int labelTop = m_ticksLeft == 1 ? 5 : 10;
    m_surface->SetLabel({5, labelTop, InnerWidth() - 10, base::TwipsToPixels(kLabelHeight, m_twipsPerPixel.y)},
                        Message);
    m_fadeMode = Fade;
    if (Fade) {
        m_stepOrTransparency = kInvisible;
        SetTop(std::max(TargetTop(), 0.0f));
        ApplyTransparency(kInvisible);
        m_surface->SetTopmost(true);
    } else {
        // Alerts that travel further move twice as fast.
        m_stepOrTransparency = m_slot < 2 ? 50 : 100;
    }
    m_surface->Paint(Picture(Square, BackColor));
    if (!Square) m_surface->SetRegion({InnerWidth(), InnerHeight(), 19, 19});
    m_surface->StartTimer();
}

void AlertModel::SetCloseActivate(bool value) {
    if (value) m_ticksLeft = 0;
}

void AlertModel::Click() {
    if (!m_codeCloseOnly) m_ticksLeft = 0;
}

void AlertModel::Tick() {
    if (!Loaded()) return;
    if (m_fadeMode) {
        FadeTick();
    } else {
        SlideTick();
    }
}

void AlertModel::SlideTick() {
    if (m_ticksLeft >= 1) {
        const float target = TargetTop();
        if (m_placement.top > 0 && target < m_placement.top) {
            SetTop(m_placement.top - static_cast<float>(m_stepOrTransparency));
            return;
        }
        if (!m_arrived) {
            SetTop(std::max(target, 0.0f));
            m_arrived = true;
            m_surface->SetTopmost(true);  // the moment the alert becomes visible
        }
        if (!m_untimed) --m_ticksLeft;
        return;
    }
    const AlertScreen screen = m_surface->Screen();
    if (static_cast<float>(screen.screenHeight) * static_cast<float>(screen.twipsPerPixel.y) < m_placement.top) {
        Unload();
        return;
    }
    if (m_arrived) {
        // Leaving behind a topmost taskbar.
        m_arrived = false;
        m_surface->SetTopmost(false);
    }
    SetTop(m_placement.top + static_cast<float>(m_stepOrTransparency));
}

void AlertModel::FadeTick() {
    if (m_ticksLeft < 1) {
        if (m_stepOrTransparency > kInvisible) {
            Unload();
            return;
        }
        m_stepOrTransparency += 2;
        ApplyTransparency(m_stepOrTransparency);
    } else if (m_stepOrTransparency < 1) {
        if (!m_untimed) --m_ticksLeft;
    } else {
        m_stepOrTransparency -= 2;
        ApplyTransparency(m_stepOrTransparency);
    }
}

float AlertModel::TargetTop() const {
    return static_cast<float>(static_cast<double>(m_workAreaBottom) - static_cast<double>(m_placement.height) * m_slot);
}

void AlertModel::SetTop(float top) {
    m_placement.top = top;
    m_surface->Move(m_placement);
}

void AlertModel::ApplyTransparency(std::int32_t percent) {
    if (const auto alpha = AlphaForTransparency(percent)) m_surface->SetAlpha(*alpha);
}

void AlertModel::Unload() {
    if (!Loaded()) return;
    m_board.slots.Release(m_slot);
    std::erase(m_board.open, this);
    IAlertSurface* surface = std::exchange(m_surface, nullptr);
    surface->Unload();
}

int AlertModel::InnerWidth() const { return base::TwipsToPixels(m_placement.width, m_twipsPerPixel.x); }
int AlertModel::InnerHeight() const { return base::TwipsToPixels(m_placement.height, m_twipsPerPixel.y); }

AlertPicture AlertModel::Picture(bool square, base::Colour backColor) const {
    AlertPicture picture;
    const int w = InnerWidth();
    const int h = InnerHeight();
    picture.width = w;
    picture.height = h;
    const std::int16_t white = GradientChannel(255);
    picture.vertices = {{
        {0, 0, white, white, white, 0},
        {w, 0, white, white, white, 0},
        {w, h, GradientChannel(base::RedOf(backColor)), GradientChannel(base::GreenOf(backColor)),
         GradientChannel(base::BlueOf(backColor)), 0},
        {0, h, white, white, white, 0},
    }};
    const base::Colour face = base::kButtonFace;
    if (square) {
        picture.lines = {
            {w - 1, h - 1, w - 1, 0, face},         {w - 1, h - 1, 0, h - 1, face},
            {w - 1, 0, 0, 0, face},                 {0, h - 1, 0, 0, face},
            {w - 2, h - 2, w - 2, 1, backColor},    {w - 2, h - 2, 1, h - 2, backColor},
            {w - 2, 1, 1, 1, backColor},            {1, h - 2, 1, 1, backColor},
        };
    } else {
        picture.roundRects = {
            {0, 0, w - 1, h - 1, 20, 20, face},
            {1, 1, w - 2, h - 2, 18, 18, backColor},
        };
    }
    return picture;
}

}  // namespace controls
