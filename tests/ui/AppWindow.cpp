#include "AppWindow.h"

#include "app/AppDelegate.h"
#include "app/AppPaths.h"
#include "app/Preferences.h"
#include "app/UiLanguage.h"
#include "content/AppCommon.h"
#include "support/TestPaths.h"

#include <QDir>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TolvanePlugin)

using namespace Qt::StringLiterals;

namespace {
void startOnce()
{
    static const bool started = [] {
        setResourceRoot(TestPaths::course());
        AppPaths::setAcousticModelFolder(TestPaths::acousticModel());
        Preferences::instance().setLanguageType(u"en"_s);
        QQuickStyle::setStyle(u"Basic"_s);
        return AppDelegate().didFinishLaunching();
    }();
    (void)started;
}
} // namespace

AppWindow::AppWindow()
{
    startOnce();
    UiLanguage::follow(m_engine);
    m_engine.load(QUrl(u"qrc:/Tolvane/Main.qml"_s));
    if (m_engine.rootObjects().isEmpty())
        qFatal("Main.qml did not load");
    m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().constFirst());
    if (!m_window || !QTest::qWaitForWindowExposed(m_window))
        qFatal("the app window did not show");
    m_window->requestActivate();
    (void)QTest::qWaitForWindowActive(m_window);
    m_stack = m_window->findChild<QQuickItem *>(u"stack"_s);
    if (!m_stack)
        qFatal("the app window has no screen stack");
}

// Screens first, then the picture cache, then one frame: left to the engine, the renderer goes
// before the pictures and their textures leak. The screens' bindings then complain of missing
// parents, which is expected and kept out of the output.
AppWindow::~AppWindow()
{
    m_engine.setOutputWarningsToStandardError(false);
    delete m_stack;
    m_window->releaseResources();
    (void)m_window->grabWindow();
}

bool AppWindow::waitForDepth(int wanted) const
{
    return QTest::qWaitFor(
        [&] { return depth() == wanted && !m_stack->property("busy").toBool(); });
}

QQuickItem *AppWindow::listRow(QQuickItem *list, int index)
{
    constexpr int contain = 4; // ListView.Contain
    QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, contain));
    QQuickItem *row = nullptr;
    QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row),
                              Q_ARG(int, index));
    return row;
}

void AppWindow::tap(QQuickItem *item, QPointF point) const
{
    QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, item->mapToScene(point).toPoint());
}

std::unique_ptr<QObject> AppWindow::createView(const QString &file, const QVariantMap &properties)
{
    QQmlComponent component(&m_engine, QUrl(u"qrc:/Tolvane/"_s + file));
    std::unique_ptr<QObject> view(component.beginCreate(m_engine.rootContext()));
    if (!view) {
        qWarning("%s did not load: %s", qPrintable(file), qPrintable(component.errorString()));
        return view;
    }
    component.setInitialProperties(view.get(), properties);
    view->setProperty("parent", QVariant::fromValue(m_window->contentItem()));
    component.completeCreate();
    return view;
}

QImage AppWindow::screenshot(const QString &name) const
{
    const QString folder = TestPaths::buildDir() + u"/screenshots/"_s;
    QDir().mkpath(folder);
    QImage image = m_window->grabWindow();
    image.save(folder + name + u".png"_s);
    return image;
}

QList<QQuickItem *> findItems(QQuickItem *root, const QString &objectName)
{
    QList<QQuickItem *> found;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (child->objectName() == objectName)
            found.append(child);
        found.append(findItems(child, objectName));
    }
    return found;
}

QQuickItem *findItem(QQuickItem *root, const QString &objectName)
{
    const QList<QQuickItem *> found = findItems(root, objectName);
    return found.isEmpty() ? nullptr : found.constFirst();
}

QString textOf(QQuickItem *root, const QString &objectName)
{
    QQuickItem *item = root ? findItem(root, objectName) : nullptr;
    return item ? item->property("text").toString() : u"<no %1>"_s.arg(objectName);
}
