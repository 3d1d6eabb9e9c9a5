#include "Phrase2SpeakVC.h"

#include "content/AppCommon.h"
#include "content/ContentModel.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int maxMark = 10;

} // namespace

Phrase2SpeakVC::Phrase2SpeakVC(QObject *parent)
    : Phrase2SpeakVC(*QRandomGenerator::global(), parent)
{}

Phrase2SpeakVC::Phrase2SpeakVC(QRandomGenerator &random, QObject *parent)
    : BaseQuizViewController(random, parent)
{
    connect(this, &BaseQuizViewController::setupChanged, this, [this] {
        m_comparisons.assign(static_cast<std::size_t>(questionCount()), nullptr);
        m_marks.assign(static_cast<std::size_t>(questionCount()), -1);
    });
}

Phrase2SpeakVC::~Phrase2SpeakVC() = default;

bool Phrase2SpeakVC::checkMicrophone()
{
    return m_permission.check();
}

void Phrase2SpeakVC::beginRecordAction()
{
    if (finished() || !hasQuestions() || m_pressed)
        return;
    m_pressed = true;
    if (m_tipShown) {
        m_tipShown = false;
        Q_EMIT tipTextChanged();
    }
    m_audioRecorder.begin(*phraseInfos().at(currIndex()));
}

void Phrase2SpeakVC::endRecordAction()
{
    if (!std::exchange(m_pressed, false) || finished())
        return;
    // Every attempt replaces the mark, even one that could not be recorded.
    setCurrWordScore(0);
    std::shared_ptr<SpectrumCompView> comparison = m_audioRecorder.end();
    if (!comparison)
        return;
    inputPhraseInfos().at(currIndex())->soundPath = comparison->estimatedAudioFilePath();
    comparison->setTestedWordScoreVisible(false);
    const int question = currIndex();
    connect(comparison.get(), &SpectrumCompView::scoreChanged, this,
            [this, question, view = comparison.get()] {
                if (question != currIndex() || finished() ||
                    m_comparisons.at(static_cast<std::size_t>(question)).get() != view)
                    return;
                setCurrWordScore(std::clamp(view->score(), 0, maxMark));
                Q_EMIT markPendingChanged();
            });
    // Queued: the pop-up's close is still running in the comparison when it is dropped.
    connect(
        comparison.get(), &SpectrumCompView::closed, this,
        [this, view = comparison.get()] { dropPendingComparison(view); }, Qt::QueuedConnection);
    // The pop-up moves to the new comparison before the one it replaces goes.
    const std::shared_ptr<SpectrumCompView> previous =
        std::exchange(m_comparisons.at(static_cast<std::size_t>(question)), comparison);
    setShown(comparison.get());
    Q_EMIT markPendingChanged();
    Q_EMIT comparisonShown();
}

void Phrase2SpeakVC::submitAction()
{
    if (finished() || !hasQuestions() || markPending())
        return;
    m_marks.at(static_cast<std::size_t>(currIndex())) = m_currWordScore;
    checkCurrentAnswer();
    setCurrWordScore(0);
}

void Phrase2SpeakVC::showCurrentQuestion()
{
    setCurrText(foreignText(*phraseInfos().at(currIndex())));
    setShown(nullptr);
    Q_EMIT markPendingChanged();
}

bool Phrase2SpeakVC::markPending() const
{
    if (finished() || !hasQuestions() || currIndex() >= static_cast<int>(m_comparisons.size()))
        return false;
    const std::shared_ptr<SpectrumCompView> &current =
        m_comparisons.at(static_cast<std::size_t>(currIndex()));
    return current && !current->scored();
}

void Phrase2SpeakVC::dropPendingComparison(SpectrumCompView *comparison)
{
    if (finished() || !hasQuestions())
        return;
    std::shared_ptr<SpectrumCompView> &current =
        m_comparisons.at(static_cast<std::size_t>(currIndex()));
    if (current.get() != comparison || comparison->scored())
        return;
    inputPhraseInfos().at(currIndex())->soundPath.clear();
    setCurrWordScore(0);
    // The pop-up lets go of the comparison before it goes.
    setShown(nullptr);
    current.reset();
    Q_EMIT markPendingChanged();
}

void Phrase2SpeakVC::finishQuiz()
{
    m_pressed = false;
    m_audioRecorder.stop();
    BaseQuizViewController::finishQuiz();
    setShown(nullptr);
    showResults(false);
}

void Phrase2SpeakVC::viewWillDisappear()
{
    BaseQuizViewController::viewWillDisappear();
    m_pressed = false;
    m_audioRecorder.stop();
}

void Phrase2SpeakVC::showSpectrums(int row)
{
    if (!hasVoiceprint(row))
        return;
    setShown(m_comparisons.at(static_cast<std::size_t>(row)).get());
    Q_EMIT comparisonShown();
}

QString Phrase2SpeakVC::markText(int row) const
{
    if (row < 0 || row >= static_cast<int>(m_marks.size()) ||
        m_marks.at(static_cast<std::size_t>(row)) < 0)
        return QStringLiteral("-");
    return QStringLiteral("%1/%2").arg(m_marks.at(static_cast<std::size_t>(row))).arg(maxMark);
}

bool Phrase2SpeakVC::hasVoiceprint(int row) const
{
    return row >= 0 && row < static_cast<int>(m_comparisons.size()) &&
           m_comparisons.at(static_cast<std::size_t>(row)) != nullptr;
}

QString Phrase2SpeakVC::wordsText(int row) const
{
    return hasVoiceprint(row) ? m_comparisons.at(static_cast<std::size_t>(row))->wordsText()
                              : QString();
}

QString Phrase2SpeakVC::wordsAccessibleText(int row) const
{
    return hasVoiceprint(row)
               ? m_comparisons.at(static_cast<std::size_t>(row))->wordsAccessibleText()
               : QString();
}

QString Phrase2SpeakVC::tipText() const
{
    return m_tipShown ? tr("Tap and hold to speak.") : QString();
}

void Phrase2SpeakVC::setCurrWordScore(int score)
{
    if (m_currWordScore == score)
        return;
    m_currWordScore = score;
    Q_EMIT currWordScoreChanged();
}

void Phrase2SpeakVC::setShown(SpectrumCompView *comparison)
{
    if (m_shown == comparison)
        return;
    m_shown = comparison;
    Q_EMIT spectrumCompViewChanged();
}
