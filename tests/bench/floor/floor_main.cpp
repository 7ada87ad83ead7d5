// lookout_floor: the least a monitoring tick can cost. A hidden window whose one-second timer makes
// the operating-system calls of the program's Timer1 tick and nothing else: the fresh counters of
// the loopback interface, the share sessions of this PC (with the client-name lookups the program
// makes for each, and the pass over waiting window messages it must make after every enumeration
// call), the files other users hold open. tests/bench/monitoring_cpu.sh compares the
// program's CPU time with this one's.
//
//   lookout_floor.exe              tick until the window "lookout_floor" is closed
//   lookout_floor.exe --loopback   print the loopback interface's text as the program names it
//                                  ("N: description") and end
#define _WINSOCK_DEPRECATED_NO_WARNINGS
#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>
#include <lm.h>

#include <cstdio>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>

#include "app/interface_list.h"
#include "base/text_encoding.h"
#include "base/win32/wide.h"
#include "base/win32/window.h"
#include "platform/win32/ip_helper.h"
#include "platform/win32/message_pump.h"

namespace {

constexpr const wchar_t* kTitle = L"lookout_floor";
constexpr UINT_PTR kTimerId = 1;
constexpr UINT kIntervalMs = 1000;

struct Loopback {
    std::uint32_t index = 0;
    std::string text;
};

// The loopback interface among the rows the program lists, read the program's own way so the
// text matches what it offers for the setting "nc".
std::optional<Loopback> FindLoopback() {
    platform::win32::IpHelper ipHelper;
    const auto table = ipHelper.InterfaceTable();
    const auto texts = app::InterfaceTexts(table);
    for (std::size_t i = 0; i < table.size(); ++i) {
        MIB_IFROW row{};
        row.dwIndex = table[i].index;
        if (GetIfEntry(&row) == NO_ERROR && row.dwType == MIB_IF_TYPE_LOOPBACK) return Loopback{row.dwIndex, texts[i]};
    }
    return std::nullopt;
}

bool Answered(NET_API_STATUS status) { return status == NERR_Success || status == ERROR_MORE_DATA; }

// What the program asks Winsock about a client that holds a session: its address by name, then
// a name by that address (or by the client name when it has no address).
void LookUpClient(const wchar_t* client) {
    WSADATA data{};
    if (WSAStartup(MAKEWORD(1, 1), &data) != 0) return;
    const std::string name = base::Utf8ToAnsi(base::Narrow(client));
    std::string target = name;
    if (const hostent* entry = gethostbyname(name.c_str()); entry && entry->h_addr_list[0]) {
        in_addr address{};
        std::memcpy(&address, entry->h_addr_list[0], sizeof address);
        target = inet_ntoa(address);
    }
    const unsigned long address = inet_addr(target.c_str());
    gethostbyaddr(reinterpret_cast<const char*>(&address), sizeof address, AF_INET);
    WSACleanup();
}

class FloorWindow : public base::Window {
public:
    FloorWindow(std::uint32_t interfaceIndex, std::wstring computerName)
        : m_interfaceIndex(interfaceIndex), m_computerName(std::move(computerName)) {
        RegisterWindowClass(L"LookoutFloor");
        // Hidden, like the program's main window with "open" 0.
        CreateWindowFor(0, L"LookoutFloor", kTitle, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, 300, 200, nullptr);
        if (!SetTimer(Handle(), kTimerId, kIntervalMs, nullptr)) throw std::runtime_error("SetTimer failed");
    }

protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_TIMER:
                if (wParam == kTimerId) Tick();
                return 0;
            case WM_DESTROY:
                KillTimer(Handle(), kTimerId);
                PostQuitMessage(0);
                return 0;
        }
        return Window::HandleMessage(message, wParam, lParam);
    }

private:
    // Results are not looked at: only the calls count here.
    void Tick() {
        MIB_IFROW row{};
        row.dwIndex = m_interfaceIndex;
        GetIfEntry(&row);
        EnumSessions();
        EnumOpenFiles();
    }

    void EnumSessions() {
        DWORD read = 0, total = 0, resume = 0;
        do {
            LPBYTE buffer = nullptr;
            read = total = 0;  // some systems answer without writing them
            const NET_API_STATUS status = NetSessionEnum(m_computerName.data(), nullptr, nullptr, 2, &buffer,
                                                         MAX_PREFERRED_LENGTH, &read, &total, &resume);
            if (Answered(status) && buffer) {
                const auto* sessions = reinterpret_cast<const SESSION_INFO_2*>(buffer);
                for (DWORD i = 0; i < read; ++i) {
                    const wchar_t* user = sessions[i].sesi2_username;
                    if (user && *user && sessions[i].sesi2_cname) LookUpClient(sessions[i].sesi2_cname);
                }
            }
            if (buffer) NetApiBufferFree(buffer);
            m_pump.DoEvents();
        } while (read != total);
    }

    static void EnumOpenFiles() {
        DWORD_PTR resume = 0;
        NET_API_STATUS status;
        do {
            LPBYTE buffer = nullptr;
            DWORD read = 0, total = 0;
            status = NetFileEnum(nullptr, nullptr, nullptr, 3, &buffer, MAX_PREFERRED_LENGTH, &read, &total, &resume);
            if (buffer) NetApiBufferFree(buffer);
        } while (status == ERROR_MORE_DATA);
    }

    std::uint32_t m_interfaceIndex;
    std::wstring m_computerName;
    platform::win32::MessagePump m_pump;
};

std::wstring ComputerName() {
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1]{};
    DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
    if (!GetComputerNameW(name, &size)) throw std::runtime_error("GetComputerNameW failed");
    return name;
}

int Run(int argc, char** argv) {
    const auto loopback = FindLoopback();
    if (!loopback) throw std::runtime_error("no loopback interface in the interface table");
    if (argc == 2 && std::strcmp(argv[1], "--loopback") == 0) {
        std::printf("%s\n", loopback->text.c_str());
        return 0;
    }
    if (argc != 1) {
        std::fprintf(stderr, "usage: lookout_floor [--loopback]\n");
        return 2;
    }
    FloorWindow window(loopback->index, ComputerName());
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "lookout_floor: %s\n", error.what());
        return 1;
    }
}
