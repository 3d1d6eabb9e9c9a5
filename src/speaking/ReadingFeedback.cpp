#include "ReadingFeedback.h"

#include "app/ScoreText.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("ReadingFeedback", text);
}

QString verdictText(const WordVerification &word)
{
    return translated(word.judged ? verdictName(word.verdict)
                                  : QT_TRANSLATE_NOOP("ReadingFeedback", "not judged"));
}

/// The judged word that went worst: missing before unclear, then the lower goodness.
const WordVerification *worstWord(const ReadingVerification &check)
{
    const WordVerification *worst = nullptr;
    for (const WordVerification &word : check.words) {
        if (!word.judged || word.verdict == WordVerdict::HeardWell)
            continue;
        if (!worst || word.goodness < worst->goodness)
            worst = &word;
    }
    return worst;
}

} // namespace

namespace ReadingFeedback {

QColor verdictColor(WordVerdict verdict)
{
    constexpr int outOf = 10;
    switch (verdict) {
    case WordVerdict::HeardWell:
        return ScoreText::color(outOf, outOf);
    case WordVerdict::Unclear:
        return ScoreText::color(outOf / 2, outOf);
    case WordVerdict::Missing:
        break;
    }
    return ScoreText::color(0, outOf);
}

QString colouredPhrase(const QString &phrase, const ReadingVerification &check)
{
    if (!check.succeeded)
        return {};
    // The words stand in the phrase in order; what lies between them is kept as it is.
    QString styled;
    qsizetype at = 0;
    for (const WordVerification &word : check.words) {
        const qsizetype found = phrase.indexOf(word.word, at);
        if (found < 0)
            continue;
        styled += phrase.mid(at, found - at).toHtmlEscaped();
        const QString escaped = word.word.toHtmlEscaped();
        styled += word.judged ? QStringLiteral("<font color=\"%1\">%2</font>")
                                    .arg(verdictColor(word.verdict).name(), escaped)
                              : escaped;
        at = found + word.word.size();
    }
    return styled + phrase.mid(at).toHtmlEscaped();
}

QString spokenVerdicts(const ReadingVerification &check)
{
    if (!check.succeeded)
        return {};
    QStringList parts;
    for (const WordVerification &word : check.words)
        parts.append(QStringLiteral("%1: %2").arg(word.word, verdictText(word)));
    return parts.join(QStringLiteral(", "));
}

QString tip(const ReadingVerification &check)
{
    if (!check.succeeded)
        return {};
    const WordVerification *worst = worstWord(check);
    if (!worst)
        return {};
    if (worst->weakestLetters.isEmpty())
        return translated("Listen again and say \"%1\" clearly.").arg(worst->word);
    if (worst->weakestIpa.isEmpty())
        return translated("Listen again to \"%1\" in \"%2\".")
            .arg(worst->weakestLetters, worst->word);
    return translated("Listen again to \"%1\" /%2/ in \"%3\".")
        .arg(worst->weakestLetters, worst->weakestIpa, worst->word);
}

} // namespace ReadingFeedback
