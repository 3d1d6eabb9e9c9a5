#pragma once

#include <QByteArrayView>
#include <functional>

class QIODevice;

namespace lm {

/**
 * Calls `onToken` with each token of the text in order. Tokens are runs of bytes between
 * white space (blank, tab, line break, vertical tab, form feed, carriage return) and NULs, so
 * any other byte belongs to a token and line structure plays no part. The device is read
 * in chunks, so memory stays flat however long the text. False, after logging, when the device
 * cannot be read.
 */
bool forEachToken(QIODevice &text, const std::function<void(QByteArrayView)> &onToken);

} // namespace lm
