#include "ArpaWriter.h"

#include "LmFiles.h"
#include "LmLog.h"

#include <QFile>

namespace lm {

namespace {

constexpr char countPlaceholders[] = "ngram 1=####ONEGRAMPLACEHOLDER####"
                                     "ngram 2=####TWOGRAMPLACEHOLDER####"
                                     "ngram 3=####THREEGRAMPLACEHOLDER####";
static_assert(sizeof(countPlaceholders) - 1 == 104);

// Copying reads at most this many bytes of a line at once; the placeholders sit on a short line.
constexpr qint64 copiedLineBytes = 2050;

/// What one run wrote and left out of each order.
struct SectionCounts {
    std::array<qint64, 3> entries{};
    std::array<qint64, 3> leftOut{};
};

bool spansTwoSentences(const ArpaEntry &entry, int order, const QByteArrayList &words)
{
    const auto word = [&](int place) -> const QByteArray & {
        return words[entry.ids[place] - 1];
    };
    if (order == 2)
        return word(0).contains("</s>");
    if (order == 3)
        return word(0).contains("</s>") || word(2).contains("<s>");
    return false;
}

QByteArray decimal(double log10Value)
{
    QByteArray text = QByteArray::number(log10Value, 'f', 4);
    return text == "-0.0000" ? QByteArray("0.0000") : text;
}

QByteArray arpaText(const QByteArrayList &words, const TrigramModel &model, SectionCounts &counts)
{
    QByteArray text =
        "Trigram model written by Tolvane's language-model toolkit.\n"
        "Witten-Bell discounting with back-off; closed vocabulary of " +
        QByteArray::number(words.size()) +
        " words.\n"
        "Sentence starts are context only (log10 probability -99); n-grams that run from one\n"
        "sentence into the next are left out and not counted.\n\n"
        "\\data\\\n" +
        QByteArray(countPlaceholders) + '\n';
    for (int order = 1; order <= 3; ++order) {
        text += '\\' + QByteArray::number(order) + "-grams:\n";
        for (const ArpaEntry &entry : model.sections[order - 1]) {
            ++counts.entries[order - 1];
            if (spansTwoSentences(entry, order, words)) {
                ++counts.leftOut[order - 1];
                continue;
            }
            text += decimal(entry.log10Probability);
            for (int place = 0; place < order; ++place)
                text += ' ' + words[entry.ids[place] - 1];
            if (order < 3)
                text += ' ' + decimal(entry.log10Backoff);
            text += '\n';
        }
        text += '\n';
    }
    return text + "\\end\\\n";
}

bool copyWithCounts(const QString &path, const QString &copyPath, const SectionCounts &counts)
{
    QByteArray header;
    for (int order = 1; order <= 3; ++order) {
        header += "ngram " + QByteArray::number(order) + '=' +
                  QByteArray::number(counts.entries[order - 1] - counts.leftOut[order - 1]) + '\n';
    }
    QFile in(path);
    QFile out(copyPath);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        logError(QStringLiteral("Cannot copy the ARPA model %1 to %2: %3")
                     .arg(path, copyPath, in.isOpen() ? out.errorString() : in.errorString()));
        return false;
    }
    QByteArray line(copiedLineBytes, Qt::Uninitialized);
    for (qint64 size = 0; (size = in.readLine(line.data(), copiedLineBytes)) > 0;) {
        const QByteArray piece =
            QByteArray(line.constData(), size).replace(countPlaceholders, header);
        if (!writeAll(out, piece, QStringLiteral("ARPA model copy")))
            return false;
    }
    if (!in.atEnd() || !out.flush()) {
        logError(QStringLiteral("Cannot copy the ARPA model %1 to %2").arg(path, copyPath));
        return false;
    }
    return true;
}

} // namespace

bool writeArpa(const QString &path, const QByteArrayList &words, const TrigramModel &model)
{
    SectionCounts counts;
    if (!writeFile(path, arpaText(words, model, counts), QStringLiteral("ARPA model")))
        return false;
    const QString copyPath = path + QStringLiteral(".temp");
    if (!copyWithCounts(path, copyPath, counts))
        return false;
    if (!QFile::remove(path)) {
        logError(QStringLiteral("couldn't delete the file %1").arg(path));
        return false;
    }
    if (!QFile::rename(copyPath, path)) {
        logError(QStringLiteral("couldn't rename the file %1 to %2").arg(copyPath, path));
        return false;
    }
    return true;
}

} // namespace lm
