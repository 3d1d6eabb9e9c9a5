#include "AppWindow.h"
#include "ComparisonFixture.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

TEST(SpectrumCompViewUiTest, ThePopUpShowsBothSpectraTheMarkAndTheWordsAndClosingStopsThePlayers)
{
    AppWindow app;
    SpectrumCompView comparison;
    PhraseInfo *phrase = coursePhrase(u"1"_s, u"103"_s);
    ASSERT_TRUE(phrase);
    comparison.setPhrase(*phrase);
    comparison.setEstimatedAudioFilePath(comparison.standardAudioFilePath());
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

    EXPECT_TRUE(score->isVisible());
    EXPECT_TRUE(score->property("text").toString().contains(u"/10"_s));
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
    const QImage shot = app.screenshot(u"spectrum-comparison"_s);
    EXPECT_FALSE(shot.isNull());

    // The upper player starts, and Escape closes the pop-up and stops it.
    comparison.standardSpectrumPanel()->playerBox()->play();
    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !popUp->property("visible").toBool(); }));
    EXPECT_NE(comparison.standardSpectrumPanel()->playerBox()->playStatus(), VoPlayerBox::Playing);
}
