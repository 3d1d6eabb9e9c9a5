#pragma once

#include "AudioInput.h"

#include <QAudioDevice>

class QAudioSource;
class QIODevice;
class QMediaDevices;

/**
 * @brief The system's default microphone through QAudioSource, in the device's preferred
 * format: many devices offer only stereo, or only 44.1 or 48 kHz.
 *
 * A device unplugged while recording ends the take with failed().
 */
class DeviceAudioInput final : public AudioInput {
    Q_OBJECT
public:
    explicit DeviceAudioInput(QObject *parent = nullptr);
    ~DeviceAudioInput() override;
    DeviceAudioInput(const DeviceAudioInput &) = delete;
    DeviceAudioInput &operator=(const DeviceAudioInput &) = delete;

    QString start() override;
    void stop() override;
    [[nodiscard]] QAudioFormat format() const override { return m_format; }

private:
    void readAvailable();
    void checkState();

    QAudioFormat m_format;
    QAudioDevice m_device;
    QAudioSource *m_source{nullptr};
    QMediaDevices *m_devices{nullptr};
    QIODevice *m_io{nullptr};
    /// Bytes of a frame that arrived split across two reads.
    QByteArray m_pending;
};
