#include "SpeechWorker.h"

#include <QCoreApplication>

SpeechWorker &SpeechWorker::instance()
{
    static SpeechWorker worker;
    return worker;
}

SpeechWorker::SpeechWorker()
    : m_receiver(std::make_unique<QObject>())
{
    m_receiver->moveToThread(QCoreApplication::instance()->thread());
    // The thread must be gone before the application object, whose event loop it posts to; the
    // static itself is destroyed later still.
    qAddPostRoutine([] { instance().shutDown(); });
    m_thread = std::thread([this] { runJobs(); });
}

SpeechWorker::~SpeechWorker()
{
    shutDown();
}

void SpeechWorker::shutDown()
{
    std::deque<std::function<void()>> dropped;
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        dropped.swap(m_jobs);
    }
    m_wake.notify_one();
    if (m_thread.joinable())
        m_thread.join();
    // Results still queued to the receiver are dropped with it.
    m_receiver.reset();
}

void SpeechWorker::enqueue(std::function<void()> job)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopping)
            return;
        m_jobs.push_back(std::move(job));
    }
    m_wake.notify_one();
}

void SpeechWorker::deliverBack(std::function<void()> call)
{
    // Only the worker thread calls this, and shutDown() resets the receiver after joining it.
    QMetaObject::invokeMethod(m_receiver.get(), std::move(call), Qt::QueuedConnection);
}

void SpeechWorker::runJobs()
{
    for (;;) {
        std::function<void()> job;
        {
            std::unique_lock lock(m_mutex);
            m_wake.wait(lock, [this] { return m_stopping || !m_jobs.empty(); });
            if (m_stopping)
                return;
            job = std::move(m_jobs.front());
            m_jobs.pop_front();
        }
        job();
    }
}
