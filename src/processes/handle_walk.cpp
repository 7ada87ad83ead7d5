#include "processes/handle_walk.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "processes/deferred_messages.h"

namespace processes {

struct HandleWalk::Job {
    std::mutex mutex;
    std::condition_variable finishedSignal;
    std::size_t next = 0;  // the entry being probed
    bool finished = false;
    bool abandoned = false;
    std::vector<PortOwnerCell> found;
    DeferredMessages messages;
};

namespace {

using Entries = std::shared_ptr<const std::vector<HandleEntry>>;

template <typename JobType>
void Work(std::shared_ptr<JobType> job, Entries entries, Probe probe) {
    for (;;) {
        std::size_t index;
        {
            const std::lock_guard lock(job->mutex);
            if (job->abandoned) return;
            index = job->next;
            if (index >= entries->size()) {
                job->finished = true;
                job->finishedSignal.notify_one();
                return;
            }
        }
        std::optional<PortOwnerCell> cell;
        try {
            cell = probe((*entries)[index], job->messages);
        } catch (...) {
            // The probe traps its own errors; nothing may leave a thread.
        }
        const std::lock_guard lock(job->mutex);
        if (job->abandoned) return;
        if (cell) job->found.push_back(*cell);
        job->next = index + 1;
    }
}

}  // namespace

std::optional<std::size_t> HandleWalk::Await(Job& job) {
    using Clock = std::chrono::steady_clock;
    std::size_t seen = 0;
    auto since = Clock::now();
    bool first = true;
    for (;;) {
        {
            std::unique_lock lock(job.mutex);
            if (job.finishedSignal.wait_for(lock, m_limits.pumpInterval, [&] { return job.finished; })) break;
            const auto now = Clock::now();
            if (first || job.next != seen) {
                first = false;
                seen = job.next;
                since = now;
            } else if (now - since >= m_limits.probeTimeout) {
                job.abandoned = true;
                return seen;
            }
        }
        job.messages.ShowOn(m_dialogs);
        m_pump.DoEvents();
    }
    job.messages.ShowOn(m_dialogs);
    return std::nullopt;
}

std::vector<PortOwnerCell> HandleWalk::Walk(const std::vector<HandleEntry>& entries, Probe probe) {
    auto pending = std::make_shared<std::vector<HandleEntry>>();
    pending->reserve(entries.size());
    for (const HandleEntry& e : entries) {
        if (!m_stuck.count({e.processId, e.handleValue})) pending->push_back(e);
    }
    const Entries shared = pending;
    std::vector<PortOwnerCell> found;
    std::size_t start = 0;
    for (;;) {
        auto job = std::make_shared<Job>();
        job->next = start;
        std::thread worker(Work<Job>, job, shared, probe);
        const std::optional<std::size_t> stuck = Await(*job);
        {
            const std::lock_guard lock(job->mutex);
            found.insert(found.end(), job->found.begin(), job->found.end());
        }
        if (!stuck) {
            worker.join();
            return found;
        }
        worker.detach();
        const HandleEntry& blocked = (*shared)[*stuck];
        m_stuck.insert({blocked.processId, blocked.handleValue});
        start = *stuck + 1;
    }
}

}  // namespace processes
