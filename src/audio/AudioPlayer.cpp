#include "AudioPlayer.h"

#include "TempoAudioPlayer.h"

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
    return TempoAudioPlayer::open(path, SoundDestination::defaultDevice);
}

void setAudioPlayerFactory(AudioPlayerFactory factory)
{
    installedFactory() = std::move(factory);
}
