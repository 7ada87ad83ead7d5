#pragma once
// frmAlertWindow as its callers see it, and the seam through which they get one. Callers
// take a new alert for each message and call DisplayMessage once on it.
#include <cstdint>
#include <string>
#include <vector>

#include "base/colour.h"

namespace controls {

class IAlert {
public:
    virtual ~IAlert() = default;
    // TimeOut >= 1: seconds on screen; 0: until clicked; negative: until CloseActivate.
    // Reserved is ignored. BackColor (0x00BBGGRR) is the gradient's far corner and the inner
    // frame line. TimeOut x 100 beyond 32 bits raises the runtime's overflow error.
    virtual void DisplayMessage(const std::string& Message, std::int32_t TimeOut, bool Fade, bool Reserved,
                                bool Square, base::Colour BackColor) = 0;
    // Assigning true makes the alert leave at its next tick, even one that clicks cannot
    // close; assigning false does nothing, and reading always gives false.
    virtual void SetCloseActivate(bool value) = 0;
    virtual bool CloseActivate() const = 0;
};

class IAlertFactory {
public:
    virtual ~IAlertFactory() = default;
    // A new, loaded frmAlertWindow.
    virtual IAlert& NewAlert() = 0;
    // The form's default instance: the same one until it unloads, then a fresh one.
    virtual IAlert& DefaultAlert() = 0;
    // Every alert that is loaded, oldest first: the application's open alert forms.
    virtual std::vector<IAlert*> OpenAlerts() = 0;
};

}  // namespace controls
