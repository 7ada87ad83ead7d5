#pragma once
#include "platform/beeper.h"

namespace platform::win32 {

class Beeper : public IBeeper {
public:
    void Beep() override;
};

}  // namespace platform::win32
