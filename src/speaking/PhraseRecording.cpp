#include "PhraseRecording.h"

#include "app/AppPaths.h"
#include "content/ContentModel.h"
#include "content/VoLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>
#include <algorithm>
#include <utility>

PhraseRecording::PhraseRecording(QObject *parent)
    : QObject(parent)
{
    connect(&m_recorder, &VoAudioRecorder::recordingChanged, this, [this] {
        if (!m_recorder.isRecording())
            setLevel(0.0);
        Q_EMIT recordingChanged();
    });
    connect(&m_recorder, &VoAudioRecorder::periodicTimeObserver, this,
            [this](float powerVal, float) { setLevel(levelFromPower(powerVal)); });
    connect(&m_recorder, &VoAudioRecorder::recordingFailed, this, &PhraseRecording::setErrorText);
    connect(&m_recorder, &VoAudioRecorder::recorderDidFinishRecording, this, [this] {
        ++m_finished;
        compareWhenRecorded();
    });
}

PhraseRecording::~PhraseRecording() = default;

QString PhraseRecording::recordPath(const PhraseInfo &phrase)
{
    return AppPaths::recordFolder() + phrase.id + QStringLiteral(".caf");
}

qreal PhraseRecording::levelFromPower(float powerVal)
{
    if (!(powerVal > quietPower))
        return 0.0;
    return std::min(1.0, static_cast<qreal>(powerVal - quietPower) / -quietPower);
}

QString PhraseRecording::begin(const PhraseInfo &phrase)
{
    if (m_recorder.isRecording())
        return {};
    const QString path = recordPath(phrase);
    if (!QDir(QFileInfo(path).path()).exists()) {
        VoLog::write(lcApp(), VoLog::Error,
                     QStringLiteral("cannot make the record folder for %1").arg(path));
        setErrorText(tr("Your voice cannot be recorded: there is no folder to keep it in."));
        return {};
    }
    // An attempt that fails to start must not leave the previous attempt to be compared, and an
    // attempt not yet compared is superseded: its file is about to be overwritten.
    QFile::remove(path);
    m_waiting.reset();
    setErrorText(QString());
    m_phrase = &phrase;
    m_path = path;
    m_recorder.recordPushed(path);
    ++m_started;
    return path;
}

std::shared_ptr<SpectrumCompView> PhraseRecording::end()
{
    m_recorder.stopPushed();
    if (!m_phrase)
        return nullptr;
    auto comparison = std::make_shared<SpectrumCompView>();
    // Owned here and by the screens that keep it; QML only borrows it.
    QQmlEngine::setObjectOwnership(comparison.get(), QQmlEngine::CppOwnership);
    comparison->setPhrase(*m_phrase);
    comparison->setEstimatedAudioFilePath(m_path);
    m_phrase = nullptr;
    // The views showing the previous comparison move to this one before it goes.
    const std::shared_ptr<SpectrumCompView> previous = std::exchange(m_comparison, comparison);
    m_waiting = comparison;
    m_waitingFor = m_started;
    Q_EMIT comparisonChanged();
    // The report may already be in, when the recording could not start at all.
    compareWhenRecorded();
    return comparison;
}

void PhraseRecording::stop()
{
    m_recorder.stopPushed();
}

void PhraseRecording::compareWhenRecorded()
{
    if (m_waiting && m_finished >= m_waitingFor)
        std::exchange(m_waiting, nullptr)->runComparison();
}

void PhraseRecording::setLevel(qreal level)
{
    if (qFuzzyCompare(1.0 + m_level, 1.0 + level))
        return;
    m_level = level;
    Q_EMIT levelChanged();
}

void PhraseRecording::setErrorText(const QString &text)
{
    if (m_errorText == text)
        return;
    m_errorText = text;
    Q_EMIT errorTextChanged();
}
