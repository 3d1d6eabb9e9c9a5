#pragma once

#include <QObject>
#include <QSettings>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/**
 * @brief Asks the learner, now and then, to rate the app in the store.
 *
 * Counts the app's starts. Once a version has been started usesUntilPrompt times the prompt is
 * due; "Rate" (which opens the store page) and "No thanks" settle it for the rest of that
 * version, while "Later" starts the count again. A new version starts afresh, even when the
 * learner rated an earlier one. The counts live in the settings store, group "RatingPrompt".
 */
class RatingPrompt : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    struct Config {
        QString appVersion;
        int usesUntilPrompt{3};
        QUrl ratingsUrl;
    };

    // No default argument: Qt 6.4 builds a QML singleton with the default constructor when there
    // is one, and QML would get a second, unconfigured prompt instead of instance().
    explicit RatingPrompt(QObject *parent);

    /// The app's prompt; QML gets the same object.
    static RatingPrompt &instance();
    static RatingPrompt *create(QQmlEngine *, QJSEngine *);

    /// Takes the version and rules; a different version than the stored one resets the counts.
    void configure(Config config);
    /// Counts one start of the configured version.
    void logUse();
    [[nodiscard]] int usesCount() const;

    /// True when the learner should be asked now.
    Q_INVOKABLE [[nodiscard]] bool shouldPrompt() const;
    /// Opens the store page; nothing more is asked in this version.
    Q_INVOKABLE void rate();
    /// Asks again after as many starts as the first time.
    Q_INVOKABLE void later();
    /// Nothing more is asked in this version.
    Q_INVOKABLE void decline();

private:
    void settle();

    Config m_config;
    QSettings m_settings;
};
