#include "VoCommandArray.h"

QStringList VoCommandArray::commandArrayForLanguageModel(const QString &languageModelPath,
                                                         const QString &dictionaryPath,
                                                         const QString &acousticModelPath,
                                                         bool isJSGF) const
{
    // A grammar already forbids what it does not allow, so it needs less of the language
    // weight than an n-gram model does.
    const double languageWeight = isJSGF ? 3.0 : 6.5;
    return {
        isJSGF ? QStringLiteral("-jsgf") : QStringLiteral("-lm"),
        languageModelPath,
        QStringLiteral("-beam"),
        QStringLiteral("1e-96"),
        QStringLiteral("-dict"),
        dictionaryPath,
        QStringLiteral("-fwdflatbeam"),
        QStringLiteral("1e-128"),
        QStringLiteral("-hmm"),
        acousticModelPath,
        QStringLiteral("-lw"),
        QString::asprintf("%f", languageWeight),
        QStringLiteral("-samprate"),
        QString::number(sampleRate),
    };
}
