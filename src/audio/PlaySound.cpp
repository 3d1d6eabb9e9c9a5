#include "PlaySound.h"

#include "app/Preferences.h"

std::unique_ptr<AudioPlayer> playSound(const QString &path, int loops)
{
    auto player = makeAudioPlayer(path);
    if (!player)
        return nullptr;
    player->setNumberOfLoops(loops);
    player->setVolume(1.0F);
    // The preference never reads as 0 or below: such a value comes back as the default 1.0.
    player->setRate(Preferences::instance().playSpeed());
    player->play();
    return player;
}
