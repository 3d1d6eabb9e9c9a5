#include "speaking/SpectrumCompView.h"

#include "AppWindow.h"
#include "AudioFixtures.h"
#include "app/AppPaths.h"
#include "app/Preferences.h"
#include "app/ScoreText.h"
#include "content/AppCommon.h"
#include "support/TestPaths.h"

#include <QElapsedTimer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>
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

    /// The phrase's comparison with the learner's `recording`, the phrase's own when empty.
    static void fill(SpectrumCompView &view, const QString &id = u"103"_s,
                     const QString &recording = {})
    {
        for (PhraseInfo *phrase : *loadPhrases(u"1"_s)) {
            if (phrase->id == id)
                view.setPhrase(*phrase);
        }
        ASSERT_FALSE(view.standardText().isEmpty()) << qPrintable(id);
        view.setEstimatedAudioFilePath(recording.isEmpty() ? view.standardAudioFilePath()
                                                           : recording);
    }

    static bool compare(SpectrumCompView &view)
    {
        QSignalSpy compared(&view, &SpectrumCompView::compared);
        view.runComparison();
        return compared.wait(120000);
    }

    [[nodiscard]] QString file(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_folder.filePath(name);
        EXPECT_TRUE(AudioFixtures::writeBytes(path, bytes));
        return path;
    }

    QTemporaryDir m_folder;
};

} // namespace

// Silence and files that are no recording: a zero with a reason, never a crash.
TEST_F(SpectrumCompViewTest, UnreadableRecordingsAndSilenceMarkZeroWithAReason)
{
    const QString silence = m_folder.filePath(u"silence.wav"_s);
    ASSERT_TRUE(AudioFixtures::writeSound(silence, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1,
                                          std::vector<int32_t>(16000, 0)));
    for (const QString &recording :
         {silence, m_folder.filePath(u"missing.wav"_s), file(u"empty.wav"_s, {}),
          file(u"garbage.wav"_s, QByteArray(4000, 'x'))}) {
        SCOPED_TRACE(qPrintable(recording));
        SpectrumCompView view;
        fill(view, u"103"_s, recording);
        ASSERT_TRUE(compare(view));
        EXPECT_TRUE(view.scored());
        EXPECT_EQ(view.score(), 0);
        EXPECT_EQ(view.scoreColor(), red);
        EXPECT_FALSE(view.errorText().isEmpty());
        EXPECT_GT(view.standardSpectrumPanel()->spectrumWidth(), 0);
        if (recording == silence)
            EXPECT_TRUE(view.advices().contains(u"no_voice"_s));
        else
            EXPECT_EQ(view.estimatedSpectrumPanel()->spectrumWidth(), 0);
    }
}

TEST(ScoreText, ColoursGoFromRedThroughOrangeToGreen)
{
    for (const auto &[score, colour] : QList<std::pair<int, QColor>>{
             {4, red}, {5, orange}, {7, orange}, {8, green}, {10, green}}) {
        EXPECT_EQ(ScoreText::styled(u"Score"_s, score, 10, true),
                  u"Score: <font color=\"%1\"><b>%2</b></font>/10"_s.arg(colour.name()).arg(score));
    }
}

TEST_F(SpectrumCompViewTest, ReadingsAreMarkedOffTheUiThreadAndAClosedPopUpGetsNoMark)
{
    // A pop-up closed before its results: they are dropped, not delivered to it.
    auto gone = std::make_unique<SpectrumCompView>();
    fill(*gone);
    gone->runComparison();
    gone.reset();
    SpectrumCompView comparison;
    fill(comparison);
    QStringList events;
    QObject::connect(&comparison, &SpectrumCompView::scoreChanged, &comparison, [&] {
        if (comparison.scored())
            events.append(QThread::currentThread() == comparison.thread() ? u"scored"_s
                                                                          : u"elsewhere"_s);
    });
    QObject::connect(&comparison, &SpectrumCompView::compared, &comparison, [&] {
        events.append(comparison.busy() ? u"compared busy"_s : u"compared"_s);
    });
    // Making the phrase's model and reading it must not stall the UI thread.
    QElapsedTimer clock;
    qint64 longestGap = 0;
    QTimer probe;
    probe.setInterval(10);
    QObject::connect(&probe, &QTimer::timeout, &probe,
                     [&] { longestGap = std::max(longestGap, clock.restart()); });
    clock.start();
    probe.start();
    ASSERT_TRUE(compare(comparison));
    probe.stop();
    EXPECT_LT(longestGap, 100 * testSlowdown());
    EXPECT_EQ(events, (QStringList{u"scored"_s, u"compared"_s}));
}

TEST_F(SpectrumCompViewTest, ThePopUpShowsTheMarkAndTheWordsAndPlaysOneRecordingAtATime)
{
    AppWindow app;
    SpectrumCompView comparison;
    fill(comparison);
    // "Guten Abend!" read, one more word asked for: that word is not heard.
    comparison.setStandardText(u"Guten Abend, Anna!"_s);

    const std::unique_ptr<QObject> popUp = app.createView(
        u"SpectrumCompViewPopup.qml"_s, {{u"comparison"_s, QVariant::fromValue(&comparison)}});
    ASSERT_TRUE(popUp);
    QMetaObject::invokeMethod(popUp.get(), "open");
    ASSERT_TRUE(QTest::qWaitFor([&] { return popUp->property("opened").toBool(); }));
    QQuickItem *root = app.window()->contentItem();
    QQuickItem *score = findItem(root, u"testedWordScoreLbl"_s);
    ASSERT_TRUE(score);
    EXPECT_FALSE(score->isVisible());
    comparison.runComparison();
    EXPECT_TRUE(QTest::qWaitFor([&] { return findItem(root, u"comparisonBusy"_s)->isVisible(); }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !comparison.busy(); }, 120000));
    EXPECT_GT(comparison.estimatedSpectrumPanel()->spectrumWidth(), 0);

    EXPECT_TRUE(score->isVisible());
    EXPECT_TRUE(score->property("text").toString().contains(
        u"<b>%1</b></font>/10"_s.arg(comparison.score())));
    EXPECT_FALSE(findItem(root, u"comparisonBusy"_s)->isVisible());
    EXPECT_FALSE(findItem(root, u"errorLbl"_s)->isVisible());
    EXPECT_EQ(findItem(root, u"translateLbl"_s)->property("text").toString(), u"Good evening!"_s);
    for (const QString &name : {u"originalVoiceLbl"_s, u"myVoiceLbl"_s, u"standardSpectrumPanel"_s,
                                u"estimatedSpectrumPanel"_s}) {
        QQuickItem *item = findItem(root, name);
        ASSERT_TRUE(item) << qPrintable(name);
        EXPECT_GT(item->height(), 0) << qPrintable(name);
    }
    const QString words = findItem(root, u"wordsLbl"_s)->property("text").toString();
    EXPECT_TRUE(words.startsWith(u"<font color=\"#2e8b57\">Guten</font> "_s)) << qPrintable(words);
    EXPECT_TRUE(words.endsWith(u"<font color=\"#b0171f\">Anna</font>!"_s)) << qPrintable(words);
    EXPECT_TRUE(comparison.wordsAccessibleText().endsWith(u"Anna: missing"_s));
    QQuickItem *tip = findItem(root, u"readingTipLbl"_s);
    EXPECT_TRUE(tip->isVisible());
    EXPECT_TRUE(tip->property("text").toString().contains(u"\"Anna\""_s));
    EXPECT_FALSE(app.screenshot(u"spectrum-comparison"_s).isNull());

    // Starting one player sends the other panel back to its start.
    VoSpectrumPanel *upper = comparison.standardSpectrumPanel();
    VoSpectrumPanel *lower = comparison.estimatedSpectrumPanel();
    upper->playerBox()->play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return upper->playProgress() > 0.0F; }, 10000));
    EXPECT_TRUE(upper->needRun());
    EXPECT_FALSE(lower->needRun());
    lower->playerBox()->play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !upper->needRun() && lower->needRun(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return upper->playProgress() == 0.0F; }));

    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !popUp->property("visible").toBool(); }));
    EXPECT_NE(lower->playerBox()->playStatus(), VoPlayerBox::Playing);
}
