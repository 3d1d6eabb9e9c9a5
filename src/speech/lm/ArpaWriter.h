#pragma once

#include "WittenBellModel.h"

#include <QByteArrayList>
#include <QString>

namespace lm {

/**
 * Writes the model as an ARPA file at `path`; `words` are the vocabulary in id order.
 *
 * The n-grams that span two sentences are left out: 2-grams whose first word contains "</s>",
 * 3-grams whose first word contains "</s>" or whose last word contains "<s>". The header is first
 * written with count placeholders; once the file is complete it is copied to `path` + ".temp"
 * with the true counts (those written) put in, and the copy renamed over the original. The
 * counters belong to this call, so two models may be written at once. Logs each failure.
 */
bool writeArpa(const QString &path, const QByteArrayList &words, const TrigramModel &model);

} // namespace lm
