#pragma once

#include "UserInfoFile.h"

#include <QVariantMap>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

/**
 * @brief The one owner of the user record while the app runs: it holds the record in memory and
 * writes it on its own thread.
 *
 * A change returns at once; changes that come while a write is under way go into the next one,
 * so a burst of counters costs one write. The destructor writes what is still pending.
 */
class RecordWriter {
public:
    RecordWriter(UserInfoFile file, QVariantMap record);
    ~RecordWriter();
    RecordWriter(const RecordWriter &) = delete;
    RecordWriter &operator=(const RecordWriter &) = delete;

    [[nodiscard]] const UserInfoFile &file() const { return m_file; }
    [[nodiscard]] QVariantMap record() const;
    /// Fatal when the key is missing, as for a record read from disk.
    [[nodiscard]] qint64 value(const QString &key) const;

    void add(CounterAmounts amounts);
    void set(const QString &key, qint64 value);
    void replace(const QVariantMap &record);

    /// Waits until every change handed in so far is on disk; false when the last write failed.
    bool flush();

    /// Called on the writer's thread with each record it has just written.
    void setWrittenHandler(std::function<void(const QVariantMap &)> handler);

private:
    void changed(std::unique_lock<std::mutex> &lock);
    void run();

    const UserInfoFile m_file;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_written;
    QVariantMap m_record;
    std::uint64_t m_version{0};
    std::uint64_t m_writtenVersion{0};
    bool m_lastWriteFailed{false};
    bool m_stopping{false};
    std::function<void(const QVariantMap &)> m_writtenHandler;
    std::thread m_thread; // last: it starts once everything it reads is built
};
