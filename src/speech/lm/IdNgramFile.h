#pragma once

#include "VocabularyFile.h"

#include <QString>
#include <array>
#include <optional>
#include <vector>

namespace lm {

/// @brief Three word ids in text order and how often they stand there together.
struct IdTrigram {
    std::array<WordId, 3> ids{};
    quint32 count{0};
};

/// Sorts by ids and merges records of the same ids into one, adding their counts.
void sortAndMerge(std::vector<IdTrigram> &trigrams);

/**
 * The id n-gram file: one 16-byte record per 3-gram, the three word ids then the count, each a
 * 32-bit big-endian unsigned number. Writing logs its failure.
 */
bool writeIdNgrams(const QString &path, const std::vector<IdTrigram> &trigrams);
/// Logs and gives nothing when the file cannot be read or is not made of whole records.
[[nodiscard]] std::optional<std::vector<IdTrigram>> readIdNgrams(const QString &path);

} // namespace lm
