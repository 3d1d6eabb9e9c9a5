#pragma once

#include <QLocale>
#include <QObject>
#include <QString>
#include <QTranslator>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/**
 * @brief The screens' language: their texts, the locale of numbers and dates, and the reading
 * direction, all following the learner's mother language ("LanguageType").
 *
 * A language without a compiled translation, or a string a translation lacks, shows in English:
 * the learner always sees words, never keys or blanks.
 */
class UiLanguage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString code READ code NOTIFY changed)
    /// Qt.locale() takes a name; bindings that format numbers read this so that they follow.
    Q_PROPERTY(QString localeName READ localeName NOTIFY changed)
    Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY changed)

public:
    explicit UiLanguage(QObject *parent);

    /// The app's one UI language; QML gets the same object.
    static UiLanguage &instance();
    static UiLanguage *create(QQmlEngine *, QJSEngine *);

    /// Keeps this engine's screens in the preferred language from now on, switching at once
    /// when the preference changes.
    static void follow(QQmlEngine &engine);

    /// Switches to the language of that code (one of supportedLanguageCodes()); false when
    /// its translation is missing and the texts stay English.
    bool apply(const QString &code);

    /// The compiled translation of a language code: what apply() loads.
    [[nodiscard]] static QString translationFile(const QString &code);
    [[nodiscard]] static QLocale localeOf(const QString &code);

    [[nodiscard]] QString code() const { return m_code; }
    [[nodiscard]] QString localeName() const;
    [[nodiscard]] bool rightToLeft() const;

Q_SIGNALS:
    void changed();

private:
    QString m_code;
    QTranslator m_translator;
    bool m_installed{false};
};
