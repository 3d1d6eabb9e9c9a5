#pragma once

#include "CategoryListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// @brief The main screen: the course's categories, the learner's experience total, and once, what
/// happened to a damaged record.
class MainViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(CategoryListModel *categories READ categories CONSTANT)
    Q_PROPERTY(qint64 experienceTotal READ experienceTotal NOTIFY experienceTotalChanged)
    Q_PROPERTY(QString recordNotice READ recordNotice NOTIFY recordNoticeChanged)

public:
    explicit MainViewController(QObject *parent = nullptr);

    [[nodiscard]] CategoryListModel *categories() { return &m_categories; }
    [[nodiscard]] qint64 experienceTotal() const { return m_experienceTotal; }
    /// Empty unless this start healed the record.
    [[nodiscard]] const QString &recordNotice() const { return m_recordNotice; }

    /// Reads the total again, e.g. when the learner comes back from a screen that earned points.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void dismissRecordNotice();

Q_SIGNALS:
    void experienceTotalChanged();
    void recordNoticeChanged();

private:
    CategoryListModel m_categories;
    qint64 m_experienceTotal{0};
    QString m_recordNotice;
};
