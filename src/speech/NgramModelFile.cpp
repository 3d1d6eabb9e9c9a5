#include "NgramModelFile.h"

#include <QFile>

namespace sphinx {

NgramModelPtr readNgramModel(const QString &path, ngram_file_type_t type)
{
    // The model keeps its own reference to the log table, so ours can go when we return.
    const LogmathPtr logmath(logmath_init(1.0001, 0, 0));
    return NgramModelPtr(
        ngram_model_read(nullptr, QFile::encodeName(path).constData(), type, logmath.get()));
}

} // namespace sphinx
