#pragma once

#include "AudioFixtures.h"
#include "audio/AudioInputFactory.h"
#include "audio/FileAudioInput.h"

#include <QMutex>
#include <QMutexLocker>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>
#include <sndfile.h>

/**
 * @brief The microphone replaced, for recorders made while it lives, by a sound file: each
 * recording hears the file chosen last, as fast as it can be read, then silence.
 *
 * A test waits for the whole file to be heard before it releases the button, so the recording
 * holds all of it.
 */
class SpeakingInput {
public:
    SpeakingInput()
    {
        setDefaultAudioInputFactory([this]() -> std::unique_ptr<AudioInput> {
            auto input = std::make_unique<FileAudioInput>(file());
            // Queued to the test's thread, where the count is read.
            QObject::connect(input.get(), &FileAudioInput::allDelivered, &m_context,
                             [this] { ++m_delivered; });
            return input;
        });
    }
    ~SpeakingInput() { setDefaultAudioInputFactory({}); }
    SpeakingInput(const SpeakingInput &) = delete;
    SpeakingInput &operator=(const SpeakingInput &) = delete;

    void setFile(const QString &path)
    {
        const QMutexLocker lock(&m_mutex);
        m_file = path;
    }

    /// Waits until `count` files in all have been heard to their end.
    bool waitDelivered(int count) const
    {
        return QTest::qWaitFor([&] { return m_delivered >= count; }, 10000);
    }
    [[nodiscard]] int delivered() const { return m_delivered; }

    /// One second of 16 kHz mono: silent, or a loud tone.
    [[nodiscard]] QString silence() const { return write(QStringLiteral("silence.wav"), 0.0); }
    [[nodiscard]] QString tone() const { return write(QStringLiteral("tone.wav"), 0.5); }
    [[nodiscard]] QString missing() const { return m_folder.filePath(QStringLiteral("no.wav")); }

private:
    [[nodiscard]] QString file() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_file;
    }

    [[nodiscard]] QString write(const QString &name, double gain) const
    {
        const QString path = m_folder.filePath(name);
        const bool written =
            AudioFixtures::writeSound(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1,
                                      AudioFixtures::tone(16000, 1.0, 440.0, {gain}));
        return written ? path : QString();
    }

    QTemporaryDir m_folder;
    mutable QMutex m_mutex;
    QString m_file;
    QObject m_context;
    int m_delivered{0};
};
