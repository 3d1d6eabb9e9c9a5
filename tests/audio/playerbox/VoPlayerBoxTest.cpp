#include "audio/VoPlayerBox.h"

#include "PlayerBoxRecorder.h"
#include "content/QtPrinters.h"
#include "stubs/AudioPlayerStub.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList threeItems{u"/course/a.mp3"_s, u"/course/b.mp3"_s, u"/course/c.mp3"_s};

class VoPlayerBoxTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    VoPlayerBox box;
    PlayerBoxRecorder recorder{box};

    /// The sounding item ends by itself.
    void finishItem() const
    {
        ASSERT_NE(players.last, nullptr);
        players.last->finishPlaying();
    }

    /// Image name and enabled flag of each control, as a bar would show them.
    [[nodiscard]] QString controls() const
    {
        const auto flag = [](bool enabled) {
            return enabled ? u""_s : u"-"_s;
        };
        return QStringList{box.playImage(),
                           flag(box.stopEnabled()) + box.stopImage(),
                           flag(box.lastEnabled()) + box.lastImage(),
                           flag(box.nextEnabled()) + box.nextImage(),
                           flag(box.speedDownEnabled()) + box.speedDownImage(),
                           flag(box.speedUpEnabled()) + box.speedUpImage()}
            .join(u' ');
    }
};

} // namespace

TEST_F(VoPlayerBoxTest, PlayPauseResumeAndStopFollowTheStateTable)
{
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Finished);
    EXPECT_EQ(box.currItemIndex(), -1);
    EXPECT_EQ(box.playRate(), 1.0F);
    EXPECT_EQ(box.playModel(), VoPlayerBox::Sequential);

    box.setupPlayer(threeItems);
    box.play(true);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);
    EXPECT_EQ(players.requested, QStringList{threeItems[0]});
    EXPECT_TRUE(players.last->isPlaying());
    EXPECT_TRUE(box.isTimerRunning());
    EXPECT_FLOAT_EQ(box.timerInterval(), 0.1F);
    EXPECT_EQ(controls(), u"vo_pause vo_stop -last_item2 next_item speeddown speedup"_s);
    EXPECT_EQ(recorder.take(), QStringList{u"played"_s});

    box.play(true);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Paused);
    EXPECT_FALSE(players.last->isPlaying());
    EXPECT_TRUE(box.isTimerRunning()) << "a paused box keeps ticking";
    EXPECT_EQ(controls(), u"vo_play vo_stop -last_item2 next_item -speeddown2 -speedup2"_s);

    box.play(true);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);
    EXPECT_TRUE(players.last->isPlaying());
    EXPECT_EQ(players.requested.size(), 1) << "resuming opens nothing";

    box.playNextItem();
    players.last->setCurrentTime(0.7);
    box.stop();
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Stopped);
    EXPECT_FALSE(players.last->isPlaying());
    EXPECT_EQ(players.last->currentTime(), 0.0) << "rewound";
    EXPECT_FALSE(box.isTimerRunning());
    EXPECT_EQ(box.currItemIndex(), 0);
    // The images are set before the index goes back to 0: the previous button stays enabled.
    EXPECT_EQ(controls(), u"vo_play -vo_stop2 last_item next_item -speeddown2 -speedup2"_s);
    EXPECT_EQ(recorder.take(), (QStringList{u"stopped"_s, u"played"_s, u"stopped"_s}));

    box.stop();
    EXPECT_TRUE(recorder.take().isEmpty()) << "a stopped box ignores stop";

    // Stopping a paused box leaves its timer running, reporting an unchanged time.
    box.play(true);
    box.play(true);
    box.stop();
    EXPECT_TRUE(box.isTimerRunning());
}

TEST_F(VoPlayerBoxTest, SequenceStopsAfterTheLastItemAndAPressThereStartsAgain)
{
    box.setupPlayer(threeItems);
    box.play(true);
    finishItem();
    finishItem();
    EXPECT_EQ(box.currItemIndex(), 2);
    EXPECT_EQ(controls(), u"vo_pause vo_stop last_item -next_item2 speeddown speedup"_s);
    finishItem();
    EXPECT_EQ(players.requested, threeItems);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Finished);
    EXPECT_EQ(box.currItemIndex(), 2);

    // The press plays the last item again and at once the first: the wrap rule.
    box.play(true);
    EXPECT_EQ(players.requested.mid(3), (QStringList{threeItems[2], threeItems[0]}));
    EXPECT_EQ(box.currItemIndex(), 0);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);

    // Even a press that resumes a pause on the last item wraps; a call without a press does not.
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
    EXPECT_EQ(players.requested, (QStringList{threeItems[1], threeItems[1], threeItems[1]}));

    box.switchPlayModel();
    EXPECT_EQ(box.playModelImage(), u"replay_all"_s);
    players.requested.clear();
    finishItem();
    finishItem();
    finishItem();
    EXPECT_EQ(players.requested, (QStringList{threeItems[2], threeItems[0], threeItems[1]}));

    box.switchPlayModel();
    EXPECT_EQ(box.playModel(), VoPlayerBox::Sequential);
    EXPECT_EQ(box.playModelImage(), u"replay_seq"_s);
}

TEST_F(VoPlayerBoxTest, OneItemListRepeatsInRepeatAllAndDoesNotWrapInSequence)
{
    box.setupPlayer({threeItems[0]});
    box.play(true);
    finishItem();
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Finished);
    box.play(true);
    EXPECT_EQ(players.requested.size(), 2) << "index 0 is never wrapped";
    EXPECT_EQ(controls(), u"vo_pause vo_stop -last_item2 -next_item2 speeddown speedup"_s);

    box.switchPlayModel();
    box.switchPlayModel();
    finishItem();
    finishItem();
    EXPECT_EQ(players.requested, QStringList(4, threeItems[0]));
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);
}

TEST_F(VoPlayerBoxTest, SpeedStepsOnlyWhilePlayingAndThePlayerRateIsClamped)
{
    box.setupPlayer(threeItems);
    box.speedUp();
    box.play(true);
    box.play(true);
    box.speedUp();
    box.speedDown();
    EXPECT_EQ(box.playRate(), 1.0F) << "stopped or paused: nothing changes";
    EXPECT_FALSE(box.speedRemindVisible());

    box.play(true);
    for (int press = 0; press < 5; ++press)
        box.speedUp();
    EXPECT_FLOAT_EQ(box.playRate(), 2.0F);
    EXPECT_FLOAT_EQ(players.last->rate(), 2.0F);
    box.speedUp();
    EXPECT_FLOAT_EQ(box.playRate(), 2.2F);
    EXPECT_FLOAT_EQ(players.last->rate(), 2.0F);
    EXPECT_TRUE(box.speedRemindVisible());
    EXPECT_EQ(box.speedRemindText(), u"2.0X"_s);
    EXPECT_EQ(box.speedRemindAnchor(), u"speedUp"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box.speedRemindVisible(); }, 1000));

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

TEST_F(VoPlayerBoxTest, PreviousAndNextStopAtTheEndsAndTheNextRuleIsUnsigned)
{
    box.resetBtnImage();
    EXPECT_FALSE(box.nextEnabled()) << "no list, index -1";
    box.setupPlayer({});
    box.resetBtnImage();
    EXPECT_TRUE(box.nextEnabled()) << "no list, index 0: count - 1 wraps round as unsigned";
    box.playNextItem();
    EXPECT_TRUE(players.requested.isEmpty());

    box.setupPlayer(threeItems);
    box.play(true);
    box.playLastItem();
    EXPECT_EQ(players.requested.size(), 1);
    box.playItem(2);
    box.playNextItem();
    box.playItem(3);
    box.playItem(-1);
    EXPECT_EQ(players.requested, (QStringList{threeItems[0], threeItems[2]}));
    box.playLastItem();
    EXPECT_EQ(box.currItemIndex(), 1);
    EXPECT_EQ(controls(), u"vo_pause vo_stop last_item next_item speeddown speedup"_s);
}

TEST_F(VoPlayerBoxTest, DelayBetweenItemsKeepsTheCallbackOrder)
{
    box.setupPlayer(threeItems);
    box.play(true);
    box.tick();
    recorder.take();

    box.setTimeOfItemdelay(1);
    finishItem();
    EXPECT_EQ(recorder.take(), (QStringList{u"finished"_s, u"stopped"_s}));
    EXPECT_TRUE(box.waitingToStart());
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Finished);
    EXPECT_EQ(box.currItemIndex(), 1);
    EXPECT_EQ(players.requested.size(), 1) << "the next item opens only after the pause";
    QTest::qWait(300);
    EXPECT_TRUE(recorder.take().isEmpty()) << "nothing ticks during the pause";

    ASSERT_TRUE(QTest::qWaitFor([&] { return box.playStatus() == VoPlayerBox::Playing; }, 3000));
    EXPECT_FALSE(box.waitingToStart());
    EXPECT_EQ(players.requested.constLast(), threeItems[1]);
    QTest::qWait(250);
    EXPECT_EQ(recorder.take(), (QStringList{u"played"_s, u"tick"_s}));

    // Stop during the pause cancels the start.
    finishItem();
    box.stop();
    QTest::qWait(1300);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Stopped);
    EXPECT_EQ(players.requested.size(), 2);
    EXPECT_EQ(recorder.take(), (QStringList{u"finished"_s, u"stopped"_s, u"stopped"_s}));
}

TEST_F(VoPlayerBoxTest, OnePlayerIsSharedByAllBoxes)
{
    box.setupPlayer(threeItems);
    box.play(true);
    AudioPlayerStub *first = players.last;
    recorder.take();
    {
        VoPlayerBox other;
        other.setupPlayer({u"/course/x.mp3"_s});
        other.play(true);
        EXPECT_FALSE(first->isPlaying()) << "the new start silences the other box";
        EXPECT_EQ(VoPlayerBox::audioPlayer(), players.last);

        PlayerBoxRecorder otherRecorder(other);
        players.last->finishPlaying();
        EXPECT_EQ(otherRecorder.take(), (QStringList{u"finished"_s}));
        EXPECT_TRUE(recorder.take().isEmpty()) << "only the box that started it hears the end";
    }
    EXPECT_EQ(VoPlayerBox::audioPlayer(), nullptr) << "the box took its sound with it";
}

TEST_F(VoPlayerBoxTest, AMissingFileStillPlaysWithoutAPlayer)
{
    players.unplayable = {threeItems[1]};
    box.setupPlayer(threeItems);
    box.playItem(1);
    EXPECT_EQ(VoPlayerBox::audioPlayer(), nullptr);
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Playing);
    EXPECT_TRUE(box.isTimerRunning());
    box.tick();
    EXPECT_EQ(box.timeText(), u"00:00"_s);
    EXPECT_EQ(recorder.take(),
              (QStringList{u"stopped(null)"_s, u"played(null)"_s, u"tick(null)"_s}));

    box.speedUp();
    box.play(true);
    box.play(true);
    box.stop();
    EXPECT_EQ(box.playStatus(), VoPlayerBox::Stopped);
    box.play(true);
    EXPECT_EQ(players.requested.constLast(), threeItems[0]);
    EXPECT_TRUE(players.last->isPlaying());
}

TEST_F(VoPlayerBoxTest, ItemsStartWithTheLoopsVolumeAndElapsedTime)
{
    box.setupPlayer(threeItems, 2, 0);
    box.setVolumeSliderValue(0.4);
    box.play(true);
    EXPECT_EQ(players.last->numberOfLoops(), 2);
    EXPECT_FLOAT_EQ(players.last->volume(), 0.4F);

    box.setNumberOfItemLoops(1);
    box.setVolumeSliderValue({});
    box.playNextItem();
    EXPECT_EQ(players.last->numberOfLoops(), 0) << "1 adds no repetition";
    EXPECT_FLOAT_EQ(players.last->volume(), 1.0F) << "no slider, the player's own volume";

    QList<float> intervals;
    QObject::connect(&box, &VoPlayerBox::periodicTimeObserver, &box,
                     [&](AudioPlayer *, float interval) { intervals.append(interval); });
    players.last->setCurrentTime(125.7);
    box.tick();
    EXPECT_EQ(box.timeText(), u"02:05"_s);
    EXPECT_EQ(intervals, QList<float>{0.1F});
}
