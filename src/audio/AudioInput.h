#pragma once

#include "AudioInputFactory.h"

#include <QAudioFormat>
#include <QByteArray>
#include <QObject>
#include <QString>

/**
 * @brief Where recorded sound comes from: the microphone, or a file in tests.
 *
 * An input lives on the thread that records, and delivers interleaved PCM in the format it
 * reports, which is whatever the source offers: any rate, any channel count, any sample type.
 */
class AudioInput : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Starts delivering frames; on failure returns the reason, else an empty text.
    virtual QString start() = 0;
    virtual void stop() = 0;
    /// Valid once start() has succeeded.
    [[nodiscard]] virtual QAudioFormat format() const = 0;

Q_SIGNALS:
    /// Whole frames in format().
    void frames(const QByteArray &pcm);
    /// The input stopped by itself, e.g. the device went away; says why.
    void failed(const QString &reason);
};
