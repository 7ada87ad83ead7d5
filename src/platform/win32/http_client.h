#pragma once
// WinINet on a worker thread; the answer comes back through a message-only window, so it runs on
// the thread that asked, or an empty one when the time limit passes first. The worker owns its request: when the client ends first, the worker
// finishes within its time limits and its answer is dropped.
#include <functional>
#include <memory>

#include "base/win32/window.h"
#include "platform/http.h"

namespace platform::win32 {

class HttpClient final : public IHttpClient, private base::Window {
public:
    HttpClient();
    ~HttpClient() override;

    void Get(const std::string& url, std::function<void(std::string)> done) override;

    struct Request;

private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Forgets the request under way (its answer is dropped) and stops its time limit.
    void Drop();
    // Ends the request with this reply.
    void Answer(std::string reply);

    std::shared_ptr<Request> m_request;
    std::function<void(std::string)> m_done;
    WPARAM m_requests = 0;
};

}  // namespace platform::win32
