#include "app/AppPaths.h"
#include "app/PhraseCardVC.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "audio/AudioInputFactory.h"
#include "audio/FileAudioInput.h"
#include "audio/MicrophonePermission.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"
#include "practice/EndOfSpeech.h"
#include "practice/ShadowingVC.h"
#include "quiz/QuizUiTest.h"
#include "speaking/Phrase2SpeakVC.h"
#include "support/TestPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

/// The microphone is the sound file chosen last, read as fast as it can be, then silence.
class SpeakQuizTest : public QuizUiTest {
protected:
    SpeakQuizTest()
    {
        setDefaultAudioInputFactory([this]() -> std::unique_ptr<AudioInput> {
            const std::lock_guard lock(mutex);
            auto input = std::make_unique<FileAudioInput>(voice);
            // Queued to the test's thread, where the count is read.
            QObject::connect(input.get(), &FileAudioInput::allDelivered, &context,
                             [this] { ++heard; });
            return input;
        });
    }
    ~SpeakQuizTest() override { setDefaultAudioInputFactory({}); }

    void speak(const QString &file)
    {
        const std::lock_guard lock(mutex);
        voice = file;
    }
    [[nodiscard]] bool waitHeard(int count) const
    {
        return QTest::qWaitFor([&] { return heard >= count; }, 10000);
    }

    [[nodiscard]] bool popup(const char *state = "visible") const
    {
        const QObject *popUp = app.currentPage()->findChild<QObject *>(u"comparisonPopup"_s);
        return popUp->property(state).toBool();
    }

    void hold(bool down, const QString &button = u"microphoneButton"_s) const
    {
        QQuickItem *found = item(button);
        const QPoint centre = found->mapToScene(found->boundingRect().center()).toPoint();
        if (down)
            QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, centre);
        else
            QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier, centre);
    }

    void key(QEvent::Type type, bool autoRepeat) const
    {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, u" "_s, autoRepeat);
        QCoreApplication::sendEvent(app.window(), &event);
    }

    void closePopup() const
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return popup("opened"); }));
        QTest::keyClick(app.window(), Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !popup(); }));
    }

    // A standard mutex: ThreadSanitizer sees it, unlike QMutex.
    std::mutex mutex;
    QString voice;
    QObject context;
    int heard{0};
    const QString missing = u"/no/such/recording.wav"_s;
};

} // namespace

TEST(PhraseRecordingLevel, MapsDecibelsOntoTheMeter)
{
    const QList<float> powers{VoAudioRecorder::silencePower,          -60.0F, -30.0F, 0.0F, 6.0F,
                              std::numeric_limits<float>::quiet_NaN()};
    const QList<qreal> levels{0.0, 0.0, 0.5, 1.0, 1.0, 0.0};
    for (qsizetype i = 0; i < powers.size(); ++i)
        EXPECT_DOUBLE_EQ(PhraseRecording::levelFromPower(powers[i]), levels[i]) << powers[i];
}

TEST_F(SpeakQuizTest, ASessionReadAloudIsMarkedOnScreenAndCountedInTheRecord)
{
    Preferences::instance().setTestDuration(600.0F); // no time-out while a slow build recognises
    const qint64 quizzes = userInfoInt(UserInfoKey::quizCount);
    const qint64 total = userInfoInt(UserInfoKey::quizTotalScore);
    app.tapCentre(findItem(app.currentPage(), u"quizzesButton"_s));
    ASSERT_TRUE(app.waitForDepth(2));
    app.tapCentre(findItem(app.currentPage(), u"quizButton4"_s));
    ASSERT_TRUE(app.waitForDepth(3));
    auto *quiz = app.currentPage()->findChild<Phrase2SpeakVC *>();
    ASSERT_NE(quiz, nullptr);
    const auto modelVoice = [&](int question) {
        return soundPath(*quiz->phraseInfos().at(question));
    };
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Read Phrase"_s);
    EXPECT_EQ(text(u"questionLbl"_s), foreignText(*quiz->phraseInfos().at(0)));
    EXPECT_EQ(text(u"tipLbl"_s), u"Tap and hold to speak."_s);
    EXPECT_EQ(item(u"scoreLbl"_s)->opacity(), 0.0) << "this quiz shows progress only";
    EXPECT_FALSE(item(u"levelMeter"_s)->isVisible());

    // Held with the mouse while the phrase's own recording is heard: the meter moves meanwhile.
    speak(modelVoice(0));
    qreal loudest = 0.0;
    const QObject meter; // goes before `loudest` does
    QObject::connect(quiz->recording(), &PhraseRecording::levelChanged, &meter,
                     [&] { loudest = std::max(loudest, quiz->recording()->level()); });
    hold(true);
    ASSERT_TRUE(quiz->recording()->recording());
    ASSERT_TRUE(waitHeard(1));
    quiz->recording()->recorder().levelPoll();
    EXPECT_GT(loudest, 0.0);
    EXPECT_TRUE(item(u"levelMeter"_s)->isVisible());
    EXPECT_FALSE(item(u"tipLbl"_s)->isVisible());
    EXPECT_FALSE(app.screenshot(u"speak-quiz-question"_s).isNull());
    hold(false);
    SpectrumCompView *first = quiz->spectrumCompView();
    ASSERT_NE(first, nullptr);
    // Submit waits for the mark, on screen and in the controller.
    EXPECT_FALSE(item(u"submitBtn"_s)->isEnabled());
    quiz->submitAction();
    EXPECT_EQ(quiz->currIndex(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return popup(); }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return first->scored() && !first->busy(); }, 120000));
    EXPECT_GE(first->score(), 7) << "the model's own voice, heard whole through the recorder";
    EXPECT_EQ(quiz->currWordScore(), first->score());
    EXPECT_TRUE(item(u"submitBtn"_s)->isEnabled());
    closePopup();
    app.tapCentre(item(u"submitBtn"_s));

    // Held with Space; the key's auto-repeat (a release and a press each time) is one hold.
    speak(modelVoice(1));
    key(QEvent::KeyPress, false);
    ASSERT_TRUE(quiz->recording()->recording());
    ASSERT_TRUE(waitHeard(2));
    key(QEvent::KeyRelease, true);
    key(QEvent::KeyPress, true);
    EXPECT_TRUE(quiz->recording()->recording());
    EXPECT_EQ(quiz->spectrumCompView(), nullptr);
    key(QEvent::KeyRelease, false);
    ASSERT_NE(quiz->spectrumCompView(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return quiz->spectrumCompView()->scored(); }, 120000));
    EXPECT_EQ(heard, 2) << "one recording for the whole hold";
    EXPECT_GE(quiz->currWordScore(), 7) << "another phrase, on its own model";
    closePopup();
    // An attempt that cannot record still replaces that mark.
    speak(missing);
    hold(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return item(u"recordingErrorLbl"_s)->isVisible(); }));
    hold(false);
    EXPECT_EQ(quiz->currWordScore(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !quiz->markPending(); }, 120000));
    closePopup();
    app.tapCentre(item(u"submitBtn"_s));
    EXPECT_EQ(quiz->currIndex(), 2);

    // Read, then the pop-up closed before the mark came: the question is left unread.
    speak(modelVoice(2));
    const int before = heard;
    hold(true);
    ASSERT_TRUE(waitHeard(before + 1));
    hold(false);
    SpectrumCompView *closed = quiz->spectrumCompView();
    ASSERT_NE(closed, nullptr);
    closePopup();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !quiz->markPending(); }));
    EXPECT_FALSE(closed->scored());
    EXPECT_EQ(quiz->spectrumCompView(), nullptr);
    EXPECT_TRUE(item(u"submitBtn"_s)->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return closed->scored(); }, 120000));
    EXPECT_EQ(quiz->currWordScore(), 0) << "the late mark goes nowhere";
    app.tapCentre(item(u"submitBtn"_s));

    // No folder to record into: a file stands where it should be.
    const QString folder = QDir::cleanPath(AppPaths::recordFolder());
    ASSERT_TRUE(QDir(folder).removeRecursively());
    QFile blocker(folder);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    hold(true);
    EXPECT_FALSE(quiz->recording()->recording());
    EXPECT_TRUE(text(u"recordingErrorLbl"_s).contains(u"folder"_s));
    hold(false);
    EXPECT_EQ(quiz->spectrumCompView(), nullptr);
    ASSERT_TRUE(QFile::remove(folder));

    for (int question = 3; question < 10; ++question)
        app.tapCentre(item(u"submitBtn"_s));
    ASSERT_TRUE(quiz->finished());
    EXPECT_FALSE(item(u"microphoneButton"_s)->isVisible());
    EXPECT_EQ(quiz->score(), first->score());
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzes + 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), total + first->score());

    QQuickItem *table = item(u"resultTable"_s);
    ASSERT_TRUE(table->isVisible());
    QQuickItem *row = AppWindow::listRow(table, 0);
    EXPECT_EQ(findItem(row, u"testTextLbl"_s)->property("text").toString(),
              u"%1/10"_s.arg(first->score()));
    EXPECT_EQ(findItem(row, u"srcTextLbl"_s)->property("text").toString(), first->wordsText());
    EXPECT_EQ(findItem(AppWindow::listRow(table, 1), u"testTextLbl"_s)->property("text").toString(),
              u"0/10"_s);
    EXPECT_FALSE(findItem(AppWindow::listRow(table, 2), u"showVoiceprintButton"_s)->isVisible());
    EXPECT_FALSE(app.screenshot(u"speak-quiz-results"_s).isNull());
    // A row shows its last reading again, as it was: nothing is recognised anew.
    app.tapCentre(findItem(AppWindow::listRow(table, 0), u"showVoiceprintButton"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return popup(); }));
    EXPECT_EQ(quiz->spectrumCompView(), first);
    EXPECT_FALSE(first->busy());
}

TEST_F(SpeakQuizTest, ACardReadingIsComparedWithoutAMarkAndCountedOnce)
{
    auto *card =
        pushQuiz<PhraseCardVC>(u"PhraseCardPage.qml"_s, u"categoryId: \"1\", phraseIndex: 0"_s);
    ASSERT_NE(card, nullptr);
    PhraseInfo &phrase = *loadPhrases(u"1"_s)->at(0);
    const qint64 reads = userInfoInt(UserInfoKey::readCount);
    app.tapCentre(item(u"playButton"_s));
    AudioPlayerStub *phrasePlayer = players.last;
    ASSERT_TRUE(phrasePlayer && phrasePlayer->isPlaying());
    speak(soundPath(phrase));
    hold(true, u"recordButton"_s);
    EXPECT_FALSE(phrasePlayer->isPlaying()) << "the phrase falls silent";
    ASSERT_TRUE(waitHeard(1));
    hold(false, u"recordButton"_s);
    card->endRecord();
    EXPECT_EQ(userInfoInt(UserInfoKey::readCount), reads + 1) << "once a reading";
    ASSERT_TRUE(QTest::qWaitFor([&] { return popup(); }));
    SpectrumCompView *comparison = card->recording()->comparison();
    ASSERT_NE(comparison, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !comparison->busy(); }, 120000));
    EXPECT_GE(comparison->score(), 7);
    EXPECT_FALSE(findItem(app.window()->contentItem(), u"testedWordScoreLbl"_s)->isVisible())
        << "cards show no mark";
    EXPECT_FALSE(app.screenshot(u"phrase-card-comparison"_s).isNull());
    closePopup();

    // An input that fails says so under the card.
    speak(missing);
    hold(true, u"recordButton"_s);
    hold(false, u"recordButton"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return item(u"recordingErrorLbl"_s)->isVisible(); }));
}

TEST_F(SpeakQuizTest, WithoutAMicrophoneTheAlertOffersTheSoundSettings)
{
    int opened = 0;
    MicrophonePermission permission([] { return false; }, [&] { ++opened; });
    ASSERT_TRUE(permission.check());
    const std::unique_ptr<QObject> alert = app.createView(
        u"MicrophoneAlert.qml"_s, {{u"permission"_s, QVariant::fromValue(&permission)}});
    ASSERT_TRUE(alert);
    QMetaObject::invokeMethod(alert.get(), "open");
    ASSERT_TRUE(QTest::qWaitFor([&] { return alert->property("opened").toBool(); }));
    QQuickItem *root = app.window()->contentItem();
    EXPECT_EQ(findItem(root, u"microphoneAlertMessage"_s)->property("text").toString(),
              u"Microphone Access Denied"_s);
    EXPECT_FALSE(app.screenshot(u"microphone-alert"_s).isNull());
    app.tapCentre(findItem(root, u"microphoneAlertSettings"_s));
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !alert->property("visible").toBool(); }));
}

// Each row: the levels heard every 0.05 s, and the poll at which the take ends (-1: never).
TEST(EndOfSpeech, ATakeEndsAfterQuietThatFollowsSpeechOrAtTheCap)
{
    struct Take {
        const char *what;
        QList<float> levels;
        int endsAt;
        EndOfSpeech::Verdict verdict;
    };
    const auto run = [](float level, int polls) {
        return QList<float>(polls, level);
    };
    const QList<Take> takes{
        {"speech then digital silence", run(-10, 10) + run(-160, 20), 23,
         EndOfSpeech::Verdict::Finished},
        {"a click is not speech", run(-10, 2) + run(-160, 60), 39, EndOfSpeech::Verdict::CappedOff},
        {"a noisy room goes quiet once the voice stood out",
         run(-35, 10) + run(-8, 10) + run(-35, 20), 33, EndOfSpeech::Verdict::Finished},
        {"a quiet room's murmur is not speech", run(-50, 60), 39, EndOfSpeech::Verdict::CappedOff},
        {"still speaking at the cap", run(-12, 60), 39, EndOfSpeech::Verdict::CappedOff},
    };
    for (const Take &take : takes) {
        EndOfSpeech detector(2.0);
        int endedAt = -1;
        EndOfSpeech::Verdict verdict = EndOfSpeech::Verdict::Listening;
        for (int poll = 0; poll < take.levels.size() && endedAt < 0; ++poll) {
            verdict = detector.feed(take.levels.at(poll), 0.05);
            if (verdict != EndOfSpeech::Verdict::Listening)
                endedAt = poll;
        }
        EXPECT_EQ(endedAt, take.endsAt) << take.what;
        EXPECT_EQ(verdict, take.verdict) << take.what;
    }
}

// The whole category: each phrase sounds, the learner's take (the phrase's own recording through
// the file microphone) ends by itself when they fall silent, is marked and counted, and the next
// phrase follows without a tap; Space pauses and resumes the phrase under way.
TEST_F(SpeakQuizTest, ShadowingRunsACategoryHandsFreeMarkingAndCountingEveryTake)
{
    players.finishAtOnce = true;
    const qint64 readings = userInfoInt(UserInfoKey::readCount);
    app.tapCentre(AppWindow::listRow(item(u"categoryList"_s), 0));
    ASSERT_TRUE(app.waitForDepth(2));
    const QString categoryId = app.currentPage()->property("categoryId").toString();
    const QList<PhraseInfo *> &phrases = *loadPhrases(categoryId);
    speak(soundPath(*phrases.at(0)));
    app.tapCentre(findItem(app.window()->contentItem(), u"shadowButton"_s));
    ASSERT_TRUE(app.waitForDepth(3));
    auto *shadowing = app.currentPage()->findChild<ShadowingVC *>();
    ASSERT_NE(shadowing, nullptr);
    shadowing->setShowMilliseconds(10);
    QObject::connect(shadowing, &ShadowingVC::phraseChanged, &context,
                     [&] { speak(soundPath(*phrases.at(shadowing->currentIndex()))); });
    QList<int> marks;
    QObject::connect(shadowing, &ShadowingVC::marked, &context, [&] {
        marks.append(shadowing->recording()->comparison()->score());
        if (marks.size() == 1)
            (void)app.screenshot(u"shadowing-mark"_s);
    });

    // Paused while the second phrase is being said, then resumed: that phrase starts again.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return shadowing->currentIndex() == 1 &&
                   shadowing->stage() == ShadowingVC::Stage::Speaking;
        },
        30000));
    QTest::keyClick(app.window(), Qt::Key_Space);
    EXPECT_TRUE(shadowing->paused());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shadowing->recording()->recording(); }));
    EXPECT_EQ(textOf(app.currentPage(), u"pauseButton"_s), u"Resume"_s);
    (void)app.screenshot(u"shadowing-paused"_s);
    app.tapCentre(findItem(app.currentPage(), u"pauseArea"_s));
    EXPECT_FALSE(shadowing->paused());
    EXPECT_EQ(shadowing->currentIndex(), 1);

    ASSERT_TRUE(QTest::qWaitFor([&] { return shadowing->stage() == ShadowingVC::Stage::Finished; },
                                120000 * testSlowdown()));
    EXPECT_EQ(marks.size(), phrases.size());
    for (int mark : std::as_const(marks))
        EXPECT_GE(mark, 7) << "a phrase's own recording said back";
    EXPECT_EQ(userInfoInt(UserInfoKey::readCount), readings + phrases.size());
}
