#include "UserRecord.h"

#include "content/UserInfoFile.h"
#include "content/VoLog.h"

#include <array>
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

void recordQuizResult(int score)
{
    UserInfoFile().add({{UserInfoKey::quizCount, 1}, {UserInfoKey::quizTotalScore, score}});
}
