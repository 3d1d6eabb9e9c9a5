#pragma once

#include "content/UserInfoFile.h"

#include <QString>
#include <QVariantMap>

class RecordWriter;

/// Keys of the user record's counters. The odd casing of "kshared" and "kAwordScore" is what
/// existing records hold.
namespace UserInfoKey {
inline const QString reviewed = QStringLiteral("kReviewed");
inline const QString advised = QStringLiteral("kAdvised");
inline const QString shared = QStringLiteral("kshared");
inline const QString startCount = QStringLiteral("kStartCount");
inline const QString listenCount = QStringLiteral("kListenCount");
inline const QString readCount = QStringLiteral("kReadCount");
inline const QString writeCount = QStringLiteral("kWriteCount");
inline const QString quizCount = QStringLiteral("kQuizCount");
inline const QString quizTotalScore = QStringLiteral("kQuizTotalScore");
inline const QString awordScore = QStringLiteral("kAwordScore");
} // namespace UserInfoKey

/// The record of a first start: every counter at 0.
[[nodiscard]] QVariantMap initialUserInfo();

/// Experience points of a record; a missing key or an overflow is fatal.
[[nodiscard]] qint64 totalExperience(const QVariantMap &record);
/// Experience points of the app's record.
[[nodiscard]] qint64 totalExperience();

/**
 * The app's record, in its data folder, opened on first use. Reading and changing it never waits
 * for the disk: one RecordWriter writes it in the background.
 */
[[nodiscard]] RecordWriter &userRecord();
/// Opens the app's record from disk again, healing a damaged one, and keeps what the learner is
/// to be told about it for recordNotice(). Pending changes of the record it replaces are written
/// first.
RecordOpening::Outcome openUserRecord();
/// What happened to a damaged record, in plain words, once: empty after the first call and when
/// nothing happened.
[[nodiscard]] QString takeRecordNotice();
/// Writes every pending change; the app calls it as it quits.
bool flushUserRecord();

[[nodiscard]] QVariantMap readUserInfo();
/// Replaces the whole record and waits until it is on disk; false when it could not be written.
bool writeUserInfo(const QVariantMap &dictionary);
[[nodiscard]] qint64 userInfoInt(const QString &key);
void setUserInfoInt(const QString &key, qint64 value);
void incrementUserInfoCounter(const QString &key);

/// Counts one finished quiz and adds its score, in one change of the record.
void recordQuizResult(int score);
