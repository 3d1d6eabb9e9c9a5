#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The colours the views share, so that a screen and a pop-up never drift apart.
 *
 * The body colour is VoAppCommon's; the others belong to the tool bar, the pop-up panels and
 * the experience total.
 */
class AppColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor barBlue READ barBlue CONSTANT)
    Q_PROPERTY(QColor popUpMask READ popUpMask CONSTANT)
    Q_PROPERTY(QColor body READ body CONSTANT)
    Q_PROPERTY(QColor experience READ experience CONSTANT)

public:
    using QObject::QObject;

    /// Tool bars and pop-up headers.
    [[nodiscard]] static QColor barBlue() { return QColor::fromRgb(39, 64, 139); }
    /// Dims the screen behind a pop-up panel.
    [[nodiscard]] static QColor popUpMask() { return QColor::fromRgbF(0.8F, 0.8F, 0.8F, 0.7F); }
    [[nodiscard]] static QColor body();
    /// The dark red the experience total is written in.
    [[nodiscard]] static QColor experience() { return QColor::fromRgb(176, 23, 31); }
};
