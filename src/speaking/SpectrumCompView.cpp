#include "SpectrumCompView.h"

#include "ComparisonSteps.h"
#include "ReadingFeedback.h"
#include "SpeechWorker.h"
#include "app/AppPaths.h"
#include "app/Preferences.h"
#include "app/ScoreText.h"
#include "content/AppCommon.h"

#include <algorithm>

namespace {

/// The phrase's model recording. The store fills it in on the first request, which needs the
/// phrase object the store owns and hands out for changing.
QString recordingOf(const PhraseInfo &phrase)
{
    if (!phrase.soundPath.isEmpty())
        return phrase.soundPath;
    if (const QList<PhraseInfo *> *phrases = loadPhrases(phrase.categoryId)) {
        const auto owned = std::find(phrases->cbegin(), phrases->cend(), &phrase);
        if (owned != phrases->cend())
            return soundPath(**owned);
    }
    return {};
}

} // namespace

SpectrumCompView::SpectrumCompView(QObject *parent)
    : QObject(parent)
{
    m_standardSpectrumPanel.setTag(standardPanelTag);
    m_estimatedSpectrumPanel.setTag(estimatedPanelTag);
    for (VoSpectrumPanel *panel : {&m_standardSpectrumPanel, &m_estimatedSpectrumPanel})
        connect(panel, &VoSpectrumPanel::playPreHandle, this, &SpectrumCompView::playPreHandle);
}

// Jobs still on the speech worker hold copies of what they need, and their results are dropped
// once this object is gone.
SpectrumCompView::~SpectrumCompView() = default;

void SpectrumCompView::setPhrase(const PhraseInfo &phrase)
{
    setStandardText(foreignText(phrase));
    m_standardPhon = phrase.phon;
    setTranslateText(translation(phrase, Preferences::instance().languageType()));
    setStandardAudioFilePath(recordingOf(phrase));
}

void SpectrumCompView::runComparison()
{
    if (m_busy)
        return;
    m_score = 0;
    m_scored = false;
    m_advices.clear();
    m_verification = {};
    Q_EMIT scoreChanged();
    setErrorText({});
    setBusy(true);

    ComparisonRequest request;
    request.text = m_standardText;
    request.ipa = m_standardPhon;
    request.model.languageModelPath = m_languageModelPath;
    request.model.dictionaryPath = m_dictionaryPath;
    request.modelFolder = AppPaths::languageModelFolder();
    request.acousticModelPath = AppPaths::acousticModelFolder();
    SpeechWorker &worker = SpeechWorker::instance();

    // The learner's recording first, so that the mark shows before the model's spectrum.
    request.recordingPath = m_estimatedAudioFilePath;
    worker.post(
        this, [request] { return compareRecording(request); },
        [this, path = request.recordingPath](const RecordingComparison &comparison) {
            showEstimated(path, comparison);
        });
    request.recordingPath = m_standardAudioFilePath;
    worker.post(
        this, [request] { return compareRecording(request); },
        [this, path = request.recordingPath](const RecordingComparison &comparison) {
            showStandard(path, comparison);
        });
}

void SpectrumCompView::showEstimated(const QString &recordingPath,
                                     const RecordingComparison &comparison)
{
    storeModel(comparison);
    switch (comparison.failure) {
    case RecordingComparison::Failure::None:
        m_estimatedSpectrumPanel.setSpectrum(recordingPath, comparison.spectrum);
        m_score = comparison.assessment.mark;
        m_advices = comparison.assessment.advices;
        m_verification = comparison.assessment.verification;
        if (m_advices.contains(QStringLiteral("no_voice")))
            setErrorText(tr("No voice was heard in your recording."));
        break;
    case RecordingComparison::Failure::Model:
        setErrorText(tr("This phrase cannot be compared: its speech model could not be made."));
        break;
    case RecordingComparison::Failure::MissingRecording:
        setErrorText(tr("Your recording could not be found."));
        break;
    case RecordingComparison::Failure::EmptyRecording:
        setErrorText(tr("Your recording is empty."));
        break;
    case RecordingComparison::Failure::UnreadableRecording:
        setErrorText(tr("Your recording could not be read, or it is longer than a minute."));
        break;
    }
    m_scored = true;
    Q_EMIT scoreChanged();
}

void SpectrumCompView::showStandard(const QString &recordingPath,
                                    const RecordingComparison &comparison)
{
    storeModel(comparison);
    if (comparison.failure == RecordingComparison::Failure::None)
        m_standardSpectrumPanel.setSpectrum(recordingPath, comparison.spectrum);
    else if (m_errorText.isEmpty())
        setErrorText(tr("The original voice could not be read."));
    setBusy(false);
    Q_EMIT compared();
}

void SpectrumCompView::storeModel(const RecordingComparison &comparison)
{
    if (!comparison.model.succeeded())
        return;
    setLanguageModelPath(comparison.model.languageModelPath);
    setDictionaryPath(comparison.model.dictionaryPath);
}

void SpectrumCompView::playPreHandle(AudioPlayer * /*player*/, VoSpectrumPanel *panel)
{
    if (!panel)
        return;
    VoSpectrumPanel *running = nullptr;
    VoSpectrumPanel *other = nullptr;
    if (panel->tag() == standardPanelTag) {
        running = &m_standardSpectrumPanel;
        other = &m_estimatedSpectrumPanel;
    } else if (panel->tag() == estimatedPanelTag) {
        running = &m_estimatedSpectrumPanel;
        other = &m_standardSpectrumPanel;
    } else {
        return;
    }
    running->setNeedRun(true);
    other->setNeedRun(false);
    other->initPlay();
}

void SpectrumCompView::closeAction()
{
    m_standardSpectrumPanel.stopPlay();
    m_estimatedSpectrumPanel.stopPlay();
    Q_EMIT closed();
}

QString SpectrumCompView::scoreStyledText() const
{
    return ScoreText::styled(tr("Score"), m_score, 10, true);
}

QString SpectrumCompView::wordsText() const
{
    return ReadingFeedback::colouredPhrase(m_standardText, m_verification);
}

QString SpectrumCompView::wordsAccessibleText() const
{
    return ReadingFeedback::spokenVerdicts(m_verification);
}

QString SpectrumCompView::tipText() const
{
    return ReadingFeedback::tip(m_verification);
}

QColor SpectrumCompView::scoreColor() const
{
    return ScoreText::color(m_score, 10);
}

void SpectrumCompView::setStandardText(const QString &text)
{
    if (m_standardText == text)
        return;
    m_standardText = text;
    Q_EMIT fieldsChanged();
}

void SpectrumCompView::setStandardAudioFilePath(const QString &path)
{
    if (m_standardAudioFilePath == path)
        return;
    m_standardAudioFilePath = path;
    Q_EMIT fieldsChanged();
}

void SpectrumCompView::setLanguageModelPath(const QString &path)
{
    if (m_languageModelPath == path)
        return;
    m_languageModelPath = path;
    Q_EMIT fieldsChanged();
}

void SpectrumCompView::setDictionaryPath(const QString &path)
{
    if (m_dictionaryPath == path)
        return;
    m_dictionaryPath = path;
    Q_EMIT fieldsChanged();
}

void SpectrumCompView::setEstimatedAudioFilePath(const QString &path)
{
    if (m_estimatedAudioFilePath == path)
        return;
    m_estimatedAudioFilePath = path;
    Q_EMIT fieldsChanged();
}

void SpectrumCompView::setTranslateText(const QString &text)
{
    if (m_translateText == text)
        return;
    m_translateText = text;
    Q_EMIT fieldsChanged();
}

void SpectrumCompView::setTestedWordScoreVisible(bool visible)
{
    if (m_testedWordScoreVisible == visible)
        return;
    m_testedWordScoreVisible = visible;
    Q_EMIT testedWordScoreVisibleChanged();
}

void SpectrumCompView::setBusy(bool busy)
{
    if (m_busy == busy)
        return;
    m_busy = busy;
    Q_EMIT busyChanged();
}

void SpectrumCompView::setErrorText(const QString &text)
{
    if (m_errorText == text)
        return;
    m_errorText = text;
    Q_EMIT errorTextChanged();
}
