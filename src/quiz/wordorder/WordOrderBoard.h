#pragma once

#include "WordRows.h"

#include <QAbstractListModel>
#include <QFont>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QRandomGenerator;

/**
 * @brief The work area of the word-order quiz: one label per word of a phrase, shown shuffled,
 * which the learner drags back into order.
 *
 * Rows of the model are the labels in the order they were first shown and keep that order;
 * where a label stands, and so the learner's answer, changes with each drop. After a drop the
 * labels are sorted by their x (by row, then x, when the phrase wraps) with a stable sort, so a
 * label dropped at exactly another's x keeps its earlier place relative to it, and the whole
 * row is laid out again (see WordRows).
 *
 * The work area's size comes from the view; labels are a fifth of its height high and as wide
 * as their text, but at least `minWordLblW` and never wider than the area.
 */
class WordOrderBoard : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by the word-order quiz")
    Q_PROPERTY(double workAreaW READ workAreaW WRITE setWorkAreaW NOTIFY geometryChanged)
    Q_PROPERTY(double workAreaH READ workAreaH WRITE setWorkAreaH NOTIFY geometryChanged)
    Q_PROPERTY(double minWordLblW READ minWordLblW WRITE setMinWordLblW NOTIFY geometryChanged)
    Q_PROPERTY(double padding READ padding WRITE setPadding NOTIFY geometryChanged)
    Q_PROPERTY(double labelHeight READ labelHeight NOTIFY geometryChanged)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY geometryChanged)
    Q_PROPERTY(QFont font READ font NOTIFY geometryChanged)
    Q_PROPERTY(QStringList standardOrderedWords READ standardOrderedWords NOTIFY wordsChanged)
    Q_PROPERTY(QStringList randomOrderedWords READ randomOrderedWords NOTIFY wordsChanged)
    Q_PROPERTY(QStringList testOrderedWords READ testOrderedWords NOTIFY testOrderedWordsChanged)

public:
    enum Role { WordRole = Qt::UserRole + 1, LabelXRole, LabelYRole, LabelWidthRole };

    explicit WordOrderBoard(QObject *parent = nullptr);

    /// The words of the phrase (the quizzes' word split of its content), shown in a uniformly
    /// random order drawn once: a one-word phrase, or an unlucky draw, starts out right.
    void setPhrase(const QString &content, QRandomGenerator &random);
    /// Shows the words of `shown`, which holds the words of `standard` in another order.
    void setWords(const QStringList &standard, const QStringList &shown);
    /// Removes every label.
    void clear();

    /// Puts the label of the row, dropped with its top-left corner at (x, y), back into the row
    /// of labels. A row outside the model or a point that is not finite is logged and ignored.
    Q_INVOKABLE void dropWord(int row, double x, double y);
    /// Moves the label of the row one or more places later (step > 0) or earlier in the answer,
    /// as far as the ends allow: dragging by keyboard.
    Q_INVOKABLE void shiftWord(int row, int step);

    /// The learner's answer: the words in the order they stand, joined by single blanks.
    [[nodiscard]] QString answerText() const;
    /// The words in their right order, joined by single blanks.
    [[nodiscard]] QString expectedText() const;
    /// Whether the two texts are equal once lower-cased, so that which copy of a repeated word
    /// stands where does not matter.
    [[nodiscard]] bool isAnswerRight() const;

    [[nodiscard]] double workAreaW() const { return m_area.width(); }
    void setWorkAreaW(double width);
    [[nodiscard]] double workAreaH() const { return m_area.height(); }
    void setWorkAreaH(double height);
    [[nodiscard]] double minWordLblW() const { return m_minWordLblW; }
    void setMinWordLblW(double width);
    [[nodiscard]] double padding() const { return m_padding; }
    void setPadding(double padding);
    [[nodiscard]] double labelHeight() const { return 0.2 * m_area.height(); }
    [[nodiscard]] double contentHeight() const { return m_rows.contentHeight; }
    /// The words' font, sized to the label height; the view draws with it, the board measures
    /// with it.
    [[nodiscard]] QFont font() const { return m_font; }

    [[nodiscard]] QStringList standardOrderedWords() const { return m_standardOrderedWords; }
    [[nodiscard]] QStringList randomOrderedWords() const { return m_randomOrderedWords; }
    [[nodiscard]] QStringList testOrderedWords() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void geometryChanged();
    void wordsChanged();
    void testOrderedWordsChanged();

private:
    struct Label {
        QString word;
        double x{0};
        double y{0};
        double width{0};
    };

    [[nodiscard]] bool validRow(int row) const;
    /// Measures every label again and lays the rows out in the answer order.
    void placeLabels();
    /// placeLabels(), then tells the view.
    void relayout();
    void setOrder(QList<int> order);

    QSizeF m_area;
    double m_minWordLblW{40};
    double m_padding{6};
    QFont m_font;
    QStringList m_standardOrderedWords;
    QStringList m_randomOrderedWords;
    QList<Label> m_labels;
    QList<int> m_order; ///< rows of m_labels in the order they stand
    WordRows m_rows;
};
