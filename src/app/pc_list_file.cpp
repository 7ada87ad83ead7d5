#include "app/pc_list_file.h"

#include <string_view>
#include <vector>

#include "base/runtime_error.h"
#include "base/text_encoding.h"

namespace app {
namespace {

std::string Record(std::string_view text) { return "\"" + std::string(text) + "\"\r\n"; }

// Reads the fields of a sequential file the way the runtime's "input" does: a quoted field
// runs to its closing quote; an unquoted one to the next comma or line end, blanks trimmed.
std::vector<std::string> ReadRecords(std::string_view bytes) {
    std::vector<std::string> records;
    std::size_t i = 0;
    const auto atLineEnd = [&] { return i >= bytes.size() || bytes[i] == '\r' || bytes[i] == '\n'; };
    while (i < bytes.size()) {
        while (i < bytes.size() && (bytes[i] == ' ' || bytes[i] == '\t')) ++i;
        std::string field;
        if (i < bytes.size() && bytes[i] == '"') {
            const std::size_t close = bytes.find('"', i + 1);
            const std::size_t end = close == std::string_view::npos ? bytes.size() : close;
            field = std::string(bytes.substr(i + 1, end - i - 1));
            i = end == bytes.size() ? end : end + 1;
            while (!atLineEnd() && bytes[i] != ',') ++i;
        } else {
            const std::size_t start = i;
            while (!atLineEnd() && bytes[i] != ',') ++i;
            field = std::string(bytes.substr(start, i - start));
            while (!field.empty() && (field.back() == ' ' || field.back() == '\t')) field.pop_back();
        }
        if (i < bytes.size() && bytes[i] == ',') {
            ++i;
        } else {
            if (i < bytes.size() && bytes[i] == '\r') ++i;
            if (i < bytes.size() && bytes[i] == '\n') ++i;
        }
        records.push_back(base::AnsiToUtf8(field));
    }
    return records;
}

}  // namespace

void LoadPcList(platform::IFileSystem& files, const std::string& path, PcList& list) {
    if (!files.FileExists(path)) {
        if (auto file = files.Open(path, platform::OpenMode::Output)) file->Write(Record(kListOff));
    }
    const auto bytes = files.ReadAll(path);
    if (!bytes) return;
    int slot = 0;
    for (auto& record : ReadRecords(*bytes)) list[slot++] = std::move(record);
}

void SavePcList(platform::IFileSystem& files, const std::string& path, bool enforced,
                const std::array<std::string, 20>& entries) {
    std::string bytes = Record(enforced ? kListOn : kListOff);
    for (const auto& entry : entries) bytes += Record(base::Utf8ToAnsi(entry));
    const auto file = files.Open(path, platform::OpenMode::Output);
    if (!file) throw base::RuntimeError(base::RuntimeErrorNumber::PathFileAccess);
    file->Write(bytes);
}

}  // namespace app
