#include "Preferences.h"

#include "content/AppCommon.h"

#include <QQmlEngine>

Preferences::Preferences(QObject *parent)
    : QObject(parent)
    , m_settings(QStringLiteral("Tolvane"), QStringLiteral("Tolvane"))
{}

Preferences &Preferences::instance()
{
    static Preferences preferences(nullptr);
    return preferences;
}

Preferences *Preferences::create(QQmlEngine *, QJSEngine *)
{
    QQmlEngine::setObjectOwnership(&instance(), QQmlEngine::CppOwnership);
    return &instance();
}

float Preferences::positiveFloat(const QString &key, float fallback) const
{
    bool isNumber = false;
    const float value = m_settings.value(key).toFloat(&isNumber);
    return isNumber && value > 0 ? value : fallback;
}

float Preferences::playSpeed() const
{
    return positiveFloat(playSpeedKey, defaultPlaySpeed);
}

void Preferences::setPlaySpeed(float speed)
{
    if (m_settings.contains(playSpeedKey) && m_settings.value(playSpeedKey).toFloat() == speed)
        return;
    m_settings.setValue(playSpeedKey, speed);
    Q_EMIT playSpeedChanged();
}

float Preferences::testDuration() const
{
    return positiveFloat(testDurationKey, defaultTestDuration);
}

void Preferences::setTestDuration(float seconds)
{
    if (m_settings.contains(testDurationKey) &&
        m_settings.value(testDurationKey).toFloat() == seconds)
        return;
    m_settings.setValue(testDurationKey, seconds);
    Q_EMIT testDurationChanged();
}

QString Preferences::languageType() const
{
    const QString code = m_settings.value(languageTypeKey).toString();
    return supportedLanguageCodes().contains(code) ? code : defaultLanguageCode();
}

void Preferences::setLanguageType(const QString &code)
{
    if (m_settings.value(languageTypeKey).toString() == code)
        return;
    m_settings.setValue(languageTypeKey, code);
    Q_EMIT languageTypeChanged();
}
