#pragma once

#include <QString>
#include <QVariantMap>

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
/// Experience points of the app's record, read afresh.
[[nodiscard]] qint64 totalExperience();

/// Counts one finished quiz and adds its score, in one read and one write of the record.
void recordQuizResult(int score);
