#include "AudioFixtures.h"
#include "ComparisonFixture.h"
#include "app/AppPaths.h"
#include "app/Preferences.h"
#include "app/ScoreText.h"
#include "support/TestPaths.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <sndfile.h>

using namespace Qt::StringLiterals;

namespace {

const QColor red = QColor::fromRgb(176, 23, 31);
const QColor orange = QColor::fromRgb(199, 97, 20);
const QColor green = QColor::fromRgb(46, 139, 87);

class SpectrumCompViewTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        setResourceRoot(TestPaths::course());
        AppPaths::setAcousticModelFolder(TestPaths::acousticModel());
        Preferences::instance().setLanguageType(u"en"_s);
    }

    /// A comparison of a course phrase ("Guten Abend!" scores well against its own recording)
    /// with the learner's recording at `recording`, the phrase's own when empty.
    static void fill(SpectrumCompView &view, const QString &id = u"103"_s,
                     const QString &recording = {})
    {
        if (PhraseInfo *phrase = coursePhrase(u"1"_s, id))
            view.setPhrase(*phrase);
        view.setEstimatedAudioFilePath(recording.isEmpty() ? view.standardAudioFilePath()
                                                           : recording);
    }

    [[nodiscard]] QString silence(double seconds) const
    {
        const QString path = m_folder.filePath(u"silence.wav"_s);
        const std::vector<int32_t> samples(static_cast<size_t>(16000 * seconds), 0);
        return AudioFixtures::writeSound(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1, samples)
                   ? path
                   : QString();
    }

    [[nodiscard]] static QDateTime modified(const QString &path)
    {
        return QFileInfo(path).lastModified();
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SpectrumCompViewTest, TheModelSpeakersOwnRecordingScoresWellAndTheMarkComesFirst)
{
    SpectrumCompView view;
    fill(view);
    EXPECT_EQ(view.standardText(), u"Guten Abend!"_s);
    EXPECT_EQ(view.translateText(), u"Good evening!"_s);
    ASSERT_TRUE(QFileInfo::exists(view.standardAudioFilePath()));

    QStringList events;
    QObject::connect(&view, &SpectrumCompView::scoreChanged, &view, [&] {
        if (view.scored())
            events.append(u"scored"_s);
    });
    QObject::connect(&view, &SpectrumCompView::compared, &view,
                     [&] { events.append(view.busy() ? u"compared busy"_s : u"compared"_s); });
    ASSERT_TRUE(compare(view));

    EXPECT_EQ(events, (QStringList{u"scored"_s, u"compared"_s}));
    EXPECT_GE(view.score(), 7);
    EXPECT_EQ(view.scoreColor(), view.score() >= 8 ? green : orange);
    EXPECT_TRUE(view.scoreStyledText().contains(u"<b>%1</b>"_s.arg(view.score())));
    EXPECT_TRUE(view.errorText().isEmpty()) << qPrintable(view.errorText());
    EXPECT_GT(view.standardSpectrumPanel()->spectrumWidth(), 0);
    EXPECT_GT(view.estimatedSpectrumPanel()->spectrumWidth(), 0);
    EXPECT_EQ(QFileInfo(view.languageModelPath()).absolutePath(),
              QFileInfo(AppPaths::languageModelFolder()).absoluteFilePath());
    EXPECT_TRUE(view.languageModelPath().endsWith(u"/test.DMP"_s));
    EXPECT_TRUE(view.dictionaryPath().endsWith(u"/test.dic"_s));
}

TEST_F(SpectrumCompViewTest, SilenceAndMissingRecordingsMarkZeroWithAReason)
{
    const QString silent = silence(2.0);
    ASSERT_FALSE(silent.isEmpty());
    const QString empty = m_folder.filePath(u"empty.wav"_s);
    ASSERT_TRUE(AudioFixtures::writeBytes(empty, {}));
    const QString garbage = m_folder.filePath(u"garbage.wav"_s);
    ASSERT_TRUE(AudioFixtures::writeBytes(garbage, QByteArray(4000, 'x')));

    for (const QString &recording : {silent, m_folder.filePath(u"missing.wav"_s), empty, garbage}) {
        SCOPED_TRACE(qPrintable(recording));
        SpectrumCompView view;
        fill(view, u"103"_s, recording);
        ASSERT_TRUE(compare(view));
        EXPECT_TRUE(view.scored());
        EXPECT_EQ(view.score(), 0);
        EXPECT_EQ(view.scoreColor(), red);
        EXPECT_FALSE(view.errorText().isEmpty());
        EXPECT_FALSE(view.busy());
        // The model's recording is shown whatever became of the learner's.
        EXPECT_GT(view.standardSpectrumPanel()->spectrumWidth(), 0);
        if (recording == silent)
            EXPECT_TRUE(view.advices().contains(u"no_voice"_s));
        else
            EXPECT_EQ(view.estimatedSpectrumPanel()->spectrumWidth(), 0);
    }
}

TEST_F(SpectrumCompViewTest, APhrasesModelIsGeneratedOnceUntilAnotherPhraseReplacesIt)
{
    SpectrumCompView first;
    fill(first);
    ASSERT_TRUE(compare(first));
    const QString model = first.languageModelPath();
    const QString dictionary = first.dictionaryPath();
    const QDateTime modelTime = modified(model);
    const QDateTime dictionaryTime = modified(dictionary);
    ASSERT_TRUE(modelTime.isValid());

    // A second recording of the phrase, in a new pop-up.
    SpectrumCompView again;
    fill(again, u"103"_s, silence(1.0));
    ASSERT_TRUE(compare(again));
    EXPECT_EQ(again.languageModelPath(), model);
    EXPECT_EQ(modified(model), modelTime);
    EXPECT_EQ(modified(dictionary), dictionaryTime);

    SpectrumCompView other;
    fill(other, u"102"_s);
    ASSERT_TRUE(compare(other));
    EXPECT_GE(other.score(), 7);
    const QDateTime otherTime = modified(model);
    EXPECT_GT(otherTime, modelTime);

    // The first pop-up's paths now lead to the other phrase's model: it is made again.
    ASSERT_TRUE(compare(first));
    EXPECT_GT(modified(model), otherTime);
    EXPECT_GE(first.score(), 7);
}

TEST_F(SpectrumCompViewTest, ScoreColoursGoFromRedThroughOrangeToGreen)
{
    const QList<std::pair<int, QColor>> cases{
        {4, red}, {5, orange}, {7, orange}, {8, green}, {10, green}};
    for (const auto &[score, colour] : cases) {
        SCOPED_TRACE(score);
        EXPECT_EQ(ScoreText::color(score, 10), colour);
        EXPECT_EQ(ScoreText::styled(u"Score"_s, score, 10, true),
                  u"Score: <font color=\"%1\"><b>%2</b></font>/10"_s.arg(colour.name()).arg(score));
    }
    EXPECT_EQ(ScoreText::styled(u"A<B"_s, 0, 10, true).left(6), u"A&lt;B"_s);
}

TEST_F(SpectrumCompViewTest, TheUiThreadKeepsRunningWhileAComparisonIsMade)
{
    // Another phrase than the last test's, so that its model is generated too.
    SpectrumCompView view;
    fill(view, u"114"_s);
    QElapsedTimer clock;
    qint64 last = 0;
    qint64 longestGap = 0;
    QTimer probe;
    probe.setInterval(10);
    QObject::connect(&probe, &QTimer::timeout, &probe, [&] {
        const qint64 now = clock.elapsed();
        longestGap = std::max(longestGap, now - last);
        last = now;
    });
    clock.start();
    probe.start();
    ASSERT_TRUE(compare(view));
    probe.stop();
    EXPECT_TRUE(view.scored());
    EXPECT_LT(longestGap, 50);
}

TEST_F(SpectrumCompViewTest, StartingOnePlayerLeavesTheOtherPanelAtItsStart)
{
    SpectrumCompView view;
    fill(view);
    ASSERT_TRUE(compare(view));
    VoSpectrumPanel *upper = view.standardSpectrumPanel();
    VoSpectrumPanel *lower = view.estimatedSpectrumPanel();

    upper->playerBox()->play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return upper->playProgress() > 0.0F; }, 10000));
    EXPECT_TRUE(upper->needRun());
    EXPECT_FALSE(lower->needRun());

    lower->playerBox()->play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !upper->needRun() && lower->needRun(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return upper->playProgress() == 0.0F; }));

    // A panel of some other pop-up changes nothing here.
    VoSpectrumPanel stranger;
    stranger.setTag(7);
    view.playPreHandle(nullptr, &stranger);
    EXPECT_TRUE(lower->needRun());
    EXPECT_FALSE(upper->needRun());

    view.closeAction();
    EXPECT_NE(lower->playerBox()->playStatus(), VoPlayerBox::Playing);
}
