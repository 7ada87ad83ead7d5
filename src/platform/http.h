#pragma once
// One HTTP GET at a time, answered later on the thread that asked, while its messages go on.
#include <functional>
#include <string>

namespace platform {

class IHttpClient {
public:
    virtual ~IHttpClient() = default;
    // Starts the request; done runs afterwards with the reply's body as text, empty when the
    // request failed or ran out of time (the request has a time limit). A new request, or the
    // client's end, drops the answer of one under way.
    virtual void Get(const std::string& url, std::function<void(std::string)> done) = 0;
};

}  // namespace platform
