#pragma once

#include <QImage>
#include <QPointF>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QString>
#include <QVariantMap>
#include <memory>

class QQuickWindow;

/// The app as main.cpp brings it up, on the course the build made, shown and in English. Start-up
/// runs once per test program (a first start); each instance loads a fresh window.
class AppWindow {
public:
    AppWindow();
    ~AppWindow();
    AppWindow(const AppWindow &) = delete;
    AppWindow &operator=(const AppWindow &) = delete;

    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    [[nodiscard]] QQmlEngine &engine() { return m_engine; }
    [[nodiscard]] QQuickItem *stack() const { return m_stack; }
    [[nodiscard]] QQuickItem *currentPage() const
    {
        return m_stack->property("currentItem").value<QQuickItem *>();
    }
    [[nodiscard]] int depth() const { return m_stack->property("depth").toInt(); }

    /// Waits until the stack holds that many screens and no transition runs.
    [[nodiscard]] bool waitForDepth(int depth) const;

    /// A row a list view shows, scrolled into view first.
    [[nodiscard]] static QQuickItem *listRow(QQuickItem *list, int index);

    /// A left click at a point of the item, through the window as a mouse would.
    void tap(QQuickItem *item, QPointF point) const;
    void tapCentre(QQuickItem *item) const
    {
        tap(item, QPointF(item->width() / 2, item->height() / 2));
    }

    /// A view of qrc:/Tolvane/{file} over the window, its properties (required ones too) set
    /// before it completes; null, with QML's errors logged, when it cannot be made.
    [[nodiscard]] std::unique_ptr<QObject> createView(const QString &file,
                                                      const QVariantMap &properties);

    /// Grabs the window and keeps the picture as screenshots/{name}.png in the build folder.
    [[nodiscard]] QImage screenshot(const QString &name) const;

private:
    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window{nullptr};
    QQuickItem *m_stack{nullptr};
};

/// The first item below root (in the scene, not the object tree) with the object name.
[[nodiscard]] QQuickItem *findItem(QQuickItem *root, const QString &objectName);
/// Every item below root with the object name.
[[nodiscard]] QList<QQuickItem *> findItems(QQuickItem *root, const QString &objectName);
/// The text of the first item below root with the object name, or "<no NAME>".
[[nodiscard]] QString textOf(QQuickItem *root, const QString &objectName);
