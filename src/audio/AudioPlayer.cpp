#include "AudioPlayer.h"

namespace {

AudioPlayerFactory &installedFactory()
{
    static AudioPlayerFactory factory;
    return factory;
}

} // namespace

std::unique_ptr<AudioPlayer> makeAudioPlayer(const QString &path)
{
    if (installedFactory())
        return installedFactory()(path);
    return nullptr;
}

void setAudioPlayerFactory(AudioPlayerFactory factory)
{
    installedFactory() = std::move(factory);
}
