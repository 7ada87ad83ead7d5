#include "platform/win32/http_client.h"

#include <wininet.h>

#include <mutex>
#include <thread>

#include "base/text_encoding.h"
#include "base/win32/unique_resource.h"
#include "base/win32/wide.h"

namespace platform::win32 {

struct HttpClient::Request {
    std::mutex mutex;
    HWND answerTo = nullptr;  // cleared when the client no longer wants the answer
    std::string reply;
    WPARAM number = 0;  // tells its answer from that of an earlier, dropped request
};

namespace {

constexpr wchar_t kClassName[] = L"Veskar_Lookout.HttpClient";
constexpr UINT kAnswered = WM_APP + 1;
// For the connection, the request and each read; and for the whole request, measured here, since
// not every WinINet honours its own limits (Wine waits on a silent server for ever).
constexpr DWORD kTimeLimitMs = 10000;
constexpr UINT_PTR kTimeLimitTimer = 1;
constexpr std::size_t kLongestReply = 1 << 20;

using UniqueInternet = base::UniqueResource<base::SimpleTraits<HINTERNET, InternetCloseHandle>>;

// The body as the system's ANSI text; empty when any step fails or runs out of time. A reply
// longer than the limit is cut there: only its first line is ever used.
std::string Fetch(const std::wstring& url) {
    const UniqueInternet session(InternetOpenW(L"Veskar_Lookout", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0));
    if (!session) return {};
    for (DWORD option : {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_SEND_TIMEOUT, INTERNET_OPTION_RECEIVE_TIMEOUT}) {
        DWORD limit = kTimeLimitMs;
        if (!InternetSetOptionW(session.Get(), option, &limit, sizeof limit)) return {};
    }
    const UniqueInternet request(InternetOpenUrlW(
        session.Get(), url.c_str(), nullptr, 0,
        INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_PRAGMA_NOCACHE | INTERNET_FLAG_NO_UI, 0));
    if (!request) return {};
    std::string body;
    char chunk[4096];
    DWORD read = 0;
    while (body.size() < kLongestReply && InternetReadFile(request.Get(), chunk, sizeof chunk, &read) && read > 0) {
        body.append(chunk, read);
    }
    return body;
}

}  // namespace

HttpClient::HttpClient() {
    RegisterWindowClass(kClassName);
    CreateWindowFor(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE);
}

HttpClient::~HttpClient() { Drop(); }

void HttpClient::Drop() {
    if (!m_request) return;
    KillTimer(Handle(), kTimeLimitTimer);
    const std::shared_ptr<Request> request = std::move(m_request);  // outlives the lock below
    const std::lock_guard lock(request->mutex);
    request->answerTo = nullptr;
}

void HttpClient::Get(const std::string& url, std::function<void(std::string)> done) {
    Drop();
    m_done = std::move(done);
    m_request = std::make_shared<Request>();
    m_request->answerTo = Handle();
    m_request->number = ++m_requests;
    std::thread([request = m_request, wide = base::Widen(url)] {
        std::string reply = Fetch(wide);
        const std::lock_guard lock(request->mutex);
        request->reply = std::move(reply);
        if (request->answerTo) PostMessageW(request->answerTo, kAnswered, request->number, 0);
    }).detach();
    if (!SetTimer(Handle(), kTimeLimitTimer, kTimeLimitMs, nullptr)) Answer({});
}

void HttpClient::Answer(std::string reply) {
    Drop();
    const auto done = std::move(m_done);
    m_done = nullptr;
    if (done) done(std::move(reply));
}

LRESULT HttpClient::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER && wParam == kTimeLimitTimer) {
        if (m_request) Answer({});  // out of time: the worker's answer, if it comes, is dropped
        return 0;
    }
    if (message != kAnswered) return base::Window::HandleMessage(message, wParam, lParam);
    // Only the answer of the request still wanted counts.
    if (!m_request || m_request->number != wParam) return 0;
    std::string reply;
    {
        const std::lock_guard lock(m_request->mutex);
        reply = base::AnsiToUtf8(m_request->reply);
    }
    Answer(std::move(reply));
    return 0;
}

}  // namespace platform::win32
