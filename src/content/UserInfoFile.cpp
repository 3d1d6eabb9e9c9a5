#include "UserInfoFile.h"

#include "PlistCodec.h"
#include "TextHelpers.h"
#include "VoCryptor.h"
#include "VoFileUtil.h"
#include "VoLog.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace {

QVariantMap decode(const QByteArray &bytes)
{
    auto cipher = TextHelpers::fromUtf8Strict(bytes);
    auto plain = cipher ? VoCryptor::decryptWithDES(*cipher, VoCryptor::recordKey) : std::nullopt;
    if (!plain)
        return {};
    return PlistCodec::dictionaryFromBytes(plain->toUtf8()).value_or(QVariantMap());
}

/// The type, not toLongLong(): that also takes a truth value, a text of digits and any real,
/// rounding 1e300 or NaN to a counter no sum survives.
bool isCounter(const QVariant &value)
{
    return value.typeId() == QMetaType::LongLong;
}

/// True when every key of `fresh` is there and holds an integer.
bool isWhole(const QVariantMap &record, const QVariantMap &fresh)
{
    if (record.isEmpty())
        return false;
    for (auto it = fresh.cbegin(); it != fresh.cend(); ++it) {
        if (!isCounter(record.value(it.key())))
            return false;
    }
    return true;
}

/// What healing did, for the log; empty when there was nothing to heal.
QString remedyOf(RecordOpening::Outcome outcome)
{
    switch (outcome) {
    case RecordOpening::Outcome::RestoredPrevious:
        return QStringLiteral("its previous copy took its place");
    case RecordOpening::Outcome::Repaired:
        return QStringLiteral("its readable counters were kept");
    case RecordOpening::Outcome::StartedFresh:
        return QStringLiteral("a fresh record took its place");
    case RecordOpening::Outcome::Read:
    case RecordOpening::Outcome::Created:
        break;
    }
    return {};
}

} // namespace

UserInfoFile::UserInfoFile()
    : UserInfoFile(VoFileUtil::getDocumentsDirectory() + QStringLiteral("userInfo.plist"))
{}

UserInfoFile::UserInfoFile(QString path)
    : m_path(std::move(path))
{}

bool UserInfoFile::exists() const
{
    return QFileInfo::exists(m_path);
}

QVariantMap UserInfoFile::read() const
{
    const auto bytes = VoFileUtil::readFile(m_path);
    return bytes ? decode(*bytes) : QVariantMap();
}

bool UserInfoFile::write(const QVariantMap &dictionary) const
{
    // Only a record that reads back is worth keeping: copying a damaged one over the previous
    // copy would throw away the good record that healing needs.
    if (const auto bytes = VoFileUtil::readFile(m_path); bytes && !decode(*bytes).isEmpty())
        VoFileUtil::writeFileAtomically(previousPath(), *bytes);
    // Synced: the writer's thread waits for the disk, not the learner, and a power cut then
    // costs at most the change being written.
    const QString plain = QString::fromUtf8(PlistCodec::toXml(dictionary));
    return VoFileUtil::writeFileAtomically(
        m_path, VoCryptor::encryptWithDES(plain, VoCryptor::recordKey).toUtf8(),
        VoFileUtil::Sync::ToDisk);
}

QString UserInfoFile::setAside() const
{
    const QString stem = m_path + QStringLiteral(".damaged-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString target = stem;
    for (int n = 2; QFileInfo::exists(target); ++n)
        target = stem + QStringLiteral("-%1").arg(n);
    if (!QFile::rename(m_path, target)) {
        VoLog::write(lcContent(), VoLog::Error,
                     QStringLiteral("cannot move the damaged record %1 aside").arg(m_path));
        return {};
    }
    return target;
}

RecordOpening UserInfoFile::open(const QVariantMap &fresh) const
{
    const QVariantMap current = read();
    if (isWhole(current, fresh))
        return {current, RecordOpening::Outcome::Read, {}};

    const bool present = exists();
    const bool hadPrevious = QFileInfo::exists(previousPath());
    RecordOpening opening{fresh, RecordOpening::Outcome::Created, {}};
    if (present)
        opening.setAsidePath = setAside();
    if (const QVariantMap previous = UserInfoFile(previousPath()).read();
        isWhole(previous, fresh)) {
        opening.record = previous;
        opening.outcome = RecordOpening::Outcome::RestoredPrevious;
    } else if (!current.isEmpty()) {
        // Whatever counters could be read are the learner's; only the missing ones start at 0.
        for (auto it = fresh.cbegin(); it != fresh.cend(); ++it) {
            if (const QVariant value = current.value(it.key()); isCounter(value))
                opening.record.insert(it.key(), value);
        }
        opening.outcome = RecordOpening::Outcome::Repaired;
    } else if (present || hadPrevious) {
        opening.outcome = RecordOpening::Outcome::StartedFresh;
    }
    if (const QString remedy = remedyOf(opening.outcome); !remedy.isEmpty())
        VoLog::write(lcContent(), VoLog::Error,
                     QStringLiteral("the user record %1 was damaged; %2").arg(m_path, remedy));
    if (!write(opening.record))
        VoLog::write(lcContent(), VoLog::Error,
                     QStringLiteral("cannot write the user record %1").arg(m_path));
    return opening;
}

qint64 UserInfoFile::intFrom(const QVariantMap &dictionary, const QString &key,
                             const QString &origin)
{
    const auto it = dictionary.constFind(key);
    if (it == dictionary.cend())
        fatal(appCommonSource, __LINE__,
              QStringLiteral("the user record %1 has no key \"%2\" (is it damaged?)")
                  .arg(origin, key));
    bool isInteger = false;
    const qint64 value = it->toLongLong(&isInteger);
    if (!isInteger)
        fatal(appCommonSource, __LINE__,
              QStringLiteral("the user record %1 holds no integer under \"%2\"").arg(origin, key));
    return value;
}

void UserInfoFile::addTo(QVariantMap &dictionary, CounterAmounts amounts, const QString &origin)
{
    for (const auto &[key, amount] : amounts) {
        qint64 sum = 0;
        if (__builtin_add_overflow(intFrom(dictionary, key, origin), amount, &sum))
            fatal(appCommonSource, __LINE__,
                  QStringLiteral("the user record %1 overflows under \"%2\"").arg(origin, key));
        dictionary.insert(key, sum);
    }
}

qint64 UserInfoFile::intValue(const QString &key) const
{
    return intFrom(read(), key, m_path);
}

void UserInfoFile::setInt(const QString &key, qint64 value) const
{
    QVariantMap dictionary = read();
    dictionary.insert(key, value);
    write(dictionary);
}

void UserInfoFile::add(CounterAmounts amounts) const
{
    QVariantMap dictionary = read();
    addTo(dictionary, amounts, m_path);
    write(dictionary);
}
