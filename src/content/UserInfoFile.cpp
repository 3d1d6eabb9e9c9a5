#include "UserInfoFile.h"

#include "PlistCodec.h"
#include "TextHelpers.h"
#include "VoCryptor.h"
#include "VoFileUtil.h"
#include "VoLog.h"

#include <QFileInfo>

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
    auto bytes = VoFileUtil::readFile(m_path);
    auto cipher = bytes ? TextHelpers::fromUtf8Strict(*bytes) : std::nullopt;
    auto plain = cipher ? VoCryptor::decryptWithDES(*cipher, VoCryptor::recordKey) : std::nullopt;
    if (!plain)
        return {};
    return PlistCodec::dictionaryFromBytes(plain->toUtf8()).value_or(QVariantMap());
}

bool UserInfoFile::write(const QVariantMap &dictionary) const
{
    const QString plain = QString::fromUtf8(PlistCodec::toXml(dictionary));
    return VoFileUtil::writeFileAtomically(
        m_path, VoCryptor::encryptWithDES(plain, VoCryptor::recordKey).toUtf8());
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

void UserInfoFile::add(std::initializer_list<std::pair<QString, qint64>> amounts) const
{
    QVariantMap dictionary = read();
    for (const auto &[key, amount] : amounts) {
        qint64 sum = 0;
        if (__builtin_add_overflow(intFrom(dictionary, key, m_path), amount, &sum))
            fatal(appCommonSource, __LINE__,
                  QStringLiteral("the user record %1 overflows under \"%2\"").arg(m_path, key));
        dictionary.insert(key, sum);
    }
    write(dictionary);
}

QVariantMap readUserInfo()
{
    return UserInfoFile().read();
}
bool writeUserInfo(const QVariantMap &dictionary)
{
    return UserInfoFile().write(dictionary);
}
qint64 userInfoInt(const QString &key)
{
    return UserInfoFile().intValue(key);
}
void setUserInfoInt(const QString &key, qint64 value)
{
    UserInfoFile().setInt(key, value);
}
void incrementUserInfoCounter(const QString &key)
{
    UserInfoFile().increment(key);
}
