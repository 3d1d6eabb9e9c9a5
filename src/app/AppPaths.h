#pragma once

#include <QString>

/// @brief The folders the app writes to. The app's data folder stands for the Documents folder.
namespace AppPaths {
/// Ends with "/".
[[nodiscard]] QString documentsFolder();
/// The learner's own recordings; ends with "/".
[[nodiscard]] QString recordFolder();
[[nodiscard]] QString userInfoPath();
/// Where the phrase models the recogniser needs are generated ("lm" in the data folder).
[[nodiscard]] QString languageModelFolder();
/// The recogniser's acoustic model and pronunciation list: "AcousticModelEnglish.bundle" beside
/// the executable, unless setAcousticModelFolder chose another.
[[nodiscard]] QString acousticModelFolder();
void setAcousticModelFolder(const QString &folder);
} // namespace AppPaths
