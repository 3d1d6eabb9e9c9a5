#include "AppWindow.h"
#include "app/AppColors.h"
#include "app/PhraseCardVC.h"
#include "app/PhraseWriteController.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/QtPrinters.h"
#include "content/UserInfoFile.h"
#include "stubs/AudioPlayerStub.h"

#include <QColor>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Category "1" of the shipped course: 14 phrases from "Guten Morgen!" to "Gute Nacht!".
class PhraseCardTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    AppWindow app;

    // As the category screen does it.
    void openCards(int index)
    {
        QQmlExpression push(
            qmlContext(app.stack()), app.stack(),
            u"push(\"PhraseCardPage.qml\", {categoryId: \"1\", phraseIndex: %1})"_s.arg(index));
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

    [[nodiscard]] QString text(const QString &objectName) const
    {
        return item(objectName)->property("text").toString();
    }

    [[nodiscard]] QString icon(const QString &button) const
    {
        return QQmlProperty::read(item(button), u"icon.source"_s).toUrl().fileName();
    }

    // Which way the learner can step, as the buttons show it: enabled and their icons.
    [[nodiscard]] QString steps() const
    {
        QString shown;
        for (const QString &button : {u"lastItemButton"_s, u"nextItemButton"_s})
            shown += (item(button)->isEnabled() ? u"+"_s : u"-"_s) + icon(button) + u' ';
        return shown.trimmed();
    }

    // The pop-up's dimmed layer is drawn by the window's overlay, not inside the pop-up.
    [[nodiscard]] bool maskShown() const
    {
        const QList<QQuickItem *> masks = findItems(app.window()->contentItem(), u"popUpMask"_s);
        return std::any_of(masks.begin(), masks.end(), [](const QQuickItem *mask) {
            return mask->isVisible() && mask->opacity() > 0;
        });
    }

    static PhraseInfo &phrase(int index) { return *loadPhrases(u"1"_s)->at(index); }
    static qint64 count(const QString &key) { return userInfoInt(key); }
};

} // namespace

TEST_F(PhraseCardTest, CardShowsThePhraseStepsAndCountsEveryPlay)
{
    Preferences::instance().setPlaySpeed(0.6F);
    const qint64 listens = count(UserInfoKey::listenCount);
    players.unplayable = {soundPath(phrase(1))};
    openCards(0);
    EXPECT_EQ(text(u"phraseText"_s), u"Guten Morgen!"_s);
    EXPECT_EQ(text(u"phraseTranslation"_s), u"Good morning!"_s);
    EXPECT_EQ(text(u"phrasePosition"_s), u"1 of 14"_s);
    EXPECT_EQ(app.currentPage()->findChild<PhraseCardVC *>()->phonetics(), u"ˈɡuːtn̩ ˈmɔʁɡn̩"_s);
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Greetings and Goodbyes"_s);
    EXPECT_EQ(steps(), u"-btn-last2.svg +btn-next.svg"_s);
    QQuickItem *image = item(u"phraseImage"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return image->property("status").toInt() == 1; }))
        << "the phrase's picture loads";
    EXPECT_GT(image->property("paintedHeight").toDouble(), 50);
    ASSERT_NE(players.last, nullptr);
    EXPECT_EQ(players.last->path(), soundPath(phrase(0)));
    EXPECT_TRUE(players.last->isPlaying());
    EXPECT_FLOAT_EQ(players.last->rate(), 0.6F) << "at the learner's speed";
    EXPECT_EQ(players.last->numberOfLoops(), 0);
    const QImage shot = app.screenshot(u"phrase-card"_s);
    EXPECT_EQ(shot.pixelColor(shot.width() / 2, 4).rgb(), AppColors::barBlue().rgb());

    // A recording that cannot be played is still a listen: the learner asked for it.
    QTest::keyClick(app.window(), Qt::Key_Right);
    EXPECT_EQ(text(u"phraseText"_s), u"Guten Tag!"_s);
    EXPECT_EQ(steps(), u"+btn-last.svg +btn-next.svg"_s);
    app.tapCentre(item(u"lastItemButton"_s));
    EXPECT_EQ(text(u"phraseText"_s), u"Guten Morgen!"_s);
    EXPECT_EQ(steps(), u"-btn-last2.svg +btn-next.svg"_s);
    QTest::keyClick(app.window(), Qt::Key_Left);
    EXPECT_EQ(text(u"phraseText"_s), u"Guten Morgen!"_s);
    QTest::keyClick(app.window(), Qt::Key_Space);
    app.tapCentre(item(u"playButton"_s));
    EXPECT_EQ(count(UserInfoKey::listenCount), listens + 5);
    EXPECT_EQ(players.requested.size(), 5);

    app.tapCentre(item(u"lookButton"_s));
    EXPECT_EQ(item(u"phraseText"_s)->opacity(), 0);
    EXPECT_EQ(item(u"phraseTranslation"_s)->opacity(), 1);
    EXPECT_EQ(icon(u"lookButton"_s), u"btn-no-look.svg"_s);
    app.tapCentre(item(u"lookButton"_s));
    EXPECT_EQ(item(u"phraseText"_s)->opacity(), 1);
    EXPECT_EQ(icon(u"lookButton"_s), u"btn-look.svg"_s);
    EXPECT_EQ(count(UserInfoKey::listenCount), listens + 5) << "looking is not listening";

    Preferences::instance().setLanguageType(u"fr"_s);
    EXPECT_EQ(text(u"phraseTranslation"_s), phrase(0).trans.value(u"fr"_s));
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Dire bonjour et au revoir"_s);
    Preferences::instance().setLanguageType(u"en"_s);

    // Going back silences the card at once; the player goes with the screen when the zoom ends.
    ASSERT_TRUE(players.last->isPlaying());
    QTest::keyClick(app.window(), Qt::Key_Escape);
    EXPECT_FALSE(players.last->isPlaying());
    ASSERT_TRUE(app.waitForDepth(1));
    EXPECT_EQ(players.requested.size(), 5);
}

TEST_F(PhraseCardTest, WritingPopUpColoursRightAndWrongAnswers)
{
    const qint64 writes = count(UserInfoKey::writeCount);
    openCards(13);
    EXPECT_EQ(steps(), u"+btn-last.svg -btn-next2.svg"_s);
    QTest::keyClick(app.window(), Qt::Key_Right);
    EXPECT_EQ(text(u"phraseText"_s), u"Gute Nacht!"_s);

    // A pop-up is no item of the scene; it hangs off the screen's object tree.
    QObject *popUp = app.currentPage()->findChild<QObject *>(u"writePopUp"_s);
    ASSERT_NE(popUp, nullptr);
    const auto openPopUp = [&] {
        app.tapCentre(item(u"writeButton"_s));
        ASSERT_TRUE(QTest::qWaitFor([&] { return popUp->property("opened").toBool(); }));
        ASSERT_TRUE(QTest::qWaitFor([&] { return item(u"writeInput"_s)->hasActiveFocus(); }));
        EXPECT_TRUE(item(u"writeInput"_s)->isEnabled());
        EXPECT_TRUE(text(u"writeInput"_s).isEmpty());
        EXPECT_FALSE(item(u"wordLabel"_s)->isVisible()) << "the phrase stays hidden until checked";
        EXPECT_TRUE(maskShown());
    };
    const auto type = [&](const char *typed) {
        for (const char *c = typed; *c; ++c)
            QTest::keyClick(app.window(), *c);
    };
    const auto expectChecked = [&](const QColor &colour, const char *screenshot) {
        EXPECT_FALSE(item(u"writeInput"_s)->isEnabled());
        EXPECT_EQ(item(u"writeInput"_s)->property("color").value<QColor>(), colour);
        EXPECT_TRUE(item(u"wordLabel"_s)->isVisible());
        EXPECT_EQ(text(u"wordLabel"_s), u"Gute Nacht!"_s);
        (void)app.screenshot(QLatin1StringView(screenshot));
    };

    openPopUp();
    EXPECT_NEAR(popUp->property("width").toDouble(), 0.9 * app.window()->width(), 1);
    type("gute NACHT!");
    QTest::keyClick(app.window(), Qt::Key_Return);
    expectChecked(PhraseWriteController::rightColor(), "phrase-card-write-right");
    EXPECT_EQ(count(UserInfoKey::writeCount), writes + 1);

    app.tapCentre(item(u"redoButton"_s));
    EXPECT_TRUE(text(u"writeInput"_s).isEmpty());
    EXPECT_FALSE(item(u"wordLabel"_s)->isVisible());
    type("Gute Nacht");
    app.tapCentre(item(u"submitButton"_s));
    expectChecked(PhraseWriteController::wrongColor(), "phrase-card-write-wrong");
    // Frozen after the check: typing changes nothing, another submit counts nothing.
    type("!");
    QTest::keyClick(app.window(), Qt::Key_Return);
    EXPECT_EQ(text(u"writeInput"_s), u"Gute Nacht"_s);
    EXPECT_EQ(count(UserInfoKey::writeCount), writes + 1);

    // Closing takes the dimmed mask away too, so nothing is left to swallow the screen's taps.
    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !popUp->property("visible").toBool(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !maskShown(); }));
    EXPECT_EQ(app.depth(), 2) << "Escape closes the pop-up, not the screen";
    openPopUp();
    app.tapCentre(item(u"closeButton"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !popUp->property("visible").toBool(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !maskShown(); }));
    app.tapCentre(item(u"lastItemButton"_s));
    EXPECT_EQ(text(u"phraseText"_s), phrase(12).content);
}

// Only letter case is forgiven; lower-casing, not case folding, so ß stays apart from ss.
TEST(PhraseWrite, OnlyLetterCaseIsForgiven)
{
    ASSERT_TRUE(writeUserInfo(initialUserInfo()));
    const auto verdict = [](const QString &phrase, const QString &input) {
        PhraseWriteController writing;
        writing.setWordText(phrase);
        writing.setInput(input);
        writing.submit();
        return writing.verdict() == PhraseWriteController::Verdict::Right;
    };
    EXPECT_FALSE(verdict(u"Wie geht's?"_s, u"Wie geht's? "_s));
    EXPECT_FALSE(verdict(u"Wie geht's?"_s, u"Wie geht’s?"_s));
    EXPECT_TRUE(verdict(u"Straße"_s, u"STRAßE"_s));
    EXPECT_FALSE(verdict(u"Grüße."_s, u"GRÜSSE."_s));
}
