#pragma once

#include "audio/AudioInputFactory.h"
#include "audio/VoAudioRecorder.h"

#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <atomic>
#include <cstdint>
#include <vector>

/**
 * @brief A recorder whose microphone is a sound file, in a temporary folder, with the waits the
 * tests need: the input has played its whole file, the recording's file is closed.
 */
class RecorderHarness {
public:
    RecorderHarness();
    /// Records from inputs that `make` returns instead of from the input file.
    explicit RecorderHarness(AudioInputFactory make);

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Writes interleaved 16-bit samples as a 16-bit WAV file in the folder.
    QString writeWav(const QString &name, int rate, int channels,
                     const std::vector<int32_t> &interleaved) const;
    /// The file the next recording hears.
    void setInput(const QString &wav) { m_input = wav; }

    /// Waits until the input has delivered its whole file, `count` files in all.
    bool waitDelivered(int count = 1);
    /// Waits until `count` recordings in all have reported their end.
    bool waitFinished(int count = 1);
    /// Records the whole input file to `target` and returns once the file is closed.
    bool record(const QString &target);

    VoAudioRecorder recorder;
    QSignalSpy finished{&recorder, &VoAudioRecorder::recorderDidFinishRecording};
    QSignalSpy failed{&recorder, &VoAudioRecorder::recordingFailed};
    QSignalSpy levels{&recorder, &VoAudioRecorder::periodicTimeObserver};

private:
    QTemporaryDir m_folder;
    QString m_input;
    QObject m_context;
    int m_delivered{0};
};

/// The 16-bit samples of a decoded recording, or none when it does not decode.
std::vector<int16_t> decodedSamples(const QString &path);
