#include "logs/log_kind.h"

namespace logs {

std::string_view KindWord(LogKind kind) {
    switch (kind) {
        case LogKind::Application: return "application";
        case LogKind::Process: return "process";
        case LogKind::Startup: return "startup";
        case LogKind::Netstat: return "netstat";
        case LogKind::MyNetwork: return "mynetwork";
    }
    return {};
}

}  // namespace logs
