#include "content/QtPrinters.h"
#include "speech/VoPSRecognizer.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using WordCounts = QList<std::pair<QString, int32_t>>;

TEST(PhraseWords, AsciiRunsFollowedByASeparator)
{
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"Wie geht's?"_s, false),
              (QStringList{u"Wie"_s, u"geht's"_s}));
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"Wie geht's?"_s, true),
              (QStringList{u"WIE"_s, u"GEHT'S"_s}));
    // The last word needs no separator of its own.
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"guten Tag"_s, true),
              (QStringList{u"GUTEN"_s, u"TAG"_s}));
    // A digit or a hyphen ends a run; only a run that a separator follows is a word.
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"um 3Uhr, U-Bahn!"_s, true),
              (QStringList{u"UM"_s, u"UHR"_s, u"BAHN"_s}));
}

TEST(PhraseWords, LettersOutsideAsciiCutTheWord)
{
    // Only the ASCII tail after the last other letter counts, and only with a separator after it.
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"Müller "_s, false), QStringList{u"ller"_s});
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"Straße"_s, true), QStringList{u"E"_s});
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"Grüß Gott"_s, true), QStringList{u"GOTT"_s});
    // Not even those that fold to ASCII letters: the long s and the Kelvin sign.
    EXPECT_EQ(VoPSRecognizer::getAllWordFromText(u"Stra\u017Fe \u212Aatze"_s, false),
              (QStringList{u"e"_s, u"atze"_s}));
}

TEST(PhraseWords, TextsWithoutWords)
{
    for (const QString &text : {u""_s, u"?!., "_s, u"Привет, мир!"_s, u"(Hallo)"_s, u"12 34."_s})
        EXPECT_TRUE(VoPSRecognizer::getAllWordFromText(text, true).isEmpty())
            << qUtf8Printable(text);
}

TEST(PhraseWords, CountsInOrderOfFirstUse)
{
    EXPECT_EQ(VoPSRecognizer::getWordsCount(u"Guten Tag, guten Abend. Tag!"_s),
              (WordCounts{{u"GUTEN"_s, 2}, {u"TAG"_s, 2}, {u"ABEND"_s, 1}}));
    EXPECT_TRUE(VoPSRecognizer::getWordsCount(u"..."_s).isEmpty());

    QString many;
    for (int i = 0; i < 100'000; ++i)
        many += (i % 3 == 0 ? u"ja "_s : u"nein "_s);
    EXPECT_EQ(VoPSRecognizer::getWordsCount(many),
              (WordCounts{{u"JA"_s, 33'334}, {u"NEIN"_s, 66'666}}));
}
