#include "AudioInputFactory.h"

#include "DeviceAudioInput.h"

#include <QAudioDevice>
#include <QMediaDevices>

namespace {
AudioInputFactory &replacedFactory()
{
    static AudioInputFactory factory;
    return factory;
}
} // namespace

AudioInputFactory defaultAudioInputFactory()
{
    if (replacedFactory())
        return replacedFactory();
    return [] {
        return std::make_unique<DeviceAudioInput>();
    };
}

void setDefaultAudioInputFactory(AudioInputFactory factory)
{
    replacedFactory() = std::move(factory);
}

bool hasDefaultAudioInput()
{
    return replacedFactory() || !QMediaDevices::defaultAudioInput().isNull();
}
