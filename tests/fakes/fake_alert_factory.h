#pragma once
// Alerts that only remember what they were asked: every DisplayMessage (in the factory's log)
// and every assignment to CloseActivate. For code that raises alerts through frmDemo.
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "controls/alert.h"

namespace fakes {

struct DisplayedMessage {
    std::string message;
    std::int32_t timeOut;
    bool fade, reserved, square;
    base::Colour backColor;
    bool operator==(const DisplayedMessage&) const = default;
};

class FakeAlert : public controls::IAlert {
public:
    explicit FakeAlert(std::vector<DisplayedMessage>& log) : m_log(log) {}
    void DisplayMessage(const std::string& Message, std::int32_t TimeOut, bool Fade, bool Reserved, bool Square,
                        base::Colour BackColor) override {
        m_log.push_back({Message, TimeOut, Fade, Reserved, Square, BackColor});
    }
    void SetCloseActivate(bool value) override { closeActivate.push_back(value); }
    bool CloseActivate() const override { return false; }

    std::vector<bool> closeActivate;

private:
    std::vector<DisplayedMessage>& m_log;
};

// Every alert it made stays open; the default instance is made on first use and kept.
class FakeAlertFactory : public controls::IAlertFactory {
public:
    controls::IAlert& NewAlert() override { return *alerts.emplace_back(std::make_unique<FakeAlert>(displayed)); }
    controls::IAlert& DefaultAlert() override {
        if (!defaultAlert) defaultAlert = static_cast<FakeAlert*>(&NewAlert());
        return *defaultAlert;
    }
    std::vector<controls::IAlert*> OpenAlerts() override {
        std::vector<controls::IAlert*> open;
        for (const auto& alert : alerts) open.push_back(alert.get());
        return open;
    }

    // Every message shown, in order, whichever alert showed it.
    std::vector<DisplayedMessage> displayed;
    std::deque<std::unique_ptr<FakeAlert>> alerts;
    FakeAlert* defaultAlert = nullptr;
};

}  // namespace fakes
