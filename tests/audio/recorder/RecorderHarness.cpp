#include "RecorderHarness.h"

#include "AudioFixtures.h"
#include "audio/FileAudioInput.h"
#include "audio/VoAudioUtil.h"

#include <QTest>
#include <sndfile.h>

RecorderHarness::RecorderHarness()
    : recorder([this]() -> std::unique_ptr<AudioInput> {
        auto input = std::make_unique<FileAudioInput>(m_input);
        // Queued to the test's thread, where the count is read.
        QObject::connect(input.get(), &FileAudioInput::allDelivered, &m_context,
                         [this] { ++m_delivered; });
        return input;
    })
{}

RecorderHarness::RecorderHarness(AudioInputFactory make)
    : recorder(std::move(make))
{}

QString RecorderHarness::writeWav(const QString &name, int rate, int channels,
                                  const std::vector<int32_t> &interleaved) const
{
    const QString file = path(name);
    return AudioFixtures::writeSound(file, SF_FORMAT_WAV | SF_FORMAT_PCM_16, rate, channels,
                                     interleaved)
               ? file
               : QString();
}

bool RecorderHarness::waitDelivered(int count)
{
    return QTest::qWaitFor([&] { return m_delivered >= count; }, 10000);
}

bool RecorderHarness::waitFinished(int count)
{
    return QTest::qWaitFor([&] { return finished.count() >= count; }, 10000);
}

bool RecorderHarness::record(const QString &target)
{
    const int before = static_cast<int>(finished.count());
    recorder.recordPushed(target);
    if (!waitDelivered(m_delivered + 1))
        return false;
    recorder.stopPushed();
    return waitFinished(before + 1);
}

std::vector<int16_t> decodedSamples(const QString &path)
{
    AudioDataInfo record;
    if (VoAudioUtil::decodeAudioDataFromFile(path, record) != 0)
        return {};
    return VoAudioUtil::getAudioDataShortForByte(record);
}
