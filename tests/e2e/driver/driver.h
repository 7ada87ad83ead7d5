#pragma once
// lookout_driver: reads and operates another process's windows from outside, the way a user or an
// accessibility tool would, and prints what it finds as UTF-8 lines of tab-separated fields.
#include <windows.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace driver {

// A failure the test should see: printed on stderr, exit code 1.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Options {
    std::string command;
    std::vector<std::string> arguments;  // positional arguments after the command

    // The top-level window.
    std::optional<std::string> title;
    std::optional<std::string> windowClass;
    std::optional<std::string> process;  // image name, e.g. veskar_lookout.exe
    std::chrono::milliseconds timeout{5000};
    bool mustBeVisible = false;

    // A control inside it.
    std::optional<int> id;
    std::optional<int> nth;
    std::optional<std::string> caption;
    bool visibleControl = false;

    std::optional<int> itemId;  // menu-invoke by command id
};

// One output line: fields joined by tabs; CR, LF and TAB inside a field are written as \r, \n, \t.
void PrintLine(const std::vector<std::string>& fields);
std::string Hex(std::uintptr_t value);
// A whole decimal (or 0x hexadecimal) number; std::invalid_argument naming `what` otherwise.
int ParseNumber(const std::string& text, const std::string& what);

// A command of the command line. Each throws Failure when it cannot do what was asked.
struct Command {
    const char* name;
    const char* help;
    void (*run)(const Options&);
};

// The tables of the four command families.
const std::vector<Command>& WindowCommands();   // wait, windows, window, children, show, hide, close
const std::vector<Command>& ControlCommands();  // list views, tabs, status bar, toolbar
const std::vector<Command>& MenuCommands();     // menu tree, invoking items
const std::vector<Command>& DialogCommands();   // message boxes, buttons, edits, check boxes

}  // namespace driver
