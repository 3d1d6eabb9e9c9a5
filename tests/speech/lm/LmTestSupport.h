#pragma once

#include "speech/lm/WittenBellModel.h"

#include <QByteArrayList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <array>

/// The corpus the model generator writes for a list of phrases: one "<s> phrase </s>" line each.
[[nodiscard]] QByteArray corpusOf(const QByteArrayList &phrases);

/// @brief The files of one model, named as the model generator names them.
struct ModelFiles {
    ModelFiles(const QString &folder, const QString &name);

    QString folder, corpus, alternativeCorpus, frequencies, vocabulary, idNgrams, contextCues, arpa;

    [[nodiscard]] QStringList text2idngramArguments() const;
    [[nodiscard]] QStringList idngram2lmArguments() const;
};

/// Runs the four steps on the corpus as the model generator does; false at the first failure.
bool buildModel(const ModelFiles &files, const QByteArray &corpus);

/// @brief An n-gram model as word-keyed tables, read from an ARPA file or from an estimate.
struct NgramTables {
    struct Entry {
        double log10Probability{0.0};
        double log10Backoff{0.0};
    };
    QByteArrayList words; // the unigrams in order
    std::array<qint64, 3> headerCounts{};
    std::array<QMap<QByteArray, Entry>, 3> sections; // keyed by the words joined with blanks

    /// Empty tables with a failure recorded (see gtest) when the file is not ARPA text.
    [[nodiscard]] static NgramTables fromArpa(const QString &path);
    [[nodiscard]] static NgramTables fromModel(const lm::TrigramModel &model,
                                               const QByteArrayList &words);

    /// log10 P(word | history) by back-off; the history holds up to two words, oldest first.
    [[nodiscard]] double log10Probability(const QByteArrayList &history,
                                          const QByteArray &word) const;
    /// Histories of every order the model knows: none, each word, each 2-gram.
    [[nodiscard]] QList<QByteArrayList> histories() const;
};

/// @brief Collects the toolkit's log lines while it lives.
class LmLogCapture {
public:
    LmLogCapture();
    ~LmLogCapture();
    LmLogCapture(const LmLogCapture &) = delete;
    LmLogCapture &operator=(const LmLogCapture &) = delete;

    [[nodiscard]] QStringList errors() const;
};
