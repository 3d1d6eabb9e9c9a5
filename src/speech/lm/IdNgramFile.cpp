#include "IdNgramFile.h"

#include "LmFiles.h"
#include "LmLog.h"

#include <QtEndian>
#include <algorithm>

namespace lm {

namespace {

constexpr qsizetype fieldBytes = 4;
constexpr qsizetype recordBytes = 4 * fieldBytes;

} // namespace

void sortAndMerge(std::vector<IdTrigram> &trigrams)
{
    std::sort(trigrams.begin(), trigrams.end(),
              [](const IdTrigram &a, const IdTrigram &b) { return a.ids < b.ids; });
    if (trigrams.empty())
        return;
    auto last = trigrams.begin();
    for (auto it = std::next(last); it != trigrams.end(); ++it) {
        if (it->ids == last->ids)
            last->count += it->count;
        else
            *++last = *it;
    }
    trigrams.erase(std::next(last), trigrams.end());
}

bool writeIdNgrams(const QString &path, const std::vector<IdTrigram> &trigrams)
{
    QByteArray bytes(static_cast<qsizetype>(trigrams.size()) * recordBytes, Qt::Uninitialized);
    char *field = bytes.data();
    for (const IdTrigram &trigram : trigrams) {
        for (WordId id : trigram.ids) {
            qToBigEndian(id, field);
            field += fieldBytes;
        }
        qToBigEndian(trigram.count, field);
        field += fieldBytes;
    }
    return writeFile(path, bytes, QStringLiteral("id n-grams"));
}

std::optional<std::vector<IdTrigram>> readIdNgrams(const QString &path)
{
    const auto bytes = readFile(path, QStringLiteral("id n-grams"));
    if (!bytes)
        return std::nullopt;
    if (bytes->size() % recordBytes != 0) {
        logError(QStringLiteral("The id n-gram file %1 is damaged: %2 bytes are not whole "
                                "16-byte records")
                     .arg(path)
                     .arg(bytes->size()));
        return std::nullopt;
    }
    std::vector<IdTrigram> trigrams(static_cast<size_t>(bytes->size() / recordBytes));
    const char *field = bytes->constData();
    for (IdTrigram &trigram : trigrams) {
        for (WordId &id : trigram.ids) {
            id = qFromBigEndian<WordId>(field);
            field += fieldBytes;
        }
        trigram.count = qFromBigEndian<quint32>(field);
        field += fieldBytes;
    }
    return trigrams;
}

} // namespace lm
