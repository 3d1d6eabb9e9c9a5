#include "PronunciationList.h"

#include "content/TextHelpers.h"
#include "content/VoFileUtil.h"
#include "speech/WordOrder.h"

#include <QRegularExpression>
#include <algorithm>

std::optional<QList<Pronunciation>> readPronunciationDictionary(const QString &path, QString &error)
{
    const std::optional<QByteArray> bytes = VoFileUtil::readFile(path);
    const std::optional<QString> text = bytes ? TextHelpers::fromUtf8Strict(*bytes) : std::nullopt;
    if (!text) {
        error = QStringLiteral("cannot read %1 as UTF-8 text").arg(path);
        return std::nullopt;
    }
    static const QRegularExpression entry(QStringLiteral("^(\\S+?)(?:\\((\\d+)\\))?\\s+(\\S.*)$"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    QList<Pronunciation> list;
    const QStringList lines = text->split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.isEmpty())
            continue;
        const QRegularExpressionMatch match = entry.match(line);
        if (!match.hasMatch()) {
            error = QStringLiteral("%1 line %2 is not \"word phones\"").arg(path).arg(i + 1);
            return std::nullopt;
        }
        bool isNumber = true;
        const int alternate = match.hasCaptured(2) ? match.captured(2).toInt(&isNumber) : 1;
        // "WORD(0)" or a number past int would be written back as a main line.
        if (!isNumber || alternate < 1) {
            error =
                QStringLiteral("%1 line %2 has no alternate number from 1 on").arg(path).arg(i + 1);
            return std::nullopt;
        }
        list.append({match.captured(1).toUpper(), alternate,
                     match.captured(3).split(blanks).join(QLatin1Char(' '))});
    }
    return list;
}

void sortForLookup(QList<Pronunciation> &list)
{
    std::sort(list.begin(), list.end(), [](const Pronunciation &a, const Pronunciation &b) {
        if (const int order = compareWords(a.word, b.word); order != 0)
            return order < 0;
        if (a.word != b.word)
            return a.word < b.word;
        return a.alternate < b.alternate;
    });
}

QByteArray lookupListText(const QList<Pronunciation> &list)
{
    QString text;
    for (const Pronunciation &entry : list) {
        text += entry.word;
        if (entry.alternate > 1)
            text += QLatin1Char('(') + QString::number(entry.alternate) + QLatin1Char(')');
        text += QLatin1Char('\t') + entry.phones + QLatin1Char('\n');
    }
    return text.toUtf8();
}
