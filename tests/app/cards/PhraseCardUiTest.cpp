#include "AppWindow.h"
#include "app/AppColors.h"
#include "app/PhraseWriteController.h"
#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"
#include "stubs/AudioPlayerStub.h"

#include <QColor>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Category "1" of the sample course opens with "Guten Morgen!"; its fourth phrase, "Hallo, wie
// geht's?", can be typed on any keyboard.
const QString categoryId = u"1"_s;
constexpr int typablePhrase = 3;

class PhraseCardUiTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    AppWindow app;

    // As the category screen does it.
    void openCards(int index)
    {
        QQmlExpression push(
            qmlContext(app.stack()), app.stack(),
            u"push(\"PhraseCardPage.qml\", {categoryId: \"%1\", phraseIndex: %2})"_s.arg(categoryId)
                .arg(index));
        push.evaluate();
        ASSERT_FALSE(push.hasError()) << qPrintable(push.error().toString());
        ASSERT_TRUE(app.waitForDepth(2));
    }

    [[nodiscard]] QQuickItem *item(const QString &objectName) const
    {
        // The screen's own items first: the one below has a tool bar too. Pop-ups sit in the
        // window's overlay.
        QQuickItem *found = findItem(app.currentPage(), objectName);
        if (!found)
            found = findItem(app.window()->contentItem(), objectName);
        if (!found)
            ADD_FAILURE() << "no item " << qPrintable(objectName);
        return found;
    }

    [[nodiscard]] QString shownText() const
    {
        return item(u"phraseText"_s)->property("text").toString();
    }

    [[nodiscard]] static PhraseInfo &phrase(int index)
    {
        return *loadPhrases(categoryId)->at(index);
    }

    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::keyClick(app.window(), c.toLatin1());
    }

    // The writing pop-up's input after a submit: frozen, coloured, with the phrase shown below.
    void expectChecked(const QColor &colour) const
    {
        QQuickItem *input = item(u"writeInput"_s);
        EXPECT_FALSE(input->isEnabled());
        EXPECT_EQ(input->property("color").value<QColor>(), colour);
        EXPECT_TRUE(item(u"wordLabel"_s)->isVisible());
        EXPECT_EQ(item(u"wordLabel"_s)->property("text").toString(),
                  foreignText(phrase(typablePhrase)));
    }
};

} // namespace

TEST_F(PhraseCardUiTest, CardShowsThePhraseAndStepsWithButtonsAndKeys)
{
    const qint64 listensBefore = userInfoInt(UserInfoKey::listenCount);
    openCards(0);
    EXPECT_EQ(shownText(), u"Guten Morgen!"_s);
    EXPECT_EQ(item(u"phraseTranslation"_s)->property("text").toString(), u"Good morning!"_s);
    EXPECT_EQ(item(u"toolBarTitle"_s)->property("text").toString(), u"Greetings and Goodbyes"_s);
    EXPECT_FALSE(item(u"lastItemButton"_s)->isEnabled());
    EXPECT_TRUE(item(u"nextItemButton"_s)->isEnabled());
    QQuickItem *image = item(u"phraseImage"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return image->property("status").toInt() == 1; }))
        << "the phrase's picture loads";
    EXPECT_GT(image->property("paintedHeight").toDouble(), 50);
    ASSERT_NE(players.last, nullptr);
    EXPECT_EQ(players.last->path(), soundPath(phrase(0)));
    EXPECT_TRUE(players.last->isPlaying());
    const QImage shot = app.screenshot(u"phrase-card"_s);
    EXPECT_EQ(shot.pixelColor(shot.width() / 2, 4).rgb(), AppColors::barBlue().rgb());

    QTest::keyClick(app.window(), Qt::Key_Right);
    EXPECT_EQ(shownText(), u"Guten Tag!"_s);
    EXPECT_TRUE(item(u"lastItemButton"_s)->isEnabled());
    app.tapCentre(item(u"lastItemButton"_s));
    EXPECT_EQ(shownText(), u"Guten Morgen!"_s);
    QTest::keyClick(app.window(), Qt::Key_Left);
    EXPECT_EQ(shownText(), u"Guten Morgen!"_s);
    QTest::keyClick(app.window(), Qt::Key_Space);
    app.tapCentre(item(u"playButton"_s));
    EXPECT_EQ(userInfoInt(UserInfoKey::listenCount), listensBefore + 5);

    app.tapCentre(item(u"lookButton"_s));
    EXPECT_EQ(item(u"phraseText"_s)->opacity(), 0);
    EXPECT_EQ(item(u"phraseTranslation"_s)->opacity(), 1);
    app.tapCentre(item(u"lookButton"_s));
    EXPECT_EQ(item(u"phraseText"_s)->opacity(), 1);

    // Going back silences the card at once; the player goes with the screen when the zoom ends.
    ASSERT_TRUE(players.last->isPlaying());
    QTest::keyClick(app.window(), Qt::Key_Escape);
    EXPECT_FALSE(players.last->isPlaying());
    ASSERT_TRUE(app.waitForDepth(1));
    EXPECT_EQ(players.requested.size(), 5);
}

TEST_F(PhraseCardUiTest, WritingPopUpColoursRightAndWrongAnswers)
{
    const qint64 writesBefore = userInfoInt(UserInfoKey::writeCount);
    openCards(typablePhrase);
    // A pop-up is no item of the scene; it hangs off the screen's object tree.
    QObject *popUp = app.currentPage()->findChild<QObject *>(u"writePopUp"_s);
    ASSERT_NE(popUp, nullptr);
    ASSERT_FALSE(popUp->property("visible").toBool());
    app.tapCentre(item(u"writeButton"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return popUp->property("opened").toBool(); }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return item(u"writeInput"_s)->hasActiveFocus(); }));
    EXPECT_FALSE(item(u"wordLabel"_s)->isVisible()) << "the phrase stays hidden until submitted";
    EXPECT_NEAR(popUp->property("width").toDouble(), 0.9 * app.window()->width(), 1);

    type(u"hallo, WIE geht's?"_s);
    QTest::keyClick(app.window(), Qt::Key_Return);
    expectChecked(PhraseWriteController::rightColor());
    EXPECT_EQ(userInfoInt(UserInfoKey::writeCount), writesBefore + 1);
    (void)app.screenshot(u"phrase-card-write-right"_s);

    app.tapCentre(item(u"redoButton"_s));
    EXPECT_TRUE(item(u"writeInput"_s)->property("text").toString().isEmpty());
    EXPECT_FALSE(item(u"wordLabel"_s)->isVisible());
    type(u"Hallo, wie gehts"_s);
    app.tapCentre(item(u"submitButton"_s));
    expectChecked(PhraseWriteController::wrongColor());
    EXPECT_EQ(userInfoInt(UserInfoKey::writeCount), writesBefore + 1);
    (void)app.screenshot(u"phrase-card-write-wrong"_s);

    // Opening it again starts over.
    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !popUp->property("visible").toBool(); }));
    EXPECT_EQ(app.depth(), 2) << "Escape closes the pop-up, not the screen";
    app.tapCentre(item(u"writeButton"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return popUp->property("opened").toBool(); }));
    EXPECT_TRUE(item(u"writeInput"_s)->isEnabled());
    EXPECT_TRUE(item(u"writeInput"_s)->property("text").toString().isEmpty());
}
