#pragma once
// The lists whose rows can be written to log files, and the word that names each family of files.
#include <array>
#include <string_view>

namespace logs {

enum class LogKind { Application, Process, Startup, Netstat, MyNetwork };

inline constexpr std::array<LogKind, 5> kLogKinds{LogKind::Process, LogKind::Application, LogKind::Startup,
                                                  LogKind::Netstat, LogKind::MyNetwork};

// The file-name stem: "application", "process", "startup", "netstat", "mynetwork".
std::string_view KindWord(LogKind kind);

}  // namespace logs
