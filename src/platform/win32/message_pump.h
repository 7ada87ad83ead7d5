#pragma once
#include "platform/message_pump.h"

namespace platform::win32 {

class MessagePump : public IMessagePump {
public:
    void DoEvents() override;
};

}  // namespace platform::win32
