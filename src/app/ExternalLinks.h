#pragma once

class QUrl;

/**
 * @brief The one way out of the app to the browser, the store or the mail program.
 *
 * Goes through QDesktopServices, so tests see the links through QDesktopServices::setUrlHandler
 * instead of starting a browser.
 */
namespace ExternalLinks {
/// False, with one log line, when nothing on the system could open the URL.
bool open(const QUrl &url);
} // namespace ExternalLinks
