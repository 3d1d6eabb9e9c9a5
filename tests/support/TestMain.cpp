#include <QDir>
#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// Every test program runs headless and writes only below its own temporary folder: the app's
// data, cache and settings folders are redirected there, so parallel test programs never meet.
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // A death-test child aborts before its destructors run, so it makes its folder inside the
    // parent's, which the parent removes at the end.
    const QString parentHome = qEnvironmentVariable("TOLVANE_TEST_HOME");
    QTemporaryDir home(parentHome.isEmpty()
                           ? QDir::tempPath() + QStringLiteral("/tolvane-test-XXXXXX")
                           : parentHome + QStringLiteral("/child-XXXXXX"));
    if (parentHome.isEmpty())
        qputenv("TOLVANE_TEST_HOME", QFile::encodeName(home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath(QStringLiteral("data"))));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.filePath(QStringLiteral("cache"))));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(QStringLiteral("config"))));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       home.filePath(QStringLiteral("config")));

    QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Tolvane"));
    QGuiApplication::setApplicationName(QStringLiteral("Tolvane"));

    // Death tests re-run this program, so each child gets its own fresh application object.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
