// lookout_driver COMMAND [ARGUMENTS] [OPTIONS]: see Usage() below.
#include <windows.h>
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <cstring>
#include <iostream>

#include "base/win32/wide.h"
#include "driver.h"

namespace driver {

void PrintLine(const std::vector<std::string>& fields) {
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i) line += '\t';
        for (char c : fields[i]) {
            switch (c) {
                case '\r': line += "\\r"; break;
                case '\n': line += "\\n"; break;
                case '\t': line += "\\t"; break;
                default: line += c;
            }
        }
    }
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stdout);
}

std::string Hex(std::uintptr_t value) {
    char text[32];
    std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(value));
    return text;
}

int ParseNumber(const std::string& text, const std::string& option) {
    try {
        std::size_t used = 0;
        const int value = std::stoi(text, &used, 0);
        if (used == text.size()) return value;
    } catch (const std::exception&) {
    }
    throw std::invalid_argument(option + " needs a number, not \"" + text + "\"");
}

namespace {

std::vector<const std::vector<Command>*> Families() {
    return {&WindowCommands(), &ControlCommands(), &MenuCommands(), &DialogCommands()};
}

void Usage() {
    std::string text =
        "usage: lookout_driver COMMAND [ARGUMENTS] [OPTIONS]\n"
        "\n"
        "The top-level window (commands wait for it up to --timeout):\n"
        "  --title TEXT      exact window title\n"
        "  --class NAME      exact window class (#32770 for dialogs)\n"
        "  --process NAME    image name of the owning process, e.g. veskar_lookout.exe\n"
        "  --visible         only a visible window counts\n"
        "  --timeout MS      how long to wait (default 5000)\n"
        "A control inside it (default: the first of the command's kind):\n"
        "  --id N            control id\n"
        "  --nth N           the N-th of its kind, from 0\n"
        "  --visible-control the first visible one\n"
        "  --caption TEXT    its caption (\"&\" may be left out)\n"
        "\n"
        "Commands:\n";
    for (const auto* family : Families())
        for (const Command& command : *family) text += "  " + std::string(command.help) + "\n";
    text +=
        "\nOutput: UTF-8 lines, fields separated by TAB; CR, LF and TAB inside a field are written as\n"
        "\\r, \\n and \\t. Exit code 0 on success, 1 on failure (reason on stderr), 2 on bad usage.\n";
    std::fputs(text.c_str(), stderr);
}

Options Parse(const std::vector<std::string>& args) {
    Options options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        auto value = [&]() -> const std::string& {
            if (i + 1 >= args.size()) throw std::invalid_argument(arg + " needs a value");
            return args[++i];
        };
        if (arg == "--title") options.title = value();
        else if (arg == "--class") options.windowClass = value();
        else if (arg == "--process") options.process = value();
        else if (arg == "--visible") options.mustBeVisible = true;
        else if (arg == "--timeout") options.timeout = std::chrono::milliseconds(ParseNumber(value(), arg));
        else if (arg == "--id") options.id = ParseNumber(value(), arg);
        else if (arg == "--nth") options.nth = ParseNumber(value(), arg);
        else if (arg == "--visible-control") options.visibleControl = true;
        else if (arg == "--caption") options.caption = value();
        else if (arg == "--item-id") options.itemId = ParseNumber(value(), arg);
        else if (arg.starts_with("--")) throw std::invalid_argument("unknown option " + arg);
        else if (options.command.empty()) options.command = arg;
        else options.arguments.push_back(arg);
    }
    if (options.command.empty()) throw std::invalid_argument("no command given");
    return options;
}

std::vector<std::string> Arguments() {
    // The wide command line: under Wine the Linux arguments arrive as UTF-8 and are widened by the
    // system, so Japanese captions survive.
    int count = 0;
    LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> args;
    for (int i = 1; i < count; ++i) args.push_back(base::Narrow(wide[i]));
    LocalFree(wide);
    return args;
}

}  // namespace
}  // namespace driver

int main() {
    _setmode(_fileno(stdout), _O_BINARY);  // "\n" stays "\n"
    driver::Options options;
    try {
        options = driver::Parse(driver::Arguments());
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "lookout_driver: %s\n\n", error.what());
        driver::Usage();
        return 2;
    }
    for (const auto* family : driver::Families()) {
        for (const driver::Command& command : *family) {
            if (options.command != command.name) continue;
            try {
                command.run(options);
                std::fflush(stdout);
                return 0;
            } catch (const driver::Failure& failure) {
                std::fflush(stdout);
                std::fprintf(stderr, "lookout_driver %s: %s\n", command.name, failure.what());
                return 1;
            } catch (const std::invalid_argument& error) {
                std::fprintf(stderr, "lookout_driver %s: %s\n", command.name, error.what());
                return 2;
            } catch (const std::exception& error) {
                std::fprintf(stderr, "lookout_driver %s: %s\n", command.name, error.what());
                return 1;
            }
        }
    }
    std::fprintf(stderr, "lookout_driver: unknown command \"%s\"\n\n", options.command.c_str());
    driver::Usage();
    return 2;
}
