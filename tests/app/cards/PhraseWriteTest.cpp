#include "app/AppColors.h"
#include "app/PhraseWriteController.h"
#include "app/UserRecord.h"
#include "content/UserInfoFile.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Verdict = PhraseWriteController::Verdict;

namespace {

class PhraseWriteTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(writeUserInfo(initialUserInfo())); }

    static qint64 writes() { return userInfoInt(UserInfoKey::writeCount); }

    static Verdict check(const QString &phrase, const QString &typed)
    {
        PhraseWriteController writing;
        writing.setWordText(phrase);
        writing.setInput(typed);
        writing.submit();
        return writing.verdict();
    }
};

} // namespace

TEST_F(PhraseWriteTest, OnlyLetterCaseIsForgiven)
{
    EXPECT_EQ(check(u"Wie geht's?"_s, u"wie GEHT'S?"_s), Verdict::Right);
    EXPECT_EQ(check(u"Grüße aus Köln."_s, u"GRÜSSE AUS KÖLN."_s), Verdict::Wrong)
        << "lower-casing, not case folding: ß stays apart from ss";
    EXPECT_EQ(check(u"Straße"_s, u"STRAßE"_s), Verdict::Right);
    EXPECT_EQ(check(u""_s, u""_s), Verdict::Right);
    EXPECT_EQ(writes(), 3);

    for (const QString &typed : {u"Wie geht's? "_s, u" Wie geht's?"_s, u"Wie gehts?"_s,
                                 u"Wie geht's"_s, u"Wie geht’s?"_s, u""_s})
        EXPECT_EQ(check(u"Wie geht's?"_s, typed), Verdict::Wrong) << qPrintable(typed);
    EXPECT_EQ(writes(), 3);
}

TEST_F(PhraseWriteTest, SubmitShowsThePhraseFreezesTheInputAndColoursIt)
{
    PhraseWriteController writing;
    writing.setWordText(u"Guten Morgen!"_s);
    EXPECT_FALSE(writing.submitted());
    EXPECT_EQ(writing.inputColor(), AppColors::text());

    writing.setInput(u"Guten Tag!"_s);
    writing.submit();
    EXPECT_TRUE(writing.submitted());
    EXPECT_EQ(writing.verdict(), Verdict::Wrong);
    EXPECT_EQ(writing.inputColor(), PhraseWriteController::wrongColor());

    // Frozen: typing and submitting again change nothing until redo.
    writing.setInput(u"Guten Morgen!"_s);
    writing.submit();
    EXPECT_EQ(writing.input(), u"Guten Tag!"_s);
    EXPECT_EQ(writing.verdict(), Verdict::Wrong);
    EXPECT_EQ(writes(), 0);

    QSignalSpy verdict(&writing, &PhraseWriteController::verdictChanged);
    writing.redo();
    EXPECT_FALSE(writing.submitted());
    EXPECT_TRUE(writing.input().isEmpty());
    EXPECT_EQ(writing.inputColor(), AppColors::text());
    writing.setInput(u"guten morgen!"_s);
    writing.submit();
    EXPECT_EQ(writing.verdict(), Verdict::Right);
    EXPECT_EQ(writing.inputColor(), PhraseWriteController::rightColor());
    writing.submit();
    EXPECT_EQ(verdict.count(), 2);
    EXPECT_EQ(writes(), 1) << "one match, one count";
}

TEST_F(PhraseWriteTest, AnotherPhraseStartsAFreshAttempt)
{
    PhraseWriteController writing;
    writing.setWordText(u"Danke."_s);
    writing.setInput(u"Danke."_s);
    writing.submit();
    writing.setWordText(u"Bitte."_s);
    EXPECT_FALSE(writing.submitted());
    EXPECT_TRUE(writing.input().isEmpty());
    writing.setInput(u"bitte."_s);
    writing.submit();
    EXPECT_EQ(writes(), 2);
}
