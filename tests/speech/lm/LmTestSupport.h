#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>
#include <array>

/// The corpus the model generator writes for a list of phrases: one "<s> phrase </s>" line each.
[[nodiscard]] QByteArray corpusOf(const QByteArrayList &phrases);

/// Id n-gram records: each row is three word ids and a count, written 32-bit big-endian.
[[nodiscard]] QByteArray idRecords(std::initializer_list<std::array<quint32, 4>> rows);

/// @brief The intermediate files of one model in a folder, and the step arguments the
/// generator passes.
struct ModelFiles {
    explicit ModelFiles(const QString &folder);

    QString folder, text, vocabulary, idNgrams, contextCues, arpa;

    [[nodiscard]] QStringList text2idngramArguments() const;
    [[nodiscard]] QStringList idngram2lmArguments() const;
};

/// Runs the generator's toolkit chain on the corpus in the folder; the path of the ARPA model
/// it wrote, or an empty one.
[[nodiscard]] QString generateArpa(const QString &folder, const QByteArray &corpus);

/// @brief What an ARPA file's header announces and what its sections hold, per order.
struct ArpaCounts {
    std::array<qint64, 3> announced{};
    std::array<qint64, 3> listed{};
};
[[nodiscard]] ArpaCounts arpaCounts(const QString &path);
