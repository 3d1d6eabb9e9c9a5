#pragma once

#include <QAbstractListModel>
#include <QColor>
#include <QList>
#include <QtQml/qqmlregistration.h>

class PhraseInfo;

/**
 * @brief The result table of a finished quiz: one CommonResultCellView row per question with
 * the phrase, its translation and the learner's answer coloured by its correctness.
 *
 * Every quiz kind fills it the same way; only the direction flag differs. A row's background
 * is kept here so that the row whose phrase is playing can be highlighted and restored.
 */
class QuizResultModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role {
        SrcTextRole = Qt::UserRole + 1,
        RightTextRole,
        RightTextShownRole,
        TestTextRole,
        TestTextColorRole,
        RowColorRole,
    };

    /// What one CommonResultCellView shows.
    struct Row {
        QString srcText;   ///< the expected phrase in the foreign language
        QString rightText; ///< its translation
        QString testText;  ///< the answer, "-" when there is none
        QColor testTextColor;
        QColor rowColor;
    };

    using QAbstractListModel::QAbstractListModel;

    /// Row i shows expected[i] against given[i]; foreign2Mother shows the answers in the mother
    /// language, as the quiz asked for them. The lists must be of one length.
    void setResults(const QList<PhraseInfo *> &expected, const QList<PhraseInfo *> &given,
                    bool foreign2Mother);
    /// One row, as setResults fills it.
    [[nodiscard]] static Row setResult(const PhraseInfo &expected, const PhraseInfo &given,
                                       bool foreign2Mother);

    [[nodiscard]] const Row &row(int index) const { return m_rows.at(index); }
    [[nodiscard]] QColor rowColor(int index) const { return m_rows.at(index).rowColor; }
    void setRowColor(int index, const QColor &color);

    [[nodiscard]] static QColor rightColor() { return QColor::fromRgb(46, 139, 87); }
    [[nodiscard]] static QColor wrongColor() { return QColor::fromRgb(178, 34, 34); }
    [[nodiscard]] static QColor rowBgColor() { return Qt::white; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<Row> m_rows;
    // The translation would repeat the phrase for a learner whose language is German.
    bool m_rightTextShown{true};
};
