#pragma once

namespace platform {

class IBeeper {
public:
    virtual ~IBeeper() = default;
    virtual void Beep() = 0;
};

}  // namespace platform
