#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The colours the views share, so that a screen and a pop-up never drift apart.
 *
 * The body colour is VoAppCommon's; the others belong to the tool bar, the pop-up panels, the
 * experience total and the text of lists.
 */
class AppColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor barBlue READ barBlue CONSTANT)
    Q_PROPERTY(QColor popUpMask READ popUpMask CONSTANT)
    Q_PROPERTY(QColor body READ body CONSTANT)
    Q_PROPERTY(QColor experience READ experience CONSTANT)
    Q_PROPERTY(QColor text READ text CONSTANT)
    Q_PROPERTY(QColor secondaryText READ secondaryText CONSTANT)
    Q_PROPERTY(QColor separator READ separator CONSTANT)

public:
    using QObject::QObject;

    /// Tool bars and pop-up headers.
    [[nodiscard]] static QColor barBlue() { return QColor::fromRgb(39, 64, 139); }
    /// Dims the screen behind a pop-up panel.
    [[nodiscard]] static QColor popUpMask() { return QColor::fromRgbF(0.8F, 0.8F, 0.8F, 0.7F); }
    [[nodiscard]] static QColor body();
    /// The dark red the experience total is written in.
    [[nodiscard]] static QColor experience() { return QColor::fromRgb(176, 23, 31); }
    [[nodiscard]] static QColor text() { return QColor::fromRgbF(0.1F, 0.1F, 0.1F); }
    /// Second lines of list rows: names in German, counts, phonetics.
    [[nodiscard]] static QColor secondaryText() { return QColor::fromRgb(109, 109, 114); }
    [[nodiscard]] static QColor separator() { return QColor::fromRgbF(0.8F, 0.8F, 0.8F, 0.8F); }
};
