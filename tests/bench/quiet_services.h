#pragma once
// Services that answer at once and never wait: a clock standing at one moment, a message pump
// with nothing to dispatch, dialogs that are cancelled.
#include <benchmark/benchmark.h>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/message_pump.h"

namespace bench {

class FixedClock : public platform::IClock {
public:
    base::LocalTime Now() override { return {2005, 6, 22, 9, 5, 3}; }
    std::uint32_t TickCount() override { return 0; }
};

class NoMessages : public platform::IMessagePump {
public:
    void DoEvents() override { benchmark::ClobberMemory(); }
};

class CancelledDialogs : public platform::IDialogs {
public:
    int ShowMessage(const std::string&, const std::string&, unsigned) override { return platform::msgbox::kOk; }
    std::optional<std::string> SaveFile(const platform::SaveFileRequest&) override { return std::nullopt; }
    std::optional<base::Colour> ChooseColour() override { return std::nullopt; }
    void SetClipboardText(const std::string&) override {}
};

}  // namespace bench
