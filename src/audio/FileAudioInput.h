#pragma once

#include "AudioHandles.h"
#include "AudioInput.h"

/**
 * @brief Plays a sound file into the recorder as if a microphone heard it, so that the whole
 * recording path runs without one.
 *
 * The frames arrive as 16-bit samples at the file's own rate and channel count, in chunks, as
 * fast as the recording thread takes them; after the last chunk the input stays open and
 * silent, as a microphone in a quiet room would, until it is stopped.
 */
class FileAudioInput final : public AudioInput {
    Q_OBJECT
public:
    explicit FileAudioInput(QString path, QObject *parent = nullptr);

    QString start() override;
    void stop() override;
    [[nodiscard]] QAudioFormat format() const override { return m_format; }

Q_SIGNALS:
    /// Every frame of the file has been delivered.
    void allDelivered();

private:
    void deliverChunk();

    QString m_path;
    audio::SndfilePtr m_file;
    QAudioFormat m_format;
};
