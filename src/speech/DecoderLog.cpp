#include "DecoderLog.h"

#include <atomic>
#include <cstdio>
#include <sphinxbase/err.h>

namespace {

std::atomic<bool> verbose{false};

std::mutex &startLock()
{
    static std::mutex lock;
    return lock;
}

} // namespace

void setDecoderLogVerbose(bool on)
{
    verbose = on;
}

DecoderLogGuard::DecoderLogGuard()
    : m_lock(startLock())
{
    err_set_logfp(verbose ? stderr : nullptr);
}
