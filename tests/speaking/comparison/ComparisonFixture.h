#pragma once

#include "content/AppCommon.h"
#include "speaking/SpectrumCompView.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

/// A phrase of the sample course, found by category and id; null (and a failure) when missing.
inline PhraseInfo *coursePhrase(const QString &categoryId, const QString &id)
{
    const QList<PhraseInfo *> *phrases = loadPhrases(categoryId);
    if (phrases) {
        for (PhraseInfo *phrase : *phrases) {
            if (phrase->id == id)
                return phrase;
        }
    }
    ADD_FAILURE() << "no phrase " << qPrintable(id) << " in category " << qPrintable(categoryId);
    return nullptr;
}

/// Runs the comparison and waits for it to end; false when it did not end in time.
inline bool compare(SpectrumCompView &view)
{
    QSignalSpy compared(&view, &SpectrumCompView::compared);
    view.runComparison();
    return compared.wait(120000);
}
