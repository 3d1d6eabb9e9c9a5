#include "UiLanguage.h"

#include "Preferences.h"
#include "content/VoLog.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QQmlEngine>

UiLanguage::UiLanguage(QObject *parent)
    : QObject(parent)
    , m_code(QStringLiteral("en"))
{}

UiLanguage &UiLanguage::instance()
{
    static UiLanguage language(nullptr);
    return language;
}

UiLanguage *UiLanguage::create(QQmlEngine *, QJSEngine *)
{
    QQmlEngine::setObjectOwnership(&instance(), QQmlEngine::CppOwnership);
    return &instance();
}

void UiLanguage::follow(QQmlEngine &engine)
{
    UiLanguage &language = instance();
    Preferences &preferences = Preferences::instance();
    language.apply(preferences.languageType());
    QObject::connect(&preferences, &Preferences::languageTypeChanged, &engine,
                     [&language, &preferences] { language.apply(preferences.languageType()); });
    QObject::connect(&language, &UiLanguage::changed, &engine, &QQmlEngine::retranslate);
}

QString UiLanguage::translationFile(const QString &code)
{
    return QStringLiteral(":/i18n/tolvane_%1.qm").arg(code);
}

QLocale UiLanguage::localeOf(const QString &code)
{
    // QLocale reads "zh-Hans" as Chinese in the Han script of its most likely country, which is
    // what a learner who chose simplified characters expects of dates and numbers.
    return QLocale(code);
}

bool UiLanguage::apply(const QString &code)
{
    if (m_installed) {
        QCoreApplication::removeTranslator(&m_translator);
        m_installed = false;
    }
    bool translated = true;
    if (code != QStringLiteral("en")) {
        translated = m_translator.load(translationFile(code));
        if (translated)
            m_installed = QCoreApplication::installTranslator(&m_translator);
        else
            VoLog::write(lcApp(), VoLog::Error,
                         QStringLiteral("No translation %1 is built in for the language \"%2\": "
                                        "the screens stay in English.")
                             .arg(translationFile(code), code));
    }
    m_code = code;
    QLocale::setDefault(localeOf(code));
    QGuiApplication::setLayoutDirection(rightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    Q_EMIT changed();
    return translated;
}

QString UiLanguage::localeName() const
{
    return localeOf(m_code).name();
}

bool UiLanguage::rightToLeft() const
{
    return localeOf(m_code).textDirection() == Qt::RightToLeft;
}
