#pragma once

#include <mutex>

/// Whether the decoder library's own log goes to standard error (a developer switch, off in
/// normal use, shared by the whole process).
void setDecoderLogVerbose(bool on);

/**
 * @brief Held while a decoder starts: the library's log target is one global, set on every
 * start, and decoders start on more than one thread.
 */
class DecoderLogGuard {
public:
    DecoderLogGuard();

private:
    std::lock_guard<std::mutex> m_lock;
};
