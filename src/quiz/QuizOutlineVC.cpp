#include "QuizOutlineVC.h"

#include "app/Preferences.h"

#include <QCoreApplication>
#include <array>

namespace {

struct QuizKind {
    int tag;
    const char *title;
    const char *page;
    /// Only meaningful when the mother language is not the one learnt.
    bool translates;
    /// For the translation quiz: whether the question is the German text.
    bool foreign2Mother;
};

// The kinds in menu order.
constexpr std::array quizKinds{
    QuizKind{1, QT_TRANSLATE_NOOP("QuizOutlineVC", "Listen And Select"), "Listen2SelectPage.qml",
             false, false},
    QuizKind{2, QT_TRANSLATE_NOOP("QuizOutlineVC", "Listen And Write"), "Listen2WritePage.qml",
             false, false},
    QuizKind{3, QT_TRANSLATE_NOOP("QuizOutlineVC", "Reorder Words"), "WordOrderAdjustPage.qml",
             false, false},
    QuizKind{4, QT_TRANSLATE_NOOP("QuizOutlineVC", "Read Phrase"), "Phrase2SpeakPage.qml", false,
             false},
    QuizKind{5, QT_TRANSLATE_NOOP("QuizOutlineVC", "Foreign Language -> Mother Language"),
             "Word2WordPage.qml", true, true},
    QuizKind{6, QT_TRANSLATE_NOOP("QuizOutlineVC", "Mother Language -> Foreign Language"),
             "Word2WordPage.qml", true, false},
};

bool offered(const QuizKind &kind)
{
    return !kind.translates || Preferences::instance().languageType() != QLatin1String("de");
}

} // namespace

QuizOutlineVC::QuizOutlineVC(QObject *parent)
    : QObject(parent)
{
    connect(&Preferences::instance(), &Preferences::languageTypeChanged, this,
            &QuizOutlineVC::buttonsChanged);
}

void QuizOutlineVC::setCategory(const QString &categoryId)
{
    if (m_categoryId == categoryId)
        return;
    m_categoryId = categoryId;
    Q_EMIT categoryChanged();
}

QString QuizOutlineVC::titleText() const
{
    return m_categoryId.isEmpty() ? tr("Quizzes") : tr("Unit Quiz");
}

QVariantList QuizOutlineVC::buttons() const
{
    QVariantList list;
    for (const QuizKind &kind : quizKinds) {
        if (offered(kind))
            list.append(QVariantMap{
                {QStringLiteral("tag"), kind.tag},
                {QStringLiteral("title"), QCoreApplication::translate("QuizOutlineVC", kind.title)},
            });
    }
    return list;
}

double QuizOutlineVC::buttonHeight(double availableHeight) const
{
    const auto n = static_cast<double>(buttons().size());
    return availableHeight / (n + (n - 1.0) * 0.25 + 1.0);
}

QVariantMap QuizOutlineVC::quizClicked(int tag) const
{
    for (const QuizKind &kind : quizKinds) {
        if (kind.tag != tag || !offered(kind))
            continue;
        QVariantMap properties{
            {QStringLiteral("categoryId"), m_categoryId},
            {QStringLiteral("titleText"), QCoreApplication::translate("QuizOutlineVC", kind.title)},
            // Read when the button is pressed: the duration chosen last counts.
            {QStringLiteral("limitedTime"), Preferences::instance().testDuration()},
        };
        if (kind.translates)
            properties.insert(QStringLiteral("foreign2Mother"), kind.foreign2Mother);
        return {{QStringLiteral("page"), QLatin1String(kind.page)},
                {QStringLiteral("properties"), properties}};
    }
    return {};
}
