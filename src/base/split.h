#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace base {

// Cuts text at every separator into pieces (index from 0) and returns the highest index,
// so a text with one separator gives 1. An empty separator gives the whole text as piece 0.
int Split(std::string_view text, std::string_view separator, std::vector<std::string>& pieces);

}  // namespace base
