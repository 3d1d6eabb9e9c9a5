#pragma once

#include <QString>
#include <QUrl>

/// @brief Where the app sends its learners outside itself: the store and the feedback mail.
namespace AppConfig {
/// The version the rating prompt counts uses for; the project's version.
[[nodiscard]] QString appVersion();
/// The app's id in the store.
[[nodiscard]] QString appId();
[[nodiscard]] QString feedbackAddress();
/// The store's write-a-review page of this app.
[[nodiscard]] QUrl reviewPageUrl();
/// A new mail to the feedback address, its subject naming the app and its version.
[[nodiscard]] QUrl feedbackMailUrl();
} // namespace AppConfig
