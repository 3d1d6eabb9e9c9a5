#pragma once

#include <QString>
#include <QVariantMap>
#include <initializer_list>
#include <utility>

/**
 * @brief The user record: an enciphered XML property list of integer counters.
 *
 * Every change reads and rewrites the whole file; there is no copy in memory, so the file is
 * always what the learner has earned. Not locked: two updates must not interleave.
 */
class UserInfoFile {
public:
    /// The record in the app's data folder.
    UserInfoFile();
    explicit UserInfoFile(QString path);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] bool exists() const;

    /// An empty dictionary when the file is missing or damaged.
    [[nodiscard]] QVariantMap read() const;
    bool write(const QVariantMap &dictionary) const;

    // A missing key, a value that is not an integer and an overflow are fatal.
    [[nodiscard]] qint64 intValue(const QString &key) const;
    void setInt(const QString &key, qint64 value) const;
    void increment(const QString &key) const { add({{key, 1}}); }
    /// Adds to several counters in one read and one write.
    void add(std::initializer_list<std::pair<QString, qint64>> amounts) const;

    /// The integer under a key of an already read dictionary; fatal when missing. The origin
    /// names the file in the message.
    [[nodiscard]] static qint64 intFrom(const QVariantMap &dictionary, const QString &key,
                                        const QString &origin = QStringLiteral("userInfo.plist"));

private:
    QString m_path;
};

// The app's record, in its data folder.
[[nodiscard]] QVariantMap readUserInfo();
bool writeUserInfo(const QVariantMap &dictionary);
[[nodiscard]] qint64 userInfoInt(const QString &key);
void setUserInfoInt(const QString &key, qint64 value);
void incrementUserInfoCounter(const QString &key);
