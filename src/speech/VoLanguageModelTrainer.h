#pragma once

#include "LanguageModelError.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>

/**
 * @brief Generates what the decoder needs for one phrase: a phonetic dictionary of the phrase's
 * words, cut out of the acoustic model's pronunciation lookup list, and a trigram language model
 * in SphinxBase's binary format.
 *
 * A trainer serves one generation and runs synchronously. For a model named N it writes, in
 * lmBasePath(), N.dic, N.arpa and N.DMP, and removes its intermediate files. Generations of
 * different names may run at once: the toolkit's steps keep no state between calls.
 */
class VoLanguageModelTrainer {
public:
    static constexpr char lookupListFileName[] = "LanguageModelGeneratorLookupList.text";
    static constexpr char englishAcousticModelFolder[] = "AcousticModelEnglish.bundle";

    VoLanguageModelTrainer();

    /// The toolkit's verbose output and SphinxBase's own log; off unless a developer turns them
    /// on, for the whole process.
    static void setToolkitDebug(bool on);
    [[nodiscard]] static bool toolkitDebug();

    /// Uses the English acoustic model folder (see englishAcousticModelPath()).
    LanguageModelError generateEnglishLanguageModelFromArray(const QStringList &phrases,
                                                             const QString &name);
    /// Success is code 0 with the four file names and paths in userInfo. Toolkit failures are
    /// only logged: they show when the decoder cannot load the model.
    LanguageModelError generateLanguageModelFromArray(const QStringList &phrases,
                                                      const QString &name,
                                                      const QString &acousticModelPath);

    // The steps of a generation, in their order.

    /// Each entry's white-space runs (not its line breaks) become one blank, without blanks at
    /// either end.
    [[nodiscard]] static QStringList compactWhitespaceOfArrayEntries(const QStringList &entries);
    /// Code 6000 when the entries hold nothing but white space, else success.
    [[nodiscard]] static LanguageModelError checkModelForContent(const QStringList &entries);
    /// One "<s> entry </s>" line per entry, in N.corpus.
    LanguageModelError writeOutCorpusForArray(const QStringList &entries, const QString &name);
    /// The toolkit on the corpus, then the corpus removed.
    void createLanguageModelFromFilename(const QString &corpusPath);
    /// Corpus to N.arpa, and to N.DMP when asked; failures are logged and skipped.
    void runCMUCLMTKOnCorpusFile(const QString &corpusPath, bool withDMP);
    /// False (and an error line) when SphinxBase cannot read the ARPA model or write the binary.
    bool convertARPAAtPath(const QString &arpaPath, const QString &dmpPath);
    /// The distinct words of the entries, stripped of everything but letters, marks, digits and
    /// apostrophes, in the lookup list's order (see WordOrder.h).
    [[nodiscard]] QStringList cleanDictionaryWordArray(const QStringList &entries);
    /// Logs an error when the lookup list is not a readable file; the generation goes on.
    static bool checkPhoneticDictionaryAtAcousticModelPath(const QString &acousticModelPath);
    /**
     * The lookup list's lines for the sorted words: each word's line and its alternates
     * WORD(2) to WORD(5), as long as they follow without a gap.
     *
     * A single forward pass that looks for "\nWORD\t": the list's first line is never found,
     * and a word that sorts before the previous found word is dropped. Both limits are kept on
     * purpose, which is why words and list must share one order. Dropped words are logged.
     */
    [[nodiscard]] static QStringList performDictionaryLookup(QStringList words,
                                                             const QString &lookupList,
                                                             const QString &lookupListPath);
    /// "LMFile", "DictionaryFile", "LMPath" and "DictionaryPath" of the model named N.
    [[nodiscard]] QVariantMap
    assembleUserInfoDictionaryForLanguageModelsForFilename(const QString &name) const;

    // Settings.

    /// Where every file is written; the app's cache folder unless set.
    [[nodiscard]] const QString &lmBasePath() const { return m_lmBasePath; }
    void setLmBasePath(const QString &path) { m_lmBasePath = path; }
    /// The folder generateEnglishLanguageModelFromArray() uses: the one set, else
    /// "AcousticModelEnglish.bundle" beside the program.
    [[nodiscard]] QString englishAcousticModelPath() const;
    void setEnglishAcousticModelPath(const QString &path) { m_englishAcousticModelPath = path; }
    [[nodiscard]] bool outputDMP() const { return m_outputDMP; }
    void setOutputDMP(bool on) { m_outputDMP = on; }
    /// The discounting option of the n-gram step; every model run sets "-witten_bell".
    [[nodiscard]] const QString &algorithmType() const { return m_algorithmType; }
    /// The toolkit's verbosity: -1, or 10 in debug mode; set at each model run.
    [[nodiscard]] int verbosity() const { return m_verbosity; }
    /// Every character that is neither a letter, a mark or a digit (any script) nor "'".
    [[nodiscard]] const QRegularExpression &sanitizeDictionaryCharacterSet();

    [[nodiscard]] static QString lookupListPath(const QString &acousticModelPath);

private:
    [[nodiscard]] QString pathInBase(const QString &fileName) const;
    [[nodiscard]] QString corpusPath(const QString &name) const;

    QString m_lmBasePath;
    QString m_englishAcousticModelPath;
    QString m_algorithmType{QStringLiteral("-witten_bell")};
    int m_verbosity{-1};
    bool m_outputDMP{true};
    std::optional<QRegularExpression> m_sanitizeDictionaryCharacterSet;
};
