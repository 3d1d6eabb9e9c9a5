#include "RecognizerWords.h"

#include "content/TextHelpers.h"

#include <QRegularExpression>

QStringList recognizerWords(const QString &text, bool uppercased)
{
    static const QRegularExpression word(QStringLiteral("([a-z']+)[\\s?!.,]"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::UseUnicodePropertiesOption);
    return TextHelpers::wordsMatching(word, text, uppercased);
}
