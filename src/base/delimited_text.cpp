#include "base/delimited_text.h"

namespace base {

std::vector<std::string> DelimitedFields(std::string_view line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    bool atFieldStart = true;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted) {
            if (c != '"') {
                fields.back() += c;
            } else if (i + 1 < line.size() && line[i + 1] == '"') {
                fields.back() += '"';
                ++i;
            } else {
                quoted = false;
            }
        } else if (c == ',') {
            fields.emplace_back();
            atFieldStart = true;
            continue;
        } else if (c == '"' && atFieldStart) {
            quoted = true;
        } else {
            fields.back() += c;
        }
        atFieldStart = false;
    }
    return fields;
}

void ForEachDelimitedRecord(std::string_view text,
                            const std::function<void(const std::vector<std::string>&)>& record) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        record(DelimitedFields(line));
    }
}

}  // namespace base
