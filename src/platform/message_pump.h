#pragma once

namespace platform {

// Dispatches every window message waiting in the thread's queue and returns; never waits.
// Long loops call it so that the window stays responsive.
class IMessagePump {
public:
    virtual ~IMessagePump() = default;
    virtual void DoEvents() = 0;
};

}  // namespace platform
