#include "QuizResultModel.h"

#include "QuizAnswer.h"
#include "app/Preferences.h"
#include "content/AppCommon.h"

void QuizResultModel::setResults(const QList<PhraseInfo *> &expected,
                                 const QList<PhraseInfo *> &given, bool foreign2Mother)
{
    beginResetModel();
    m_rows.clear();
    m_rightTextShown = Preferences::instance().languageType() != QStringLiteral("de");
    const qsizetype n = std::min(expected.size(), given.size());
    for (qsizetype i = 0; i < n; ++i)
        m_rows.append(setResult(*expected.at(i), *given.at(i), foreign2Mother));
    endResetModel();
}

QuizResultModel::Row QuizResultModel::setResult(const PhraseInfo &expected, const PhraseInfo &given,
                                                bool foreign2Mother)
{
    Row row{foreignText(expected), motherText(expected),
            foreign2Mother ? motherText(given) : foreignText(given),
            isRightAnswer(expected, given) ? rightColor() : wrongColor(), rowBgColor()};
    if (row.testText.isEmpty())
        row.testText = QStringLiteral("-");
    return row;
}

void QuizResultModel::setRowColor(int index, const QColor &color)
{
    if (index < 0 || index >= m_rows.size() || m_rows.at(index).rowColor == color)
        return;
    m_rows[index].rowColor = color;
    const QModelIndex changed = createIndex(index, 0);
    Q_EMIT dataChanged(changed, changed, {RowColorRole});
}

int QuizResultModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant QuizResultModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case SrcTextRole:
        return row.srcText;
    case RightTextRole:
        return row.rightText;
    case RightTextShownRole:
        return m_rightTextShown;
    case TestTextRole:
        return row.testText;
    case TestTextColorRole:
        return row.testTextColor;
    case RowColorRole:
        return row.rowColor;
    default:
        return {};
    }
}

QHash<int, QByteArray> QuizResultModel::roleNames() const
{
    return {{SrcTextRole, "srcText"},
            {RightTextRole, "rightText"},
            {RightTextShownRole, "rightTextShown"},
            {TestTextRole, "testText"},
            {TestTextColorRole, "testTextColor"},
            {RowColorRole, "rowColor"}};
}
