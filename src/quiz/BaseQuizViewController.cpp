#include "BaseQuizViewController.h"

#include "QuizAnswer.h"
#include "QuizLog.h"
#include "app/Preferences.h"
#include "app/ScoreText.h"
#include "app/UserRecord.h"
#include "audio/PlaySound.h"
#include "content/AppCommon.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <QUrl>
#include <cmath>

namespace {

constexpr int optionCount = 4;
constexpr int pointsPerAnswer = 10;
const QList<PhraseInfo *> noPhrases;

float sanitizedTime(float seconds)
{
    return std::isfinite(seconds) && seconds > 0 ? seconds : Preferences::defaultTestDuration;
}

} // namespace

BaseQuizViewController::BaseQuizViewController(QObject *parent)
    : BaseQuizViewController(*QRandomGenerator::global(), parent)
{}

BaseQuizViewController::BaseQuizViewController(QRandomGenerator &random, QObject *parent)
    : QObject(parent)
    , m_limitedTime(Preferences::instance().testDuration())
    , m_limitedTimeText(formatDuration(m_limitedTime))
    , m_minRowH(Preferences::instance().languageType() == QStringLiteral("de") ? 80.0 : 100.0)
    , m_random(&random)
    , m_results(this)
    , m_delayedPlays(std::make_unique<QObject>())
{
    m_quizzTimer.setInterval(std::chrono::milliseconds(100));
    connect(&m_quizzTimer, &QTimer::timeout, this, &BaseQuizViewController::tick);
}

BaseQuizViewController::~BaseQuizViewController() = default;

void BaseQuizViewController::setupQuiz(int itemsCount, const QString &titleText,
                                       const QString &categoryId, float limitedTime)
{
    m_itemsCount = std::max(itemsCount, 0);
    m_titleText = titleText;
    m_categoryInfo = nullptr;
    m_unknownCategoryId.clear();
    if (!categoryId.isEmpty()) {
        m_categoryInfo = contentStore().category(categoryId);
        if (m_categoryInfo)
            loadPhrases(categoryId);
        else
            m_unknownCategoryId = categoryId;
    }
    m_limitedTime = sanitizedTime(limitedTime);
    setLimitedTimeText(formatDuration(m_limitedTime));
    loadQuizPhrases();

    m_inputPhraseInfos.clear();
    m_placeholders.clear();
    for (qsizetype i = 0; i < m_phraseInfos.size(); ++i) {
        // An empty phrase with no translations and no score: an unanswered question compares
        // as the empty text.
        m_placeholders.push_back(std::make_unique<PhraseInfo>());
        m_inputPhraseInfos.append(m_placeholders.back().get());
    }
    Q_EMIT setupChanged();
    updateProgressText(m_progress);
}

void BaseQuizViewController::loadQuizPhrases()
{
    m_phraseInfos.clear();
    if (!m_unknownCategoryId.isEmpty()) {
        VoLog::write(lcQuiz(), VoLog::Error,
                     QStringLiteral("No category \"%1\" to quiz").arg(m_unknownCategoryId));
        return;
    }
    const QList<PhraseInfo *> &source = questionSource();
    if (source.size() < m_itemsCount || m_itemsCount == 0) {
        VoLog::write(lcQuiz(), VoLog::Error,
                     QStringLiteral("%1 phrases are too few for a quiz of %2 questions")
                         .arg(source.size())
                         .arg(m_itemsCount));
        return;
    }
    m_phraseInfos = randomPick(source, m_itemsCount, random());
}

const QList<PhraseInfo *> &BaseQuizViewController::questionSource() const
{
    if (!m_categoryInfo)
        return m_unknownCategoryId.isEmpty() ? allPhrases() : noPhrases;
    return m_categoryInfo->phraseInfoList ? *m_categoryInfo->phraseInfoList : noPhrases;
}

void BaseQuizViewController::viewDidLoad()
{
    if (!hasQuestions() || m_finished || m_quizzTimer.isActive())
        return;
    showCurrentQuestion();
    m_quizzTimer.start();
}

QString BaseQuizViewController::emptyText() const
{
    if (hasQuestions())
        return {};
    if (!m_unknownCategoryId.isEmpty())
        return tr("This unit cannot be found, so there is nothing to answer.");
    return tr("A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.")
        .arg(m_itemsCount);
}

void BaseQuizViewController::fillOptions(PhraseInfo &phrase, bool isMotherLang)
{
    QList<PhraseInfo *> options = randomPick(questionSource(), optionCount, random());
    const bool drawn =
        std::any_of(options.cbegin(), options.cend(),
                    [&phrase](const PhraseInfo *p) { return p->content == phrase.content; });
    if (!drawn)
        options[static_cast<qsizetype>(random().bounded(static_cast<quint32>(optionCount)))] =
            &phrase;
    m_currOptions = options;
    m_currOptionsMotherLang = isMotherLang;
    Q_EMIT optionsChanged();
    if (m_selectedOption != -1) {
        m_selectedOption = -1;
        Q_EMIT selectedOptionChanged();
    }
}

QStringList BaseQuizViewController::optionTexts() const
{
    QStringList texts;
    for (const PhraseInfo *option : m_currOptions)
        texts.append(m_currOptionsMotherLang ? motherText(*option) : foreignText(*option));
    return texts;
}

QStringList BaseQuizViewController::optionImages() const
{
    QStringList images;
    for (const PhraseInfo *option : m_currOptions) {
        const QString path = imagePath(*option);
        images.append(QFileInfo::exists(path) ? QUrl::fromLocalFile(path).toString() : QString());
    }
    return images;
}

void BaseQuizViewController::selectOption(int tag)
{
    if (m_finished || tag < 0 || tag >= m_currOptions.size() || m_currIndex >= questionCount())
        return;
    m_inputPhraseInfos[m_currIndex] = m_currOptions.at(tag);
    if (m_selectedOption != tag) {
        m_selectedOption = tag;
        Q_EMIT selectedOptionChanged();
    }
}

void BaseQuizViewController::submitAction()
{
    checkCurrentAnswer();
}

void BaseQuizViewController::checkCurrentAnswer()
{
    if (m_finished || !hasQuestions())
        return;
    // Taken before the next question is shown, which may reset the kind's mark.
    m_score += answerPoints();
    if (m_currIndex < questionCount() - 1) {
        ++m_currIndex;
        Q_EMIT currIndexChanged();
        showCurrentQuestion();
    } else {
        finishQuiz();
    }
    ++m_progress;
    updateProgressText(m_progress);
    updateScoreText(m_score);
}

int BaseQuizViewController::answerPoints() const
{
    return isRightAnswer(*m_phraseInfos.at(m_currIndex), *m_inputPhraseInfos.at(m_currIndex))
               ? pointsPerAnswer
               : 0;
}

void BaseQuizViewController::setTypedAnswer(const QString &text)
{
    if (m_finished || m_currIndex >= questionCount())
        return;
    PhraseInfo &placeholder = *m_placeholders.at(static_cast<std::size_t>(m_currIndex));
    placeholder.trans.insert(QStringLiteral("de"), text);
    m_inputPhraseInfos[m_currIndex] = &placeholder;
}

void BaseQuizViewController::setCurrText(const QString &text)
{
    if (m_currText == text)
        return;
    m_currText = text;
    Q_EMIT currTextChanged();
}

// Both texts are made whole from the counters; the signal tells the views to read them again.
void BaseQuizViewController::updateProgressText(int n)
{
    m_progress = n;
    Q_EMIT progressChanged();
}

void BaseQuizViewController::updateScoreText(int s)
{
    m_score = s;
    Q_EMIT progressChanged();
}

QString BaseQuizViewController::progressText() const
{
    const QLocale digits;
    return ScoreText::labelled(
        tr("Progress"),
        QStringLiteral("%1/%2").arg(digits.toString(m_progress), digits.toString(questionCount())));
}

QString BaseQuizViewController::scoreText() const
{
    const QLocale digits;
    return ScoreText::labelled(
        tr("Score"),
        QStringLiteral("%1/%2").arg(digits.toString(m_score),
                                    digits.toString(pointsPerAnswer * questionCount())));
}

QString BaseQuizViewController::scoreStyledText() const
{
    return ScoreText::styled(tr("Score"), m_score, pointsPerAnswer * questionCount(), false);
}

QColor BaseQuizViewController::scoreColor() const
{
    return ScoreText::color(m_score, pointsPerAnswer * questionCount());
}

void BaseQuizViewController::tick()
{
    if (m_finished || !hasQuestions())
        return;
    m_limitedTime -= 0.1F;
    // The label changes about once a second, when the tenths have just passed a whole second.
    if (m_limitedTime - std::trunc(m_limitedTime) < 0.1F)
        setLimitedTimeText(formatDuration(m_limitedTime));
    if (m_limitedTime <= 0) {
        m_quizzTimer.stop();
        finishQuiz();
    }
}

void BaseQuizViewController::setLimitedTimeText(const QString &text)
{
    if (m_limitedTimeText == text)
        return;
    m_limitedTimeText = text;
    Q_EMIT limitedTimeTextChanged();
}

QString BaseQuizViewController::quizStatusText() const
{
    return m_finished ? tr("Over") : QString();
}

void BaseQuizViewController::finishQuiz()
{
    m_quizzTimer.stop();
    cancelDelayedPlays();
    stopAudio();
    m_finished = true;
    Q_EMIT finishedChanged();
    recordQuizResult(m_score);
}

void BaseQuizViewController::showResults(bool foreign2Mother)
{
    m_results.setResults(m_phraseInfos, m_inputPhraseInfos, foreign2Mother);
}

void BaseQuizViewController::setResultTableHeight(qreal height)
{
    const qreal rowH = std::max(height / 11.0, m_minRowH);
    if (qFuzzyCompare(rowH, m_resultRowH))
        return;
    m_resultRowH = rowH;
    Q_EMIT resultRowHChanged();
}

void BaseQuizViewController::playAction()
{
    if (m_finished || m_currIndex >= questionCount())
        return;
    stopAudio();
    m_audioPlayer = playSound(soundPath(*m_phraseInfos.at(m_currIndex)), 0);
}

void BaseQuizViewController::playActionLater()
{
    QTimer::singleShot(playDelay, m_delayedPlays.get(), [this] { playAction(); });
}

void BaseQuizViewController::cancelDelayedPlays()
{
    m_delayedPlays = std::make_unique<QObject>();
}

void BaseQuizViewController::stopAudio()
{
    if (m_audioPlayer)
        m_audioPlayer->stop();
}

void BaseQuizViewController::playClickedItem(int row)
{
    if (row < 0 || row >= m_results.rowCount())
        return;
    restorePlayedRow();
    m_currPlayItemOrgBgColor = m_results.rowColor(row);
    m_currPlayItemView = row;
    m_results.setRowColor(row, playingRowColor());
    stopAudio();
    m_audioPlayer = playSound(soundPath(*m_phraseInfos.at(row)), 0);
    // Without a recording nothing will end, so the highlight goes at once.
    if (!m_audioPlayer) {
        restorePlayedRow();
        return;
    }
    connect(m_audioPlayer.get(), &AudioPlayer::finished, this,
            &BaseQuizViewController::audioPlayerDidFinishPlaying);
}

void BaseQuizViewController::audioPlayerDidFinishPlaying()
{
    restorePlayedRow();
}

void BaseQuizViewController::restorePlayedRow()
{
    if (m_currPlayItemView < 0)
        return;
    m_results.setRowColor(m_currPlayItemView, m_currPlayItemOrgBgColor);
    m_currPlayItemView = -1;
}

void BaseQuizViewController::viewWillDisappear()
{
    m_quizzTimer.stop();
    cancelDelayedPlays();
    stopAudio();
}

QString BaseQuizViewController::timeFontFamily()
{
    const QString lcd = QStringLiteral("DBLCDTempBlack");
    return QFontDatabase::hasFamily(lcd)
               ? lcd
               : QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}
