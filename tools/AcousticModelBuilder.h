#pragma once

#include <QString>

class GermanPronouncer;

/**
 * @brief Makes the acoustic model folder the model generator and the recogniser read: the
 * installed model's files, copied, and the pronunciation lookup list.
 *
 * The list holds every entry of the English dictionary, upper-cased, plus a German
 * pronunciation (see GermanPronouncer) for each word of the course that the dictionary lacks,
 * the words being those of the recogniser's split. It is sorted for the generator's
 * forward-only scan (see sortForLookup). Beside it, the whole-word list gives the course's
 * words that the recogniser's split cuts ("Brötchen") their German pronunciation, for the check
 * of a reading. Equal inputs give a byte-identical folder.
 */
class AcousticModelBuilder {
public:
    struct Sources {
        QString courseFolder;   ///< the course as the app reads it (resources.bundle)
        QString modelFolder;    ///< the acoustic model: mdef, means, variances, ...
        QString dictionaryPath; ///< "word phones" lines, alternates as word(2)
        QString phoneTablePath; ///< espeak-ng phoneme to model phones
    };

    AcousticModelBuilder(Sources sources, QString outputFolder);

    /// False on the first failure; error() says what and where.
    bool build();
    [[nodiscard]] const QString &error() const { return m_error; }
    /// One line: what the list holds.
    [[nodiscard]] QString summary() const;

private:
    bool copyModelFiles();
    bool writeWholeWordList(const GermanPronouncer &pronouncer);
    bool fail(const QString &message);

    Sources m_sources;
    QString m_outputFolder;
    QString m_error;
    qsizetype m_dictionaryEntries{0};
    qsizetype m_courseWords{0};
    qsizetype m_pronounced{0};
    qsizetype m_wholeWords{0};
};
