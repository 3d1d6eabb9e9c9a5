#pragma once

#include <QFile>
#include <QString>
#include <memory>
#include <sndfile.h>
#include <soxr.h>

/// @brief One owner per libsndfile and libsoxr handle; each frees its handle once.
namespace audio {

struct SndfileClose {
    void operator()(SNDFILE *file) const { sf_close(file); }
};
struct SoxrDelete {
    void operator()(soxr *resampler) const { soxr_delete(resampler); }
};

using SndfilePtr = std::unique_ptr<SNDFILE, SndfileClose>;
using SoxrPtr = std::unique_ptr<soxr, SoxrDelete>;

/// Null on failure, with the reason in sf_error(nullptr) and sf_strerror(nullptr).
[[nodiscard]] inline SndfilePtr openSoundFile(const QString &path, int mode, SF_INFO &info)
{
    return SndfilePtr(sf_open(QFile::encodeName(path).constData(), mode, &info));
}

} // namespace audio
