#include "SpeakingInput.h"
#include "app/AppPaths.h"
#include "app/PhraseCardVC.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"
#include "speaking/Phrase2SpeakVC.h"
#include "stubs/AudioPlayerStub.h"
#include "support/TestPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class SpeakQuizTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        setResourceRoot(TestPaths::course());
        AppPaths::setAcousticModelFolder(TestPaths::acousticModel());
    }

    void SetUp() override
    {
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
        ASSERT_TRUE(QDir(AppPaths::recordFolder()).removeRecursively());
    }

    /// A session of `count` questions from the first unit, shown as the screen shows it.
    void start(Phrase2SpeakVC &quiz, int count)
    {
        quiz.setupQuiz(count, u"Read Phrase"_s, u"1"_s, 600);
        quiz.viewDidLoad();
        ASSERT_EQ(quiz.questionCount(), count);
    }

    /// Holds the microphone while the whole file is heard, releases it, and waits for the
    /// comparison; returns it, or null when none was made.
    SpectrumCompView *speak(Phrase2SpeakVC &quiz, const QString &file)
    {
        input.setFile(file);
        const int heard = input.delivered();
        quiz.beginRecordAction();
        EXPECT_TRUE(input.waitDelivered(heard + 1));
        quiz.endRecordAction();
        SpectrumCompView *comparison = quiz.spectrumCompView();
        if (comparison) {
            QSignalSpy compared(comparison, &SpectrumCompView::compared);
            EXPECT_TRUE(compared.wait(120000)) << "no comparison came";
        }
        return comparison;
    }

    /// The course's own recording of the current question: a reading that should score.
    static QString modelVoice(const Phrase2SpeakVC &quiz)
    {
        return soundPath(*quiz.phraseInfos().at(quiz.currIndex()));
    }

    SpeakingInput input;
    AudioPlayerStubFactory players;
    QRandomGenerator random{7};
};

} // namespace

TEST(PhraseRecordingLevel, MapsDecibelsOntoTheMeter)
{
    EXPECT_EQ(PhraseRecording::levelFromPower(VoAudioRecorder::silencePower), 0.0);
    EXPECT_EQ(PhraseRecording::levelFromPower(-60.0F), 0.0);
    EXPECT_DOUBLE_EQ(PhraseRecording::levelFromPower(-30.0F), 0.5);
    EXPECT_DOUBLE_EQ(PhraseRecording::levelFromPower(0.0F), 1.0);
    EXPECT_DOUBLE_EQ(PhraseRecording::levelFromPower(6.0F), 1.0);
    EXPECT_EQ(PhraseRecording::levelFromPower(std::numeric_limits<float>::quiet_NaN()), 0.0);
}

TEST_F(SpeakQuizTest, TheMeterFollowsTheVoiceAndTheComparisonWaitsForTheWholeFile)
{
    Phrase2SpeakVC quiz(random);
    start(quiz, 10);
    PhraseRecording &recording = *quiz.recording();
    input.setFile(input.tone());
    // The recorder's own poll may take the last peak before the test's one.
    qreal loudest = 0.0;
    const QMetaObject::Connection meter =
        QObject::connect(&recording, &PhraseRecording::levelChanged, &recording,
                         [&] { loudest = std::max(loudest, recording.level()); });
    const auto stopMetering = qScopeGuard([&] { QObject::disconnect(meter); });
    quiz.beginRecordAction();
    ASSERT_TRUE(input.waitDelivered(1));
    recording.recorder().levelPoll();
    EXPECT_GT(loudest, 0.8) << "a half-scale tone is about -6 dB";

    quiz.endRecordAction();
    EXPECT_EQ(recording.level(), 0.0);
    SpectrumCompView *comparison = quiz.spectrumCompView();
    ASSERT_NE(comparison, nullptr);
    // The file is still being closed on the recording thread: recognising it now would read
    // half a file.
    EXPECT_FALSE(comparison->busy());
    EXPECT_EQ(comparison->estimatedAudioFilePath(), quiz.myVoicePath());
    EXPECT_FALSE(comparison->testedWordScoreVisible());
    QSignalSpy compared(comparison, &SpectrumCompView::compared);
    ASSERT_TRUE(compared.wait(120000));
    EXPECT_TRUE(QFileInfo(quiz.myVoicePath()).size() > 0);
}

TEST_F(SpeakQuizTest, SubmittedMarksMakeTheScoreAndTheLastSubmitEndsTheSession)
{
    Phrase2SpeakVC quiz(random);
    start(quiz, 3);
    EXPECT_EQ(quiz.tipText(), u"Tap and hold to speak."_s);
    const PhraseInfo &first = *quiz.phraseInfos().at(0);

    // Silence first: nothing is recognised, so nothing is earned.
    SpectrumCompView *silent = speak(quiz, input.silence());
    ASSERT_NE(silent, nullptr);
    EXPECT_EQ(quiz.tipText(), QString());
    EXPECT_EQ(quiz.currWordScore(), 0);
    EXPECT_EQ(quiz.myVoicePath(), AppPaths::recordFolder() + first.id + u".caf"_s);
    EXPECT_EQ(quiz.inputPhraseInfos().at(0)->soundPath, quiz.myVoicePath());

    // Reading it again, with the model's own voice, replaces that mark.
    SpectrumCompView *read = speak(quiz, modelVoice(quiz));
    ASSERT_NE(read, nullptr);
    ASSERT_NE(read, silent);
    ASSERT_TRUE(read->scored()) << qPrintable(read->errorText());
    const int firstMark = quiz.currWordScore();
    EXPECT_EQ(firstMark, read->score());
    EXPECT_GT(firstMark, 0);
    EXPECT_LE(firstMark, 10);
    EXPECT_EQ(quiz.score(), 0) << "a mark counts only once submitted";
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), firstMark);
    EXPECT_EQ(quiz.currWordScore(), 0);
    EXPECT_EQ(quiz.spectrumCompView(), nullptr) << "the next question has no comparison yet";

    // Submitted without a recording.
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), firstMark);
    EXPECT_EQ(quiz.progressText(), u"Progress: 2/3"_s);

    ASSERT_NE(speak(quiz, modelVoice(quiz)), nullptr);
    const int lastMark = quiz.currWordScore();
    quiz.submitAction();
    ASSERT_TRUE(quiz.finished());
    EXPECT_EQ(quiz.score(), firstMark + lastMark);
    EXPECT_LE(quiz.score(), 10 * quiz.questionCount());
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), quiz.score());
    EXPECT_EQ(quiz.progressText(), u"Progress: 3/3"_s);

    ASSERT_EQ(quiz.results()->rowCount(), 3);
    EXPECT_EQ(quiz.markText(0), u"%1/10"_s.arg(firstMark));
    EXPECT_EQ(quiz.markText(1), u"0/10"_s);
    EXPECT_EQ(quiz.markText(5), u"-"_s);
    EXPECT_FALSE(quiz.hasVoiceprint(1));
    QSignalSpy shown(&quiz, &Phrase2SpeakVC::comparisonShown);
    quiz.showSpectrums(1);
    EXPECT_EQ(shown.size(), 0);
    quiz.showSpectrums(0);
    ASSERT_EQ(shown.size(), 1);
    // The last reading, kept as it was: no new recognition.
    EXPECT_EQ(quiz.spectrumCompView(), read);
    EXPECT_FALSE(read->busy());
    EXPECT_EQ(read->score(), firstMark);
}

TEST_F(SpeakQuizTest, SubmitWaitsForTheMarkAndAComparisonClosedBeforeItLeavesTheQuestionUnread)
{
    Phrase2SpeakVC quiz(random);
    start(quiz, 3);
    const auto release = [&] {
        input.setFile(modelVoice(quiz));
        const int heard = input.delivered();
        quiz.beginRecordAction();
        EXPECT_TRUE(input.waitDelivered(heard + 1));
        quiz.endRecordAction();
        return quiz.spectrumCompView();
    };
    SpectrumCompView *first = release();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(quiz.markPending());
    quiz.submitAction();
    EXPECT_EQ(quiz.currIndex(), 0) << "Submit waits for the mark";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !quiz.markPending(); }, 120000));
    EXPECT_TRUE(first->scored());
    const int mark = quiz.currWordScore();
    EXPECT_GT(mark, 0);
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), mark);

    // Read, then the pop-up closed (Escape) before the mark came: no reading is kept, and the
    // mark that comes later goes nowhere.
    SpectrumCompView *closed = release();
    ASSERT_NE(closed, nullptr);
    closed->closeAction();
    QSignalSpy pending(&quiz, &Phrase2SpeakVC::markPendingChanged);
    ASSERT_TRUE(pending.wait(5000));
    EXPECT_FALSE(quiz.markPending());
    EXPECT_EQ(quiz.spectrumCompView(), nullptr);
    EXPECT_TRUE(quiz.inputPhraseInfos().at(1)->soundPath.isEmpty());
    ASSERT_TRUE(QTest::qWaitFor([&] { return closed->scored(); }, 120000));
    EXPECT_EQ(quiz.currWordScore(), 0);
    quiz.submitAction();
    quiz.submitAction();
    ASSERT_TRUE(quiz.finished());
    EXPECT_EQ(quiz.score(), mark);
    EXPECT_FALSE(quiz.hasVoiceprint(1));
}

TEST_F(SpeakQuizTest, ARecordingThatCannotBeMadeScoresZeroAndTheQuizGoesOn)
{
    Phrase2SpeakVC quiz(random);
    start(quiz, 10);

    // A mark earned, then an attempt that cannot start: the attempt still replaces it.
    ASSERT_NE(speak(quiz, modelVoice(quiz)), nullptr);
    ASSERT_GT(quiz.currWordScore(), 0);
    input.setFile(input.missing());
    QSignalSpy failed(&quiz.recording()->recorder(), &VoAudioRecorder::recordingFailed);
    quiz.beginRecordAction();
    ASSERT_TRUE(failed.wait(10000));
    EXPECT_FALSE(quiz.recording()->errorText().isEmpty());
    quiz.endRecordAction();
    EXPECT_EQ(quiz.currWordScore(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !quiz.markPending(); }, 120000));
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), 0);
    EXPECT_EQ(quiz.currIndex(), 1);

    // No folder to record into: a file stands where it should be.
    const QString folder = AppPaths::recordFolder();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    QFile blocker(QDir::cleanPath(folder));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    quiz.beginRecordAction();
    EXPECT_FALSE(quiz.recording()->recording());
    EXPECT_TRUE(quiz.recording()->errorText().contains(u"folder"_s));
    quiz.endRecordAction();
    EXPECT_EQ(quiz.spectrumCompView(), nullptr);
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), 0);
    EXPECT_EQ(quiz.currIndex(), 2);
    ASSERT_TRUE(QFile::remove(blocker.fileName()));

    // Leaving the screen mid-recording stops the recorder.
    input.setFile(input.tone());
    quiz.beginRecordAction();
    EXPECT_TRUE(quiz.recording()->recording());
    EXPECT_TRUE(quiz.recording()->errorText().isEmpty());
    quiz.viewWillDisappear();
    EXPECT_FALSE(quiz.recording()->recording());
    EXPECT_FALSE(quiz.isCountingDown());
}

TEST_F(SpeakQuizTest, ACardReadingIsCountedOnceAndRecordedOverTheSameFile)
{
    PhraseCardVC card;
    card.open(u"1"_s, 0);
    ASSERT_TRUE(card.hasPhrase());
    AudioPlayerStub *phrasePlayer = players.last;
    ASSERT_NE(phrasePlayer, nullptr);
    const qint64 readsBefore = userInfoInt(UserInfoKey::readCount);
    const PhraseInfo &phrase = *loadPhrases(u"1"_s)->at(0);
    const QString file = AppPaths::recordFolder() + phrase.id + u".caf"_s;

    card.endRecord();
    EXPECT_EQ(userInfoInt(UserInfoKey::readCount), readsBefore) << "a release without a press";

    for (int attempt = 1; attempt <= 2; ++attempt) {
        input.setFile(attempt == 1 ? input.tone() : input.silence());
        phrasePlayer->play();
        ASSERT_TRUE(card.beginRecord());
        EXPECT_FALSE(phrasePlayer->isPlaying()) << "the phrase falls silent";
        EXPECT_EQ(card.myVoicePath(), file);
        ASSERT_TRUE(input.waitDelivered(attempt));
        card.endRecord();
        card.endRecord();
        EXPECT_EQ(userInfoInt(UserInfoKey::readCount), readsBefore + attempt);
        SpectrumCompView *comparison = card.recording()->comparison();
        ASSERT_NE(comparison, nullptr);
        EXPECT_FALSE(comparison->testedWordScoreVisible()) << "the cards show no mark";
        EXPECT_EQ(comparison->estimatedAudioFilePath(), file);
        QSignalSpy compared(comparison, &SpectrumCompView::compared);
        ASSERT_TRUE(compared.wait(120000));
        EXPECT_GT(QFileInfo(file).size(), 0);
    }
    EXPECT_EQ(QDir(AppPaths::recordFolder()).entryList(QDir::Files),
              QStringList{phrase.id + u".caf"_s});
}
