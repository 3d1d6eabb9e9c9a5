#pragma once

#include "QuizResultModel.h"

#include <QColor>
#include <QObject>
#include <QRandomGenerator>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqmlregistration.h>
#include <chrono>
#include <deque>
#include <memory>

class AudioPlayer;
class CategoryInfo;
class PhraseInfo;

/**
 * @brief One timed quiz session, shared by every quiz kind: the drawn questions, the learner's
 * answers, the four options of a question, the countdown, progress and score, and the end that
 * records the session and fills the result table.
 *
 * A kind derives from it, shows its questions (showCurrentQuestion) and fills the result table
 * when the session ends (finishQuiz, then showResults). The views the session drives are state
 * here: the option area is optionTexts/optionImages with selectedOption, the labels are the
 * *Text properties, the playing result row is an index into the result table.
 *
 * Every draw comes from one random source, so a test that seeds it fixes the session.
 */
class BaseQuizViewController : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString titleText READ titleText NOTIFY setupChanged)
    Q_PROPERTY(bool hasQuestions READ hasQuestions NOTIFY setupChanged)
    /// Why there is nothing to answer; empty when there is.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY setupChanged)
    Q_PROPERTY(int questionCount READ questionCount NOTIFY setupChanged)
    Q_PROPERTY(int currIndex READ currIndex NOTIFY currIndexChanged)
    Q_PROPERTY(QString currText READ currText NOTIFY currTextChanged)
    Q_PROPERTY(QStringList optionTexts READ optionTexts NOTIFY optionsChanged)
    /// The options' pictures as file URLs, empty where a phrase has none.
    Q_PROPERTY(QStringList optionImages READ optionImages NOTIFY optionsChanged)
    /// The marked option, -1 while none is.
    Q_PROPERTY(int selectedOption READ selectedOption NOTIFY selectedOptionChanged)
    Q_PROPERTY(int progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(int score READ score NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(QString scoreText READ scoreText NOTIFY progressChanged)
    /// The score text with its digits coloured (rich text for a label).
    Q_PROPERTY(QString scoreStyledText READ scoreStyledText NOTIFY progressChanged)
    Q_PROPERTY(QColor scoreColor READ scoreColor NOTIFY progressChanged)
    Q_PROPERTY(QString limitedTimeText READ limitedTimeText NOTIFY limitedTimeTextChanged)
    Q_PROPERTY(QString quizStatusText READ quizStatusText NOTIFY finishedChanged)
    Q_PROPERTY(bool finished READ finished NOTIFY finishedChanged)
    Q_PROPERTY(QuizResultModel *results READ results CONSTANT)
    Q_PROPERTY(qreal resultRowH READ resultRowH NOTIFY resultRowHChanged)
    Q_PROPERTY(qreal minRowH READ minRowH CONSTANT)
    Q_PROPERTY(qreal outerMargin READ outerMargin CONSTANT)
    Q_PROPERTY(qreal fontSize READ fontSize CONSTANT)
    Q_PROPERTY(qreal btnWidth READ btnWidth CONSTANT)
    Q_PROPERTY(qreal btnHeight READ btnHeight CONSTANT)
    Q_PROPERTY(int margin READ margin CONSTANT)
    Q_PROPERTY(QColor currTextColor READ currTextColor CONSTANT)
    Q_PROPERTY(QColor seperatedColor READ seperatedColor CONSTANT)
    Q_PROPERTY(QColor optionBgColor READ optionBgColor CONSTANT)
    Q_PROPERTY(QColor selectedOptionBgColor READ selectedOptionBgColor CONSTANT)
    Q_PROPERTY(QString timeFontFamily READ timeFontFamily CONSTANT)

public:
    // Layout constants, in points of the 320 x 568 design.
    [[nodiscard]] static constexpr qreal outerMargin() { return 10.0; }
    /// Text size of option and answer texts.
    [[nodiscard]] static constexpr qreal fontSize() { return 20.0; }
    /// Size of small square buttons.
    [[nodiscard]] static constexpr qreal btnWidth() { return 40.0; }
    [[nodiscard]] static constexpr qreal btnHeight() { return 40.0; }
    /// Inner spacing.
    [[nodiscard]] static constexpr int margin() { return 2; }
    /// A listening quiz plays its phrase this long after the question appears.
    static constexpr std::chrono::milliseconds playDelay{1500};

    explicit BaseQuizViewController(QObject *parent = nullptr);
    /// Draws questions, options and their order from the source, which must outlive the session.
    explicit BaseQuizViewController(QRandomGenerator &random, QObject *parent = nullptr);
    ~BaseQuizViewController() override;

    /// Draws itemsCount questions from the category, or from all phrases when the id is empty,
    /// and gives each an empty answer. Too few phrases or an unknown category leave the session
    /// without questions (emptyText says so). A time of 0 or below means 60 seconds.
    Q_INVOKABLE void setupQuiz(int itemsCount, const QString &titleText, const QString &categoryId,
                               float limitedTime);
    /// Shows the first question and starts the countdown; nothing without questions.
    Q_INVOKABLE void viewDidLoad();
    /// Marks an option as the answer to the current question; nothing is scored yet.
    Q_INVOKABLE void selectOption(int tag);
    /// Scores the current answer and moves on.
    Q_INVOKABLE virtual void submitAction();
    /// Plays the current question's phrase from its start.
    Q_INVOKABLE void playAction();
    /// One tenth of a second of the countdown; the session ends when no time is left.
    Q_INVOKABLE void tick();
    /// Plays a result row's phrase and highlights the row until it has been heard.
    Q_INVOKABLE void playClickedItem(int row);
    /// The result table's height in design points; rows take an eleventh of it, at least
    /// minRowH.
    Q_INVOKABLE void setResultTableHeight(qreal height);
    /// For leaving the screen: no countdown, no sound. Nothing is recorded for an unfinished
    /// session.
    Q_INVOKABLE virtual void viewWillDisappear();

    [[nodiscard]] CategoryInfo *categoryInfo() const { return m_categoryInfo; }
    [[nodiscard]] int itemsCount() const { return m_itemsCount; }
    [[nodiscard]] const QString &titleText() const { return m_titleText; }
    [[nodiscard]] const QList<PhraseInfo *> &phraseInfos() const { return m_phraseInfos; }
    [[nodiscard]] const QList<PhraseInfo *> &currOptions() const { return m_currOptions; }
    [[nodiscard]] const QList<PhraseInfo *> &inputPhraseInfos() const { return m_inputPhraseInfos; }
    [[nodiscard]] bool hasQuestions() const { return !m_phraseInfos.isEmpty(); }
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] int questionCount() const { return static_cast<int>(m_phraseInfos.size()); }
    [[nodiscard]] int currIndex() const { return m_currIndex; }
    [[nodiscard]] const QString &currText() const { return m_currText; }
    [[nodiscard]] QStringList optionTexts() const;
    [[nodiscard]] QStringList optionImages() const;
    [[nodiscard]] int selectedOption() const { return m_selectedOption; }
    [[nodiscard]] int progress() const { return m_progress; }
    [[nodiscard]] int score() const { return m_score; }
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] QString scoreText() const;
    [[nodiscard]] QString scoreStyledText() const;
    /// The colour of the score's digits: green from 80 %, orange from 50 %, else red.
    [[nodiscard]] QColor scoreColor() const;
    [[nodiscard]] float limitedTime() const { return m_limitedTime; }
    [[nodiscard]] const QString &limitedTimeText() const { return m_limitedTimeText; }
    [[nodiscard]] QString quizStatusText() const;
    [[nodiscard]] bool finished() const { return m_finished; }
    [[nodiscard]] bool isCountingDown() const { return m_quizzTimer.isActive(); }
    [[nodiscard]] QuizResultModel *results() { return &m_results; }
    [[nodiscard]] qreal resultRowH() const { return m_resultRowH; }
    [[nodiscard]] qreal minRowH() const { return m_minRowH; }
    /// The result row whose phrase is playing, -1 when none.
    [[nodiscard]] int currPlayItemView() const { return m_currPlayItemView; }
    [[nodiscard]] AudioPlayer *audioPlayer() const { return m_audioPlayer.get(); }

    [[nodiscard]] static QColor currTextColor() { return QColor::fromRgbF(0.1F, 0.1F, 0.1F); }
    [[nodiscard]] static QColor seperatedColor()
    {
        return QColor::fromRgbF(0.8F, 0.8F, 0.8F, 0.8F);
    }
    [[nodiscard]] static QColor optionBgColor() { return QColor::fromRgb(25, 44, 66); }
    /// The phone's system orange.
    [[nodiscard]] static QColor selectedOptionBgColor() { return QColor::fromRgb(255, 149, 0); }
    /// The highlight of a result row while its phrase plays.
    [[nodiscard]] static QColor playingRowColor() { return QColor::fromRgb(210, 105, 30); }
    /// "DBLCDTempBlack" where it is installed, else the system's fixed-width font.
    [[nodiscard]] static QString timeFontFamily();

Q_SIGNALS:
    void setupChanged();
    void currIndexChanged();
    void currTextChanged();
    void optionsChanged();
    void selectedOptionChanged();
    void progressChanged();
    void limitedTimeTextChanged();
    void finishedChanged();
    void resultRowHChanged();

protected:
    /// Shows the question at currIndex.
    virtual void showCurrentQuestion() = 0;
    /// Ends the session: countdown and sound stop, status "Over", the session is recorded.
    /// A kind calls this first, then showResults.
    virtual void finishQuiz();

    /// Draws the four options of a question from the question source; the phrase itself takes a
    /// random slot unless a phrase of equal content was drawn.
    void fillOptions(PhraseInfo &phrase, bool isMotherLang);
    /// Scores the current answer (answerPoints), then shows the next question or ends the
    /// session.
    void checkCurrentAnswer();
    /// What the current answer earns: 10 when right, else 0, unless a kind marks otherwise.
    [[nodiscard]] virtual int answerPoints() const;
    /// A typed answer to the current question, kept as its answer's foreign text as typed.
    void setTypedAnswer(const QString &text);
    void setCurrText(const QString &text);
    /// Plays the current phrase after playDelay, even when the learner has moved on meanwhile:
    /// it then plays the question shown by then.
    void playActionLater();
    void stopAudio();
    /// Fills the result table: a row per question in asking order.
    void showResults(bool foreign2Mother);
    [[nodiscard]] QRandomGenerator &random() { return *m_random; }

private:
    void loadQuizPhrases();
    [[nodiscard]] const QList<PhraseInfo *> &questionSource() const;
    void updateProgressText(int n);
    void updateScoreText(int s);
    void setLimitedTimeText(const QString &text);
    void cancelDelayedPlays();
    void audioPlayerDidFinishPlaying();
    void restorePlayedRow();

    CategoryInfo *m_categoryInfo{nullptr};
    int m_itemsCount{10};
    QString m_titleText;
    QList<PhraseInfo *> m_phraseInfos;
    QList<PhraseInfo *> m_currOptions;
    QList<PhraseInfo *> m_inputPhraseInfos;
    bool m_currOptionsMotherLang{false};
    int m_selectedOption{-1};
    int m_currIndex{0};
    QString m_currText;
    int m_progress{0};
    int m_score{0};
    std::unique_ptr<AudioPlayer> m_audioPlayer;
    QTimer m_quizzTimer;
    float m_limitedTime;
    QString m_limitedTimeText;
    bool m_finished{false};
    int m_currPlayItemView{-1};
    QColor m_currPlayItemOrgBgColor;
    qreal m_resultRowH{40.0};
    qreal m_minRowH;

    QRandomGenerator *m_random;
    QString m_unknownCategoryId;
    QuizResultModel m_results;
    /// The answer placeholders: empty phrases, one per question, owned by the session.
    std::deque<std::unique_ptr<PhraseInfo>> m_placeholders;
    /// Parent of the pending delayed plays; replacing it cancels them all.
    std::unique_ptr<QObject> m_delayedPlays;
};
