#pragma once

#include <QObject>
#include <QPointer>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

/**
 * @brief The one background thread that runs the speech jobs: model generation and recognition.
 *
 * The model generator and the decoder keep process-wide state, so their jobs must never overlap;
 * one thread running one job at a time, in the order given, guarantees it. Each result goes back
 * to the application's (UI) thread and is handed to its job's context
 * object there, unless that object has been destroyed meanwhile: then the result is dropped.
 * Nothing on the UI thread ever waits for a job.
 *
 * The thread ends when the application object is destroyed: the running job is finished, the
 * others are dropped, and later jobs are refused.
 */
class SpeechWorker {
public:
    /// The process's worker; the first call must be made while the application object lives.
    static SpeechWorker &instance();

    SpeechWorker(const SpeechWorker &) = delete;
    SpeechWorker &operator=(const SpeechWorker &) = delete;
    ~SpeechWorker();

    /**
     * Runs work() on the worker thread, then deliver(result) on the UI thread while context
     * lives. work must own everything it uses: it may run after its caller has gone.
     */
    template <typename Work, typename Deliver>
    void post(QObject *context, Work work, Deliver deliver)
    {
        enqueue([this, work = std::move(work), deliver = std::move(deliver),
                 guard = QPointer<QObject>(context)]() mutable {
            deliverBack([result = work(), deliver = std::move(deliver),
                         guard = std::move(guard)]() mutable {
                if (guard)
                    deliver(std::move(result));
            });
        });
    }

    /// Finishes the running job and ends the thread; the jobs still waiting are dropped.
    void shutDown();

private:
    SpeechWorker();
    void enqueue(std::function<void()> job);
    /// Queues the call to the UI thread.
    void deliverBack(std::function<void()> call);
    void runJobs();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs;
    bool m_stopping{false};
    /// Lives on the UI thread; results are queued to it.
    std::unique_ptr<QObject> m_receiver;
    std::thread m_thread;
};
