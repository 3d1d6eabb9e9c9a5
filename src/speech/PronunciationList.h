#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

/// @brief One line of a pronunciation list: WORD, or WORD(alternate) from 2 on, and its phones.
struct Pronunciation {
    QString word;
    int alternate{1};
    QString phones; ///< separated by single blanks
};

/// The entries of a dictionary in the "word phones" / "word(2) phones" layout, words
/// upper-cased. Nothing, with the file and line in error, when a line has no phones or an
/// alternate number below 1.
[[nodiscard]] std::optional<QList<Pronunciation>> readPronunciationDictionary(const QString &path,
                                                                              QString &error);

/// Puts the list in the order the model generator's forward-only scan needs: words as the
/// generator sorts its own (WordOrder.h), each word's alternates right after its main line.
/// Distinct words that the order ties are kept apart by their code points.
void sortForLookup(QList<Pronunciation> &list);

/// "WORD\tPHONES" lines, alternates as "WORD(2)\tPHONES", each ended by a line break; UTF-8.
[[nodiscard]] QByteArray lookupListText(const QList<Pronunciation> &list);
