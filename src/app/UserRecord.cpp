#include "UserRecord.h"

#include "content/RecordWriter.h"
#include "content/VoLog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <array>
#include <memory>
#include <utility>

namespace {
const std::array<std::pair<const QString *, qint64>, 8> experienceWeights{{
    {&UserInfoKey::startCount, 10},
    {&UserInfoKey::listenCount, 5},
    {&UserInfoKey::readCount, 5},
    {&UserInfoKey::writeCount, 5},
    {&UserInfoKey::quizCount, 10},
    {&UserInfoKey::quizTotalScore, 1},
    {&UserInfoKey::reviewed, 1000},
    {&UserInfoKey::awordScore, 1},
}};

std::unique_ptr<RecordWriter> &appRecord()
{
    static std::unique_ptr<RecordWriter> record;
    return record;
}

QString &pendingNotice()
{
    static QString notice;
    return notice;
}

QString noticeFor(const RecordOpening &opening)
{
    switch (opening.outcome) {
    case RecordOpening::Outcome::RestoredPrevious:
        return QCoreApplication::translate(
            "UserRecord", "Your progress file was damaged, so Tolvane went back to the copy it "
                          "kept. At most your last step is missing.");
    case RecordOpening::Outcome::Repaired:
        return QCoreApplication::translate(
                   "UserRecord", "Your progress file was damaged, so Tolvane repaired it: "
                                 "everything it could read is kept. The damaged file is kept "
                                 "as %1.")
            .arg(QFileInfo(opening.setAsidePath).fileName());
    case RecordOpening::Outcome::StartedFresh:
        return QCoreApplication::translate(
                   "UserRecord", "Your progress file was damaged and no good copy was left, so "
                                 "Tolvane started your progress again. The damaged file is kept "
                                 "as %1.")
            .arg(QFileInfo(opening.setAsidePath).fileName());
    case RecordOpening::Outcome::Read:
    case RecordOpening::Outcome::Created:
        break;
    }
    return {};
}
} // namespace

QVariantMap initialUserInfo()
{
    QVariantMap record;
    for (const QString *key :
         {&UserInfoKey::reviewed, &UserInfoKey::advised, &UserInfoKey::shared,
          &UserInfoKey::startCount, &UserInfoKey::listenCount, &UserInfoKey::readCount,
          &UserInfoKey::writeCount, &UserInfoKey::quizCount, &UserInfoKey::quizTotalScore,
          &UserInfoKey::awordScore})
        record.insert(*key, qint64{0});
    return record;
}

qint64 totalExperience(const QVariantMap &record)
{
    qint64 total = 0;
    for (const auto &[key, weight] : experienceWeights) {
        qint64 points = 0;
        if (__builtin_mul_overflow(UserInfoFile::intFrom(record, *key), weight, &points) ||
            __builtin_add_overflow(total, points, &total))
            fatal(appCommonSource, __LINE__, QStringLiteral("the experience total overflows"));
    }
    return total;
}

qint64 totalExperience()
{
    return totalExperience(readUserInfo());
}

RecordWriter &userRecord()
{
    if (!appRecord())
        openUserRecord();
    return *appRecord();
}

RecordOpening::Outcome openUserRecord()
{
    // The writer being replaced drains into the file before the file is read again.
    appRecord().reset();
    const UserInfoFile file;
    RecordOpening opening = file.open(initialUserInfo());
    pendingNotice() = noticeFor(opening);
    appRecord() = std::make_unique<RecordWriter>(file, std::move(opening.record));
    return opening.outcome;
}

QString takeRecordNotice()
{
    return std::exchange(pendingNotice(), QString());
}

bool flushUserRecord()
{
    return userRecord().flush();
}

QVariantMap readUserInfo()
{
    return userRecord().record();
}
bool writeUserInfo(const QVariantMap &dictionary)
{
    userRecord().replace(dictionary);
    return userRecord().flush();
}
qint64 userInfoInt(const QString &key)
{
    return userRecord().value(key);
}
void setUserInfoInt(const QString &key, qint64 value)
{
    userRecord().set(key, value);
}
void incrementUserInfoCounter(const QString &key)
{
    userRecord().add({{key, 1}});
}

void recordQuizResult(int score)
{
    userRecord().add({{UserInfoKey::quizCount, 1}, {UserInfoKey::quizTotalScore, score}});
}
