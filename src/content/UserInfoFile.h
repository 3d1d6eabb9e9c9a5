#pragma once

#include <QString>
#include <QVariantMap>
#include <initializer_list>
#include <utility>

/// A change of several counters at once: each key with the amount to add.
using CounterAmounts = std::initializer_list<std::pair<QString, qint64>>;

/// What opening a record found, and what it had to do about it.
struct RecordOpening {
    enum class Outcome {
        Read,             ///< the record was whole
        Created,          ///< there was none: a first start
        RestoredPrevious, ///< the record was damaged; the copy kept by the last write took over
        Repaired,     ///< a key was missing and no good copy was left: the counters read are kept
        StartedFresh, ///< the record could not be read and no good copy was left
    };
    QVariantMap record;
    Outcome outcome{Outcome::Read};
    /// Where the damaged file was moved; empty when nothing was moved.
    QString setAsidePath;
};

/**
 * @brief The user record: an enciphered XML property list of integer counters.
 *
 * Every write keeps the record it replaces beside it ("userInfo.plist.previous"), so a record
 * damaged on disk costs at most its last change. Not locked: in the app, one RecordWriter owns
 * the file; the rest of this class serves the CLI and tests.
 */
class UserInfoFile {
public:
    /// The record in the app's data folder.
    UserInfoFile();
    explicit UserInfoFile(QString path);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] QString previousPath() const { return m_path + QStringLiteral(".previous"); }
    [[nodiscard]] bool exists() const;

    /// An empty dictionary when the file is missing or damaged.
    [[nodiscard]] QVariantMap read() const;
    /// Replaces the record atomically, first keeping a readable record it replaces as the
    /// previous copy.
    bool write(const QVariantMap &dictionary) const;

    /// Reads the record and heals it when it cannot be read, deciphered or parsed or lacks an
    /// integer under one of the keys of `fresh` (the record of a first start): the previous copy
    /// takes its place, or, when that is no better, `fresh` with every counter the damaged record
    /// still holds. A damaged file is moved aside under a dated name, never deleted. Whatever it
    /// returns is on disk as the record.
    [[nodiscard]] RecordOpening open(const QVariantMap &fresh) const;

    // A missing key, a value that is not an integer and an overflow are fatal.
    [[nodiscard]] qint64 intValue(const QString &key) const;
    void setInt(const QString &key, qint64 value) const;
    void increment(const QString &key) const { add({{key, 1}}); }
    /// Adds to several counters in one read and one write.
    void add(CounterAmounts amounts) const;

    /// The integer under a key of an already read dictionary; fatal when missing. The origin
    /// names the file in the message.
    [[nodiscard]] static qint64 intFrom(const QVariantMap &dictionary, const QString &key,
                                        const QString &origin = QStringLiteral("userInfo.plist"));
    /// The dictionary with the amounts added; an overflow is fatal.
    static void addTo(QVariantMap &dictionary, CounterAmounts amounts,
                      const QString &origin = QStringLiteral("userInfo.plist"));

private:
    [[nodiscard]] QString setAside() const;

    QString m_path;
};
