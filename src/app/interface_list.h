#pragma once
// The texts that name the network interfaces: "N: description", N counting from 0. The
// options dialog offers them and setting "nc" stores the chosen one.
#include <string>
#include <vector>

#include "platform/iphelper.h"

namespace app {

// The counter is one byte, as the program keeps it: a 257th interface raises the overflow error.
std::vector<std::string> InterfaceTexts(const std::vector<platform::InterfaceRow>& table);

}  // namespace app
