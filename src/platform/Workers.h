#pragma once

#include <QObject>
#include <QThread>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace varnhold {

class WorkOrder;

/// A few threads for work that would hold up the event loop. They start with the first order, and take orders
/// in the order of their coming.
class Workers
{
public:
    explicit Workers(int threads) : m_wanted(threads) {}
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers();

private:
    friend class WorkOrder;

    struct Job
    {
        std::function<void()> work;
        std::function<void()> done;
        WorkOrder* order = nullptr; ///< none: nobody waits for it any more
        bool isRunning = false;
    };

    void add(const std::shared_ptr<Job>& job);
    /// The job runs no more when this returns, and raises nothing.
    void giveUp(const std::shared_ptr<Job>& job);
    void run();

    const int m_wanted;
    std::vector<std::unique_ptr<QThread>> m_threads;
    std::mutex m_mutex; ///< guards what follows, and whether a job runs and for whom
    std::condition_variable m_added;
    std::condition_variable m_ended;
    std::deque<std::shared_ptr<Job>> m_waiting;
    bool m_stopping = false;
};

/// One piece of work at a time for one owner, who lives on the event loop's thread as this does.
class WorkOrder
{
public:
    explicit WorkOrder(std::shared_ptr<Workers> workers) : m_workers(std::move(workers)) {}
    WorkOrder(const WorkOrder&) = delete;
    WorkOrder& operator=(const WorkOrder&) = delete;
    ~WorkOrder() { cancel(); }

    /// Not while another is under way. Has `work` called on a worker, and then `done` with its result from
    /// the event loop. The work takes copies of what it needs, or things that nobody else touches until the
    /// end; it throws nothing, and is to be short, since cancel() waits for it.
    template <typename Work, typename Done> void start(Work work, Done done)
    {
        auto result = std::make_shared<std::optional<std::invoke_result_t<Work&>>>();
        begin([result, work = std::move(work)]() mutable { result->emplace(work()); },
              [result, done = std::move(done)]() mutable { done(std::move(**result)); });
    }
    [[nodiscard]] bool isUnderWay() const { return m_job != nullptr; }
    /// Waits for work that has begun, and drops what has not. `done` will not be called.
    void cancel();

private:
    friend class Workers;

    void begin(std::function<void()> work, std::function<void()> done);
    void deliver(const std::shared_ptr<Workers::Job>& job);

    std::shared_ptr<Workers> m_workers;
    std::shared_ptr<Workers::Job> m_job;
    QObject m_receiver; ///< of the event that tells the end
};

} // namespace varnhold
