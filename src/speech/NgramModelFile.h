#pragma once

#include "SphinxHandles.h"

#include <QString>

namespace sphinx {

/// The n-gram model in the file, or nullptr when SphinxBase cannot read it as that type.
/// Scores use SphinxBase's usual log base, 1.0001.
[[nodiscard]] NgramModelPtr readNgramModel(const QString &path, ngram_file_type_t type);

} // namespace sphinx
