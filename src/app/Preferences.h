#pragma once

#include <QObject>
#include <QSettings>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/**
 * @brief The three settings the app keeps: playback speed, test duration and the learner's
 * mother language.
 *
 * Readers never see a nonsense value: a speed or duration of 0 or below reads as its default,
 * an unsupported language code as the system's default language.
 */
class Preferences : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(float playSpeed READ playSpeed WRITE setPlaySpeed NOTIFY playSpeedChanged)
    Q_PROPERTY(
        float testDuration READ testDuration WRITE setTestDuration NOTIFY testDurationChanged)
    Q_PROPERTY(
        QString languageType READ languageType WRITE setLanguageType NOTIFY languageTypeChanged)

public:
    static inline const QString playSpeedKey = QStringLiteral("playSpeed");
    static inline const QString testDurationKey = QStringLiteral("TestDuration");
    static inline const QString languageTypeKey = QStringLiteral("LanguageType");
    static constexpr float defaultPlaySpeed = 1.0F;
    static constexpr float defaultTestDuration = 60.0F;

    // No default argument: Qt 6.4 builds a QML singleton with the default constructor when there
    // is one, and QML would read a second object that never hears of changes made in C++.
    explicit Preferences(QObject *parent);

    /// The app's preferences; QML gets the same object.
    static Preferences &instance();
    static Preferences *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] float playSpeed() const;
    void setPlaySpeed(float speed);
    [[nodiscard]] float testDuration() const;
    void setTestDuration(float seconds);
    [[nodiscard]] QString languageType() const;
    void setLanguageType(const QString &code);

Q_SIGNALS:
    void playSpeedChanged();
    void testDurationChanged();
    void languageTypeChanged();

private:
    [[nodiscard]] float positiveFloat(const QString &key, float fallback) const;

    QSettings m_settings;
};
