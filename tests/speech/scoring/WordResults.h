#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>
#include <utility>

/// A word result as the scorer reads it: the decoder's word and its linear posterior.
inline QVariantMap wordResult(const QString &word, const QVariant &posterior)
{
    return {{QStringLiteral("word"), word}, {QStringLiteral("logProbability"), posterior}};
}

/// Word results from (word, score out of 100) pairs, the posterior being score / 100.
inline QList<QVariantMap> saidWords(std::initializer_list<std::pair<const char *, double>> words)
{
    QList<QVariantMap> results;
    for (const auto &[word, score] : words)
        results.append(wordResult(QString::fromUtf8(word), score / 100.0));
    return results;
}
