#include "RecognizerWords.h"

#include "content/TextHelpers.h"

#include <QRegularExpression>

QStringList recognizerWords(const QString &text, bool uppercased)
{
    // Both cases spelt out: a case-insensitive [a-z] with Unicode properties also takes the
    // long s and the Kelvin sign, which no English phone spells.
    static const QRegularExpression word(QStringLiteral("([A-Za-z']+)[\\s?!.,]"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    return TextHelpers::wordsMatching(word, text, uppercased);
}
