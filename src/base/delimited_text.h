#pragma once
// Delimited text, one record a line: fields separated by commas; a field enclosed in double
// quotes may hold commas, and "" inside it stands for one quote. A quote left open runs to the
// end of its line, so one bad line never swallows the records after it.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace base {

std::vector<std::string> DelimitedFields(std::string_view line);

// Calls record once per line (CR LF or LF line ends), in order, with the line's fields.
void ForEachDelimitedRecord(std::string_view text, const std::function<void(const std::vector<std::string>&)>& record);

}  // namespace base
