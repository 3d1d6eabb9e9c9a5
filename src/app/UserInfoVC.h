#pragma once

#include <QObject>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The user info screen: the experience total and what it was earned with.
 *
 * Reads the record once, when the screen is made, and changes nothing. Each detail row shows a
 * counter with the weight it has in the total, so the rows add up to the total ("kAwordScore"
 * counts in the total but has no row).
 */
class UserInfoVC : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString totalText READ totalText CONSTANT)
    Q_PROPERTY(QVariantList detailRows READ detailRows CONSTANT)
    // Design heights of the total row and of a detail row, in points of the 320 x 568 screen.
    Q_PROPERTY(double expRowH READ expRowH CONSTANT)
    Q_PROPERTY(double infoRowH READ infoRowH CONSTANT)

public:
    struct DetailRow {
        QString title;
        QString detail;
    };

    /// Reads the app's record; a missing key is fatal.
    explicit UserInfoVC(QObject *parent = nullptr);

    [[nodiscard]] const QVariantMap &userInfo() const { return m_userInfo; }
    /// The decimal total of experience points.
    [[nodiscard]] const QString &totalText() const { return m_totalText; }
    /// "Start App", "Listen Word", "Write Word", "Read Word", "Quiz Times", "Quiz Score" and
    /// "Review App", titles translated.
    [[nodiscard]] QList<DetailRow> details() const;
    /// The same, as maps with "title" and "detail" for the view.
    [[nodiscard]] QVariantList detailRows() const;
    [[nodiscard]] static constexpr double expRowH() { return 80.0; }
    [[nodiscard]] static constexpr double infoRowH() { return 44.0; }

private:
    QVariantMap m_userInfo;
    QString m_totalText;
};
