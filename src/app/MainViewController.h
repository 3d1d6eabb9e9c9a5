#pragma once

#include "CategoryListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// @brief The main screen: the course's categories and the learner's experience total.
class MainViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(CategoryListModel *categories READ categories CONSTANT)
    Q_PROPERTY(qint64 experienceTotal READ experienceTotal NOTIFY experienceTotalChanged)

public:
    explicit MainViewController(QObject *parent = nullptr);

    [[nodiscard]] CategoryListModel *categories() { return &m_categories; }
    [[nodiscard]] qint64 experienceTotal() const { return m_experienceTotal; }

    /// Reads the total again, e.g. when the learner comes back from a screen that earned points.
    Q_INVOKABLE void refresh();

Q_SIGNALS:
    void experienceTotalChanged();

private:
    CategoryListModel m_categories;
    qint64 m_experienceTotal{0};
};
