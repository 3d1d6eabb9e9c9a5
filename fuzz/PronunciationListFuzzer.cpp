#include "FuzzSupport.h"
#include "speech/PronunciationList.h"
#include "speech/WordOrder.h"

#include <QTemporaryDir>

// A pronunciation list as the acoustic-model build and the reading check read it: the
// dictionary the lookup list is made from, and the lookup list itself.

namespace {

const QString &listPath()
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("list.dict"));
    return path;
}

bool sameEntries(const QList<Pronunciation> &a, const QList<Pronunciation> &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [](const Pronunciation &x, const Pronunciation &y) {
                          return x.word == y.word && x.alternate == y.alternate &&
                                 x.phones == y.phones;
                      });
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // The sort below is quadratic at worst in the collator's cost; longer lists add nothing.
    if (size > 16384 || !fuzz::writeFile(listPath(), fuzz::bytesOf(data, size)))
        return 0;
    QString error;
    auto list = readPronunciationDictionary(listPath(), error);
    if (!list) {
        fuzz::check(!error.isEmpty());
        return 0;
    }
    for (const Pronunciation &entry : *list) {
        fuzz::check(!entry.word.isEmpty() && !entry.phones.isEmpty());
        fuzz::check(entry.alternate >= 1);
        fuzz::check(!entry.phones.startsWith(QLatin1Char(' ')) &&
                    !entry.phones.endsWith(QLatin1Char(' ')));
    }
    sortForLookup(*list);
    for (qsizetype i = 1; i < list->size(); ++i)
        fuzz::check(compareWords((*list)[i - 1].word, (*list)[i].word) <= 0);

    // The lookup list the build writes reads back as the entries it was made from.
    const QByteArray text = lookupListText(*list);
    if (!fuzz::writeFile(listPath(), text))
        return 0;
    const auto again = readPronunciationDictionary(listPath(), error);
    fuzz::check(again && sameEntries(*again, *list));
    return 0;
}
