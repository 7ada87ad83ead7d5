#pragma once
#include "platform/program_version.h"

namespace platform::win32 {

// Major, minor and revision of the running executable's version resource, whose file version
// is written as major, minor, revision, 0; all 0 when the resource cannot be read.
ProgramVersion ReadProgramVersion();

}  // namespace platform::win32
