#pragma once

namespace platform {

// The running executable's version as its version resource gives it.
struct ProgramVersion {
    unsigned major = 0;
    unsigned minor = 0;
    unsigned revision = 0;
};

}  // namespace platform
