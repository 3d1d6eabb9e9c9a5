#include "speech/VoPSRecognizer.h"

#include <QLoggingCategory>
#include <QVariantMap>
#include <cmath>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>

// The scorer takes the decoder's words and the phrase's text as they come: any text a course
// may hold, and word results whose words and posteriors the decoder alone decides.

namespace {

// Words the decoder may report besides the phrase's own: fillers, boundaries, alternates.
const QStringList decoderWords = {
    QStringLiteral("<s>"),     QStringLiteral("</s>"),   QStringLiteral("<sil>"),
    QStringLiteral("[NOISE]"), QStringLiteral("++UM++"), QStringLiteral("HELLO(2)"),
    QStringLiteral(""),        QStringLiteral("(3)"),
};

QString pickWord(FuzzedDataProvider &input, const QStringList &phraseWords)
{
    if (!phraseWords.isEmpty() && input.ConsumeBool())
        return phraseWords[input.ConsumeIntegralInRange<qsizetype>(0, phraseWords.size() - 1)];
    if (input.ConsumeBool())
        return decoderWords[input.ConsumeIntegralInRange<qsizetype>(0, decoderWords.size() - 1)];
    return QString::fromStdString(input.ConsumeRandomLengthString(24));
}

QVariant pickPosterior(FuzzedDataProvider &input)
{
    switch (input.ConsumeIntegralInRange(0, 3)) {
    case 0:
        return input.ConsumeFloatingPoint<double>();
    case 1:
        return input.ConsumeProbability<double>();
    case 2:
        return QString::fromStdString(input.ConsumeRandomLengthString(8));
    default:
        return {};
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    // A log line per word would drown the fuzzer's own output.
    QLoggingCategory::setFilterRules(QStringLiteral("tolvane.*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const QString phrase = QString::fromStdString(input.ConsumeRandomLengthString(200));
    const QStringList phraseWords = VoPSRecognizer::getAllWordFromText(phrase, true);

    QList<QVariantMap> words;
    const int count = input.ConsumeIntegralInRange(0, 40);
    for (int i = 0; i < count && input.remaining_bytes() > 0; ++i)
        words.append({{QStringLiteral("word"), pickWord(input, phraseWords)},
                      {QStringLiteral("logProbability"), pickPosterior(input)}});

    QVariantMap advices;
    const float score = VoPSRecognizer::getScore(words, phrase, advices);
    if (std::isnan(score) || score < 0.0f || score > 100.0f)
        __builtin_trap();
    return 0;
}
