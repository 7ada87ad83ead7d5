#pragma once
// A web browser that other programs can drive.
#include <string>

namespace platform {

class IBrowser {
public:
    virtual ~IBrowser() = default;
    // Opens a browser window on the address; false when any step failed.
    virtual bool Navigate(const std::string& address) = 0;
};

}  // namespace platform
