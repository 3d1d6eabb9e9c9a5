#include "UserInfoVC.h"

#include "UserRecord.h"

#include <QCoreApplication>
#include <QLocale>
#include <array>

namespace {
struct DetailSource {
    const char *title;
    const QString *key;
    // The counter's weight in the experience total; the rows must keep them equal.
    const char *multiplier;
};

// "Quiz Score" counts with weight 1 and shows the score alone; "Review App" writes its
// multiplier apart from the " * ".
const std::array<DetailSource, 7> detailSources{{
    {QT_TRANSLATE_NOOP("UserInfoVC", "Start App"), &UserInfoKey::startCount, "10 * "},
    {QT_TRANSLATE_NOOP("UserInfoVC", "Listen Word"), &UserInfoKey::listenCount, "5 * "},
    {QT_TRANSLATE_NOOP("UserInfoVC", "Write Word"), &UserInfoKey::writeCount, "5 * "},
    {QT_TRANSLATE_NOOP("UserInfoVC", "Read Word"), &UserInfoKey::readCount, "5 * "},
    {QT_TRANSLATE_NOOP("UserInfoVC", "Quiz Times"), &UserInfoKey::quizCount, "10 * "},
    {QT_TRANSLATE_NOOP("UserInfoVC", "Quiz Score"), &UserInfoKey::quizTotalScore, ""},
    {QT_TRANSLATE_NOOP("UserInfoVC", "Review App"), &UserInfoKey::reviewed, "1000 * "},
}};
} // namespace

UserInfoVC::UserInfoVC(QObject *parent)
    : QObject(parent)
    , m_userInfo(readUserInfo())
    , m_totalText(QLocale().toString(totalExperience(m_userInfo)))
{}

QList<UserInfoVC::DetailRow> UserInfoVC::details() const
{
    QList<DetailRow> rows;
    for (const DetailSource &source : detailSources)
        rows.append({QCoreApplication::translate("UserInfoVC", source.title),
                     QLatin1String(source.multiplier) +
                         QLocale().toString(UserInfoFile::intFrom(m_userInfo, *source.key))});
    return rows;
}

QVariantList UserInfoVC::detailRows() const
{
    QVariantList rows;
    for (const DetailRow &row : details())
        rows.append(QVariantMap{{QStringLiteral("title"), row.title},
                                {QStringLiteral("detail"), row.detail}});
    return rows;
}
