#pragma once
// Marks a routine as running for one scope. Long routines pump messages, so the same routine
// can be asked for again from inside itself; the second call sees that it is not the first.
namespace base {

class ReentryGuard {
public:
    explicit ReentryGuard(bool& running) : m_running(running), m_first(!running) { running = true; }
    ~ReentryGuard() {
        if (m_first) m_running = false;
    }
    ReentryGuard(const ReentryGuard&) = delete;
    ReentryGuard& operator=(const ReentryGuard&) = delete;

    // False when the routine was already running.
    bool First() const { return m_first; }

private:
    bool& m_running;
    bool m_first;
};

}  // namespace base
