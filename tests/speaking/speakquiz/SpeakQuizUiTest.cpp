#include "SpeakingInput.h"
#include "app/PhraseCardVC.h"
#include "audio/MicrophonePermission.h"
#include "content/AppCommon.h"
#include "quiz/QuizUiTest.h"
#include "speaking/Phrase2SpeakVC.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickWindow>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

class SpeakQuizUiTest : public QuizUiTest {
protected:
    /// From the main screen through the quiz menu, as the learner goes.
    Phrase2SpeakVC *openFromMenu()
    {
        app.tapCentre(findItem(app.currentPage(), u"quizzesButton"_s));
        EXPECT_TRUE(app.waitForDepth(2));
        app.tapCentre(findItem(app.currentPage(), u"quizButton4"_s));
        EXPECT_TRUE(app.waitForDepth(3));
        return app.currentPage()->findChild<Phrase2SpeakVC *>();
    }

    [[nodiscard]] QObject *popup() const
    {
        return app.currentPage()->findChild<QObject *>(u"comparisonPopup"_s);
    }

    [[nodiscard]] QPoint microphone() const
    {
        QQuickItem *button = item(u"microphoneButton"_s);
        return button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
    }

    /// A key as the window gets it, auto-repeated or not.
    void key(QEvent::Type type, bool autoRepeat) const
    {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, u" "_s, autoRepeat);
        QCoreApplication::sendEvent(app.window(), &event);
    }

    /// Waits for the comparison the release has just made.
    static bool waitCompared(SpectrumCompView *comparison)
    {
        return comparison && QTest::qWaitFor([&] { return comparison->scored(); }, 120000);
    }

    void closePopup() const
    {
        QMetaObject::invokeMethod(popup(), "close");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !popup()->property("visible").toBool(); }));
    }

    SpeakingInput input;
};

} // namespace

TEST_F(SpeakQuizUiTest, ReadsPhrasesAloudByMouseAndSpaceBarToTheResults)
{
    Phrase2SpeakVC *quiz = openFromMenu();
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Read Phrase"_s);
    EXPECT_EQ(text(u"questionLbl"_s), foreignText(*quiz->phraseInfos().at(0)));
    EXPECT_EQ(text(u"tipLbl"_s), u"Tap and hold to speak."_s);
    EXPECT_EQ(item(u"scoreLbl"_s)->opacity(), 0.0) << "this quiz shows progress only";
    EXPECT_FALSE(item(u"levelMeter"_s)->isVisible());

    // Held with the mouse while the phrase's own recording is heard.
    input.setFile(soundPath(*quiz->phraseInfos().at(0)));
    // The recorder's own poll may take the last peak before the test's: what counts is that the
    // meter moved while the voice was heard.
    qreal loudest = 0.0;
    const QMetaObject::Connection meter =
        QObject::connect(quiz->recording(), &PhraseRecording::levelChanged, quiz->recording(),
                         [&] { loudest = std::max(loudest, quiz->recording()->level()); });
    const auto stopMetering = qScopeGuard([&] { QObject::disconnect(meter); });
    QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, microphone());
    ASSERT_TRUE(quiz->recording()->recording());
    ASSERT_TRUE(input.waitDelivered(1));
    quiz->recording()->recorder().levelPoll();
    EXPECT_GT(loudest, 0.0);
    EXPECT_TRUE(item(u"levelMeter"_s)->isVisible());
    EXPECT_FALSE(item(u"tipLbl"_s)->isVisible());
    (void)app.screenshot(u"speak-quiz-recording"_s);

    QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier, microphone());
    EXPECT_FALSE(quiz->recording()->recording());
    ASSERT_TRUE(QTest::qWaitFor([&] { return popup()->property("visible").toBool(); }));
    SpectrumCompView *first = quiz->spectrumCompView();
    ASSERT_TRUE(waitCompared(first));
    EXPECT_EQ(quiz->currWordScore(), first->score());
    // Under the mark, the phrase's words in the colours of their verdicts, named for a screen
    // reader.
    QQuickItem *words = findItem(app.window()->contentItem(), u"wordsLbl"_s);
    EXPECT_TRUE(words->isVisible());
    EXPECT_TRUE(words->property("text").toString().contains(u"<font color="_s));
    EXPECT_TRUE(first->wordsAccessibleText().contains(u"heard well"_s))
        << qPrintable(first->wordsAccessibleText());
    QTest::qWait(300);
    (void)app.screenshot(u"speak-quiz-comparison"_s);
    closePopup();
    app.tapCentre(item(u"submitBtn"_s));
    EXPECT_EQ(quiz->score(), first->score());
    EXPECT_EQ(quiz->currIndex(), 1);

    // Held with Space; the key's auto-repeat (a release and a press each time) is one hold.
    input.setFile(soundPath(*quiz->phraseInfos().at(1)));
    key(QEvent::KeyPress, false);
    ASSERT_TRUE(quiz->recording()->recording());
    ASSERT_TRUE(input.waitDelivered(2));
    key(QEvent::KeyRelease, true);
    key(QEvent::KeyPress, true);
    EXPECT_TRUE(quiz->recording()->recording());
    EXPECT_EQ(quiz->spectrumCompView(), nullptr);
    key(QEvent::KeyRelease, false);
    EXPECT_FALSE(quiz->recording()->recording());
    EXPECT_EQ(input.delivered(), 2) << "one recording for the whole hold";
    ASSERT_TRUE(waitCompared(quiz->spectrumCompView()));
    closePopup();

    for (int i = 1; i < 10; ++i)
        app.tapCentre(item(u"submitBtn"_s));
    ASSERT_TRUE(quiz->finished());
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 10/10"_s);
    EXPECT_FALSE(item(u"microphoneButton"_s)->isVisible());

    QQuickItem *table = item(u"resultTable"_s);
    ASSERT_TRUE(table->isVisible());
    EXPECT_EQ(table->property("count").toInt(), 10);
    QQuickItem *row = AppWindow::listRow(table, 0);
    EXPECT_EQ(findItem(row, u"testTextLbl"_s)->property("text").toString(),
              u"%1/10"_s.arg(first->score()));
    EXPECT_EQ(findItem(row, u"srcTextLbl"_s)->property("text").toString(), first->wordsText());
    EXPECT_FALSE(findItem(AppWindow::listRow(table, 2), u"showVoiceprintButton"_s)->isVisible());
    (void)app.screenshot(u"speak-quiz-results"_s);

    app.tapCentre(findItem(row, u"showVoiceprintButton"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return popup()->property("visible").toBool(); }));
    EXPECT_EQ(quiz->spectrumCompView(), first);
}

TEST_F(SpeakQuizUiTest, CardsCompareAReadingWithoutAMark)
{
    QQmlExpression push(qmlContext(app.stack()), app.stack(),
                        u"push(\"PhraseCardPage.qml\", {categoryId: \"1\", phraseIndex: 0})"_s);
    push.evaluate();
    ASSERT_FALSE(push.hasError()) << qPrintable(push.error().toString());
    ASSERT_TRUE(app.waitForDepth(2));
    auto *cards = app.currentPage()->findChild<PhraseCardVC *>();
    ASSERT_NE(cards, nullptr);

    input.setFile(soundPath(*loadPhrases(u"1"_s)->at(0)));
    QQuickItem *button = item(u"recordButton"_s);
    const QPoint centre =
        button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
    QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, centre);
    ASSERT_TRUE(cards->recording()->recording());
    ASSERT_TRUE(input.waitDelivered(1));
    QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier, centre);

    ASSERT_TRUE(QTest::qWaitFor([&] { return popup()->property("visible").toBool(); }));
    SpectrumCompView *comparison = cards->recording()->comparison();
    ASSERT_TRUE(waitCompared(comparison));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !comparison->busy(); }, 120000));
    EXPECT_GE(comparison->score(), 7);
    // The pop-up lies in the window's overlay, above the screen.
    QQuickItem *overlay = app.window()->contentItem();
    EXPECT_FALSE(findItem(overlay, u"testedWordScoreLbl"_s)->isVisible())
        << "the cards show no mark";
    EXPECT_TRUE(findItem(overlay, u"estimatedSpectrumPanel"_s)->isVisible());
    EXPECT_TRUE(findItem(overlay, u"wordsLbl"_s)->isVisible()) << "the words are coloured";
    (void)app.screenshot(u"phrase-card-comparison"_s);
    closePopup();

    // An input that fails says so under the card.
    input.setFile(input.missing());
    QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier, centre);
    EXPECT_TRUE(QTest::qWaitFor([&] { return item(u"recordingErrorLbl"_s)->isVisible(); }));
    EXPECT_FALSE(cards->recording()->errorText().isEmpty());
}

TEST_F(SpeakQuizUiTest, WithoutAMicrophoneTheAlertOffersTheSoundSettings)
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
    (void)app.screenshot(u"microphone-alert"_s);
    app.tapCentre(findItem(root, u"microphoneAlertSettings"_s));
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !alert->property("visible").toBool(); }));
}
