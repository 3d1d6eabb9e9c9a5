#include "RecognizerWords.h"

#include <QRegularExpression>

QStringList recognizerWords(const QString &text, bool uppercased)
{
    static const QRegularExpression word(QStringLiteral("([a-z']+)[\\s?!.,]"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::UseUnicodePropertiesOption);
    QStringList words;
    const QString terminated = text + QLatin1Char(' ');
    for (auto it = word.globalMatch(terminated); it.hasNext();) {
        const QString found = it.next().captured(1);
        words.append(uppercased ? found.toUpper() : found);
    }
    return words;
}
