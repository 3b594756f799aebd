#include "platform/Workers.h"

#include <QMetaObject>

#include <algorithm>

namespace varnhold {

Workers::~Workers()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_stopping = true;
    }
    m_added.notify_all();
    for (const auto& thread : m_threads)
        thread->wait();
}

void Workers::add(const std::shared_ptr<Job>& job)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.push_back(job);
    }
    m_added.notify_one();
    while (m_threads.size() < static_cast<std::size_t>(m_wanted)) {
        m_threads.emplace_back(QThread::create([this] { run(); }));
        m_threads.back()->start();
    }
}

void Workers::giveUp(const std::shared_ptr<Job>& job)
{
    std::unique_lock lock(m_mutex);
    std::erase(m_waiting, job);
    job->order = nullptr;
    m_ended.wait(lock, [&] { return !job->isRunning; });
}

void Workers::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_added.wait(lock, [this] { return m_stopping || !m_waiting.empty(); });
        if (m_stopping)
            return;
        const std::shared_ptr<Job> job = m_waiting.front();
        m_waiting.pop_front();
        job->isRunning = true;
        lock.unlock();
        job->work();
        lock.lock();
        job->isRunning = false;
        // Under the lock, so that the order is there still.
        if (WorkOrder* order = job->order)
            QMetaObject::invokeMethod(
                &order->m_receiver, [order, job] { order->deliver(job); }, Qt::QueuedConnection);
        else
            m_ended.notify_all();
    }
}

void WorkOrder::begin(std::function<void()> work, std::function<void()> done)
{
    Q_ASSERT(!m_job);
    m_job = std::make_shared<Workers::Job>();
    m_job->work = std::move(work);
    m_job->done = std::move(done);
    m_job->order = this;
    m_workers->add(m_job);
}

void WorkOrder::cancel()
{
    if (!m_job)
        return;
    const std::shared_ptr<Workers::Job> job = std::exchange(m_job, nullptr);
    m_workers->giveUp(job);
    // What they hold goes here and not on the worker, which may be the last to let go of the job.
    job->work = {};
    job->done = {};
}

void WorkOrder::deliver(const std::shared_ptr<Workers::Job>& job)
{
    if (m_job != job) // cancelled when the event was on its way
        return;
    m_job.reset();
    job->work = {};
    const std::function<void()> done = std::move(job->done);
    job->done = {};
    done(); // this may be gone when it returns
}

} // namespace varnhold
