#include "WordOrderBoard.h"

#include "content/AppCommon.h"
#include "content/VoAppCommon.h"
#include "quiz/QuizLog.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {
// Shares of the label height: the text size, and the space left of and right of the text.
constexpr double fontShare = 0.45;
constexpr double insetShare = 0.25;
} // namespace

WordOrderBoard::WordOrderBoard(QObject *parent)
    : QAbstractListModel(parent)
{
    placeLabels();
}

void WordOrderBoard::setPhrase(const QString &content, QRandomGenerator &random)
{
    const QStringList standard = VoAppCommon::getAllWordFromText(content, false);
    setWords(standard, randomPick(standard, standard.size(), random));
}

void WordOrderBoard::setWords(const QStringList &standard, const QStringList &shown)
{
    beginResetModel();
    m_standardOrderedWords = standard;
    m_randomOrderedWords = shown;
    m_labels.clear();
    QList<int> order;
    for (const QString &word : shown) {
        order.append(static_cast<int>(m_labels.size()));
        m_labels.append({word});
    }
    m_order = std::move(order);
    placeLabels();
    endResetModel();
    Q_EMIT geometryChanged();
    Q_EMIT wordsChanged();
    Q_EMIT testOrderedWordsChanged();
}

void WordOrderBoard::clear()
{
    setWords({}, {});
}

void WordOrderBoard::dropWord(int row, double x, double y)
{
    if (!validRow(row))
        return;
    if (!std::isfinite(x) || !std::isfinite(y)) {
        VoLog::write(lcQuiz(), VoLog::Error, QStringLiteral("word label dropped nowhere"));
        return;
    }
    m_labels[row].x = x;
    m_labels[row].y = y;
    // Every other label still stands where the last layout put it, so sorting all of them
    // finds the dropped label its place.
    QList<int> order = m_order;
    std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
        const Label &left = m_labels.at(a);
        const Label &right = m_labels.at(b);
        const int leftRow = m_rows.rowAt(left.y);
        const int rightRow = m_rows.rowAt(right.y);
        return leftRow != rightRow ? leftRow < rightRow : left.x < right.x;
    });
    setOrder(std::move(order));
}

void WordOrderBoard::shiftWord(int row, int step)
{
    if (!validRow(row))
        return;
    QList<int> order = m_order;
    const qsizetype from = order.indexOf(row);
    const qsizetype to = std::clamp<qsizetype>(from + step, 0, order.size() - 1);
    order.move(from, to);
    setOrder(std::move(order));
}

QString WordOrderBoard::answerText() const
{
    return testOrderedWords().join(u' ');
}

QString WordOrderBoard::expectedText() const
{
    return m_standardOrderedWords.join(u' ');
}

bool WordOrderBoard::isAnswerRight() const
{
    return answerText().toLower() == expectedText().toLower();
}

void WordOrderBoard::setWorkAreaW(double width)
{
    if (m_area.width() == width)
        return;
    m_area.setWidth(width);
    relayout();
}

void WordOrderBoard::setWorkAreaH(double height)
{
    if (m_area.height() == height)
        return;
    m_area.setHeight(height);
    relayout();
}

void WordOrderBoard::setMinWordLblW(double width)
{
    if (m_minWordLblW == width)
        return;
    m_minWordLblW = width;
    relayout();
}

void WordOrderBoard::setPadding(double padding)
{
    if (m_padding == padding)
        return;
    m_padding = padding;
    relayout();
}

QStringList WordOrderBoard::testOrderedWords() const
{
    QStringList words;
    words.reserve(m_order.size());
    for (const int row : m_order)
        words.append(m_labels.at(row).word);
    return words;
}

int WordOrderBoard::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_labels.size());
}

QVariant WordOrderBoard::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Label &label = m_labels.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case WordRole:
        return label.word;
    case LabelXRole:
        return label.x;
    case LabelYRole:
        return label.y;
    case LabelWidthRole:
        return label.width;
    default:
        return {};
    }
}

QHash<int, QByteArray> WordOrderBoard::roleNames() const
{
    return {{WordRole, "word"},
            {LabelXRole, "labelX"},
            {LabelYRole, "labelY"},
            {LabelWidthRole, "labelWidth"}};
}

bool WordOrderBoard::validRow(int row) const
{
    if (row >= 0 && row < m_labels.size())
        return true;
    VoLog::write(lcQuiz(), VoLog::Error,
                 QStringLiteral("no word label %1 of %2").arg(row).arg(m_labels.size()));
    return false;
}

void WordOrderBoard::relayout()
{
    placeLabels();
    if (!m_labels.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1),
                           {LabelXRole, LabelYRole, LabelWidthRole});
    Q_EMIT geometryChanged();
}

void WordOrderBoard::placeLabels()
{
    m_font.setPixelSize(std::max(1, qRound(labelHeight() * fontShare)));
    const QFontMetricsF metrics(m_font);
    const double widest = m_area.width() - 2 * m_padding;
    QList<double> widths;
    widths.reserve(m_order.size());
    for (const int row : m_order) {
        Label &label = m_labels[row];
        label.width = std::max(m_minWordLblW, metrics.horizontalAdvance(label.word) +
                                                  2 * insetShare * labelHeight());
        if (widest > 0)
            label.width = std::min(label.width, widest);
        widths.append(label.width);
    }
    m_rows = layOutWordRows(widths, m_area, labelHeight(), m_padding);
    for (qsizetype i = 0; i < m_order.size(); ++i) {
        Label &label = m_labels[m_order.at(i)];
        label.x = m_rows.positions.at(i).x();
        label.y = m_rows.positions.at(i).y();
    }
}

void WordOrderBoard::setOrder(QList<int> order)
{
    const bool changed = order != m_order;
    m_order = std::move(order);
    relayout();
    if (changed)
        Q_EMIT testOrderedWordsChanged();
}
