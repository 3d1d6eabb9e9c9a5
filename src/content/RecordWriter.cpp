#include "RecordWriter.h"

#include "VoLog.h"

RecordWriter::RecordWriter(UserInfoFile file, QVariantMap record)
    : m_file(std::move(file))
    , m_record(std::move(record))
    , m_thread([this] { run(); })
{}

RecordWriter::~RecordWriter()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

QVariantMap RecordWriter::record() const
{
    const std::lock_guard lock(m_mutex);
    return m_record;
}

qint64 RecordWriter::value(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    return UserInfoFile::intFrom(m_record, key, m_file.path());
}

void RecordWriter::add(CounterAmounts amounts)
{
    std::unique_lock lock(m_mutex);
    UserInfoFile::addTo(m_record, amounts, m_file.path());
    changed(lock);
}

void RecordWriter::set(const QString &key, qint64 value)
{
    std::unique_lock lock(m_mutex);
    m_record.insert(key, value);
    changed(lock);
}

void RecordWriter::replace(const QVariantMap &record)
{
    std::unique_lock lock(m_mutex);
    m_record = record;
    changed(lock);
}

void RecordWriter::changed(std::unique_lock<std::mutex> &lock)
{
    ++m_version;
    lock.unlock();
    m_wake.notify_one();
}

bool RecordWriter::flush()
{
    std::unique_lock lock(m_mutex);
    const std::uint64_t wanted = m_version;
    m_written.wait(lock, [&] { return m_writtenVersion >= wanted; });
    return !m_lastWriteFailed;
}

void RecordWriter::setWrittenHandler(std::function<void(const QVariantMap &)> handler)
{
    const std::lock_guard lock(m_mutex);
    m_writtenHandler = std::move(handler);
}

void RecordWriter::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_stopping || m_version > m_writtenVersion; });
        if (m_version == m_writtenVersion)
            return; // stopping with nothing left to write
        const std::uint64_t version = m_version;
        const QVariantMap snapshot = m_record;
        const auto handler = m_writtenHandler;
        lock.unlock();
        const bool written = m_file.write(snapshot);
        if (!written)
            VoLog::write(lcContent(), VoLog::Error,
                         QStringLiteral("cannot write the user record %1; the next change will "
                                        "try again")
                             .arg(m_file.path()));
        else if (handler)
            handler(snapshot);
        lock.lock();
        m_writtenVersion = version;
        m_lastWriteFailed = !written;
        m_written.notify_all();
    }
}
