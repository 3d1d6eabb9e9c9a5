#include "SettingViewController.h"

#include "AppConfig.h"
#include "ExternalLinks.h"
#include "Preferences.h"
#include "UserRecord.h"
#include "content/AppCommon.h"
#include "content/VoFileUtil.h"

#include <QHash>
#include <algorithm>
#include <cmath>

SettingViewController::SettingViewController(QObject *parent)
    : QObject(parent)
{
    Preferences &preferences = Preferences::instance();
    connect(&preferences, &Preferences::playSpeedChanged, this,
            &SettingViewController::playSpeedChanged);
    connect(&preferences, &Preferences::languageTypeChanged, this,
            &SettingViewController::languageChanged);
    connect(&preferences, &Preferences::testDurationChanged, this,
            &SettingViewController::testDurationChanged);
    refreshCacheSize();
}

float SettingViewController::playSpeed() const
{
    return Preferences::instance().playSpeed();
}

void SettingViewController::setPlaySpeed(float speed)
{
    if (!std::isfinite(speed))
        return;
    // Whole tenths, so that the value shown and the value stored are the same number.
    const float tenths = std::round(std::clamp(speed, minPlaySpeed(), maxPlaySpeed()) * 10.0F);
    Preferences::instance().setPlaySpeed(tenths / 10.0F);
}

QStringList SettingViewController::languageNames()
{
    static const QHash<QString, QString> names{
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("zh-Hans"), QStringLiteral("简体中文")},
        {QStringLiteral("zh-Hant"), QStringLiteral("繁體中文")},
        {QStringLiteral("ja"), QStringLiteral("日本語")},
        {QStringLiteral("ko"), QStringLiteral("한국어")},
        {QStringLiteral("fr"), QStringLiteral("Français")},
        {QStringLiteral("es"), QStringLiteral("Español")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("pt"), QStringLiteral("Português")},
        {QStringLiteral("it"), QStringLiteral("Italiano")},
        {QStringLiteral("ru"), QStringLiteral("Русский")},
        {QStringLiteral("ar"), QStringLiteral("العربية")},
        {QStringLiteral("hi"), QStringLiteral("हिन्दी")},
        {QStringLiteral("vi"), QStringLiteral("Tiếng Việt")},
        {QStringLiteral("th"), QStringLiteral("ไทย")},
        {QStringLiteral("ms"), QStringLiteral("Bahasa Melayu")},
    };
    QStringList list;
    for (const QString &code : supportedLanguageCodes())
        list.append(names.value(code, code));
    return list;
}

int SettingViewController::languageIndex() const
{
    return static_cast<int>(
        supportedLanguageCodes().indexOf(Preferences::instance().languageType()));
}

void SettingViewController::setLanguageIndex(int index)
{
    const QStringList &codes = supportedLanguageCodes();
    if (index >= 0 && index < codes.size())
        Preferences::instance().setLanguageType(codes.at(index));
}

float SettingViewController::testDuration() const
{
    return Preferences::instance().testDuration();
}

void SettingViewController::refreshCacheSize()
{
    const float size = VoFileUtil::getFolderSizeAtPath(VoFileUtil::getCachesDirectory());
    if (size == m_cacheSize)
        return;
    m_cacheSize = size;
    Q_EMIT cacheSizeChanged();
}

void SettingViewController::clearCache()
{
    VoFileUtil::removeFileInFolder(VoFileUtil::getCachesDirectory());
    refreshCacheSize();
}

bool SettingViewController::sendFeedback()
{
    return ExternalLinks::open(AppConfig::feedbackMailUrl());
}

bool SettingViewController::openReviewPage()
{
    if (!ExternalLinks::open(AppConfig::reviewPageUrl()))
        return false;
    // Reviewing earns its points once, however often the page is opened.
    if (userInfoInt(UserInfoKey::reviewed) == 0)
        setUserInfoInt(UserInfoKey::reviewed, 1);
    return true;
}
