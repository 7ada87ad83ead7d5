#pragma once
#include <functional>

#include "platform/message_pump.h"

namespace fakes {

// Counts the pumps; a test can run code "between messages" to imitate a timer or a click
// that the real pump would dispatch.
class FakeMessagePump : public platform::IMessagePump {
public:
    void DoEvents() override {
        ++calls;
        if (onPump) onPump();
    }

    int calls = 0;
    std::function<void()> onPump;
};

}  // namespace fakes
