#include "audio/VoPlayerBox.h"
#include "content/QtPrinters.h"
#include "stubs/AudioPlayerStub.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList threeItems{u"/course/a.mp3"_s, u"/course/b.mp3"_s, u"/course/c.mp3"_s};

class VoPlayerBoxTest : public ::testing::Test {
protected:
    /// The sounding item ends by itself.
    void finishItem() const
    {
        ASSERT_NE(players.last, nullptr);
        players.last->finishPlaying();
    }

    /// Status, item, and each control's image ("-" before it when disabled) as a bar shows them.
    [[nodiscard]] QString state() const
    {
        const auto flag = [](bool enabled) {
            return enabled ? u""_s : u"-"_s;
        };
        const QStringList statuses{u"Finished"_s, u"Playing"_s, u"Stopped"_s, u"Paused"_s};
        return QStringList{statuses.at(box.playStatus()),
                           QString::number(box.currItemIndex()),
                           box.playImage(),
                           flag(box.stopEnabled()) + box.stopImage(),
                           flag(box.lastEnabled()) + box.lastImage(),
                           flag(box.nextEnabled()) + box.nextImage(),
                           flag(box.speedDownEnabled()) + box.speedDownImage(),
                           flag(box.speedUpEnabled()) + box.speedUpImage()}
            .join(u' ');
    }

    AudioPlayerStubFactory players;
    VoPlayerBox box;
};

TEST_F(VoPlayerBoxTest, PlayPauseResumeAndStopFollowTheStateTable)
{
    box.setupPlayer(threeItems);
    box.play(true);
    EXPECT_EQ(state(), u"Playing 0 vo_pause vo_stop -last_item2 next_item speeddown speedup"_s);
    EXPECT_EQ(players.requested, QStringList{threeItems[0]});
    EXPECT_TRUE(players.last->isPlaying() && box.isTimerRunning());

    box.play(true);
    EXPECT_EQ(state(), u"Paused 0 vo_play vo_stop -last_item2 next_item -speeddown2 -speedup2"_s);
    EXPECT_FALSE(players.last->isPlaying());
    box.play(true);
    EXPECT_TRUE(players.last->isPlaying());
    EXPECT_EQ(players.requested.size(), 1) << "resuming opens nothing";

    box.playNextItem();
    players.last->setCurrentTime(0.7);
    box.stop();
    // The images are set before the index goes back to 0: the previous button stays enabled.
    EXPECT_EQ(state(), u"Stopped 0 vo_play -vo_stop2 last_item next_item -speeddown2 -speedup2"_s);
    EXPECT_FALSE(players.last->isPlaying() || box.isTimerRunning());
    EXPECT_EQ(players.last->currentTime(), 0.0) << "rewound";
}

TEST_F(VoPlayerBoxTest, SequenceStopsAfterTheLastItemAndAPressThereStartsAgain)
{
    box.setupPlayer(threeItems);
    box.play(true);
    finishItem();
    finishItem();
    EXPECT_EQ(state(), u"Playing 2 vo_pause vo_stop last_item -next_item2 speeddown speedup"_s);
    finishItem();
    EXPECT_EQ(players.requested, threeItems);
    EXPECT_EQ(state(),
              u"Finished 2 vo_play -vo_stop2 last_item -next_item2 -speeddown2 -speedup2"_s);

    // The press plays the last item again and at once the first: the wrap rule. Even a press
    // that resumes a pause on the last item wraps; a call without a press does not.
    box.play(true);
    EXPECT_EQ(players.requested.mid(3), (QStringList{threeItems[2], threeItems[0]}));
    EXPECT_TRUE(state().startsWith(u"Playing 0 "_s));
    box.playItem(2);
    box.play(true);
    box.play(true);
    EXPECT_EQ(box.currItemIndex(), 0);
    box.playItem(2);
    box.play();
    box.play();
    EXPECT_EQ(box.currItemIndex(), 2);
}

TEST_F(VoPlayerBoxTest, RepeatModesChooseTheNextItem)
{
    box.switchPlayModel();
    EXPECT_EQ(box.playModelImage(), u"replay_single"_s);
    box.setupPlayer(threeItems);
    box.playItem(1);
    finishItem();
    finishItem();
    EXPECT_EQ(players.requested, QStringList(3, threeItems[1]));

    box.switchPlayModel();
    EXPECT_EQ(box.playModelImage(), u"replay_all"_s);
    players.requested.clear();
    finishItem();
    finishItem();
    finishItem();
    EXPECT_EQ(players.requested, (QStringList{threeItems[2], threeItems[0], threeItems[1]}));
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);

    box.switchPlayModel();
    EXPECT_EQ(box.playModelImage(), u"replay_seq"_s);
}

TEST_F(VoPlayerBoxTest, SpeedStepsShowABadgeAndThePlayerRateIsClamped)
{
    box.setupPlayer(threeItems);
    box.play(true);
    for (int press = 0; press < 6; ++press)
        box.speedUp();
    EXPECT_FLOAT_EQ(box.playRate(), 2.2F);
    EXPECT_FLOAT_EQ(players.last->rate(), 2.0F);
    EXPECT_TRUE(box.speedRemindVisible());
    EXPECT_EQ(box.speedRemindText(), u"2.0X"_s);
    EXPECT_EQ(box.speedRemindAnchor(), u"speedUp"_s);

    // One press back leaves the sound at 2.0; the next item gets the clamped rate at once.
    box.speedDown();
    EXPECT_FLOAT_EQ(players.last->rate(), 2.0F);
    EXPECT_EQ(box.speedRemindAnchor(), u"speedDown"_s);
    box.speedDown();
    EXPECT_FLOAT_EQ(players.last->rate(), 1.8F);
    box.setPlayRate(0.1F);
    box.playNextItem();
    EXPECT_FLOAT_EQ(players.last->rate(), 0.2F);
}

TEST_F(VoPlayerBoxTest, PreviousAndNextStayWithinTheList)
{
    // An empty category plays nothing.
    box.setupPlayer({});
    box.playNextItem();
    box.play(true);
    EXPECT_TRUE(players.requested.isEmpty());

    box.setupPlayer(threeItems);
    box.play(true);
    box.playLastItem();
    EXPECT_EQ(players.requested.size(), 1);
    box.playItem(2);
    box.playNextItem();
    EXPECT_EQ(players.requested, (QStringList{threeItems[0], threeItems[2]}));
    box.playLastItem();
    EXPECT_EQ(state(), u"Playing 1 vo_pause vo_stop last_item next_item speeddown speedup"_s);
}

// The pause between items is part of playing the list: Stop ends it and Play holds it.
TEST_F(VoPlayerBoxTest, DelayBetweenItemsIsSilentAndCanBeHeldOrStopped)
{
    box.setupPlayer(threeItems);
    box.play(true);
    box.setTimeOfItemdelay(1);
    QElapsedTimer wall;
    wall.start();
    finishItem();
    EXPECT_TRUE(box.waitingToStart());
    EXPECT_FALSE(box.isTimerRunning()) << "nothing ticks during the pause";
    EXPECT_EQ(state(), u"Finished 1 vo_pause vo_stop last_item next_item -speeddown2 -speedup2"_s);
    EXPECT_EQ(players.requested.size(), 1) << "the next item opens only after the pause";
    ASSERT_TRUE(QTest::qWaitFor([&] { return box.playStatus() == VoPlayerBox::Playing; }, 3000));
    EXPECT_GE(wall.elapsed(), 900);
    EXPECT_EQ(players.requested.constLast(), threeItems[1]);

    finishItem();
    box.play(true);
    EXPECT_FALSE(box.waitingToStart());
    EXPECT_EQ(state(), u"Paused 2 vo_play vo_stop last_item -next_item2 -speeddown2 -speedup2"_s);
    QTest::qWait(1100);
    EXPECT_EQ(players.requested.size(), 2) << "a held pause starts nothing";
    box.play(true);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);
    EXPECT_EQ(players.requested.constLast(), threeItems[2]);

    box.playLastItem();
    EXPECT_TRUE(box.waitingToStart());
    box.stop();
    EXPECT_FALSE(box.waitingToStart());
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Stopped);
    QTest::qWait(1100);
    EXPECT_EQ(players.requested.size(), 3) << "a stopped pause starts nothing";
}

TEST_F(VoPlayerBoxTest, OnePlayerIsSharedByAllBoxes)
{
    box.setupPlayer(threeItems);
    box.play(true);
    AudioPlayerStub *first = players.last;
    QSignalSpy finished(&box, &VoPlayerBox::didFinishPlaying);
    {
        VoPlayerBox other;
        QSignalSpy otherFinished(&other, &VoPlayerBox::didFinishPlaying);
        other.setupPlayer({u"/course/x.mp3"_s});
        other.play(true);
        EXPECT_FALSE(first->isPlaying()) << "the new start silences the other box";
        EXPECT_EQ(VoPlayerBox::audioPlayer(), players.last);
        players.last->finishPlaying();
        EXPECT_EQ(otherFinished.count(), 1);
        EXPECT_EQ(finished.count(), 0) << "only the box that started it hears the end";
    }
    EXPECT_EQ(VoPlayerBox::audioPlayer(), nullptr) << "the box took its sound with it";
}

// A file that cannot be played still moves the bar, and the controls go on working.
TEST_F(VoPlayerBoxTest, AMissingFileStillPlaysWithoutAPlayer)
{
    players.unplayable = {threeItems[1]};
    box.setupPlayer(threeItems);
    box.playItem(1);
    EXPECT_EQ(VoPlayerBox::audioPlayer(), nullptr);
    EXPECT_EQ(state(), u"Playing 1 vo_pause vo_stop last_item next_item speeddown speedup"_s);
    box.tick();
    box.speedUp();
    box.play(true);
    box.play(true);
    box.stop();
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Stopped);
    box.play(true);
    EXPECT_EQ(players.requested.constLast(), threeItems[0]);
    EXPECT_TRUE(players.last->isPlaying());
}

} // namespace
