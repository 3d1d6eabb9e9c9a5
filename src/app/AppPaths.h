#pragma once

#include <QString>

/// @brief The folders the app writes to. The app's data folder stands for the Documents folder.
namespace AppPaths {
/// Ends with "/".
[[nodiscard]] QString documentsFolder();
/// The learner's own recordings; ends with "/".
[[nodiscard]] QString recordFolder();
[[nodiscard]] QString userInfoPath();
} // namespace AppPaths
