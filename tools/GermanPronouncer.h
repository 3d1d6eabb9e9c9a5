#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

/**
 * @brief Pronounces German words in an English acoustic model's phones: espeak-ng's German
 * phonemes (its "-x" mnemonics) mapped by a table kept with the model's sources.
 *
 * Table lines are "phoneme<TAB>phones", phones separated by blanks; an empty right side means
 * the phoneme adds no phone (pauses, the glottal stop). Lines starting with "#" are comments.
 */
class GermanPronouncer {
public:
    /// Nothing, with the reason in error, when the table cannot be read, has a bad line or
    /// names a phone the model lacks.
    static std::optional<GermanPronouncer>
    fromTable(const QString &tablePath, const QStringList &modelPhones, QString &error);

    /// The phones of each word, in order. Nothing when espeak-ng fails, when one of its phonemes
    /// is not in the table (error names the phoneme and the word) or when a word gets no phone.
    [[nodiscard]] std::optional<QStringList> pronounce(const QStringList &words,
                                                       QString &error) const;

private:
    [[nodiscard]] std::optional<QString> phonesOf(const QString &word, const QString &phonemes,
                                                  QString &error) const;

    QString m_tablePath;
    QHash<QString, QStringList> m_phones;
};
