#include "app/AppDelegate.h"
#include "app/AppPaths.h"
#include "app/UiLanguage.h"
#include "app/UserRecord.h"
#include "app/WindowPlacement.h"
#include "content/AppCommon.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSettings>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TolvanePlugin)

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Tolvane"));
    QGuiApplication::setApplicationName(QStringLiteral("Tolvane"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Learn everyday German phrases."));
    parser.addHelpOption();
    const QCommandLineOption resources(QStringLiteral("resources"),
                                       QStringLiteral("Course folder (resources.bundle) to use."),
                                       QStringLiteral("DIR"));
    parser.addOption(resources);
    const QCommandLineOption acousticModel(
        QStringLiteral("acoustic-model"),
        QStringLiteral("Speech model folder (AcousticModelEnglish.bundle) to use."),
        QStringLiteral("DIR"));
    parser.addOption(acousticModel);
    parser.process(app);
    if (parser.isSet(resources))
        setResourceRoot(parser.value(resources));
    if (parser.isSet(acousticModel))
        AppPaths::setAcousticModelFolder(parser.value(acousticModel));

    AppDelegate delegate;
    delegate.didFinishLaunching();

    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QQmlApplicationEngine engine;
    UiLanguage::follow(engine);
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &app,
        [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/Tolvane/Main.qml")));
    QSettings settings;
    auto *window = engine.rootObjects().isEmpty()
                       ? nullptr
                       : qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (window)
        WindowPlacement::restore(*window, settings);
    const int status = QGuiApplication::exec();
    if (window)
        WindowPlacement::remember(*window, settings);
    flushUserRecord();
    return status;
}
