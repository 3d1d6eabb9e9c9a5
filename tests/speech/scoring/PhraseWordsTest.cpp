#include "content/QtPrinters.h"
#include "speech/VoPSRecognizer.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using WordCounts = QList<std::pair<QString, int32_t>>;

TEST(PhraseWords, AsciiRunsFollowedByASeparator)
{
    const struct {
        QString text;
        bool upper;
        QStringList words;
    } cases[] = {
        {u"Wie geht's?"_s, false, {u"Wie"_s, u"geht's"_s}},
        {u"Wie geht's?"_s, true, {u"WIE"_s, u"GEHT'S"_s}},
        // The last word needs no separator of its own.
        {u"guten Tag"_s, true, {u"GUTEN"_s, u"TAG"_s}},
        // A digit or a hyphen ends a run; only a run that a separator follows is a word.
        {u"um 3Uhr, U-Bahn!"_s, true, {u"UM"_s, u"UHR"_s, u"BAHN"_s}},
        // Only the ASCII tail after the last other letter counts.
        {u"Müller "_s, false, {u"ller"_s}},
        {u"Straße"_s, true, {u"E"_s}},
        {u"Grüß Gott"_s, true, {u"GOTT"_s}},
        {u""_s, true, {}},
        {u"?!., "_s, true, {}},
        {u"Привет, мир!"_s, true, {}},
        {u"(Hallo)"_s, true, {}},
        {u"12 34."_s, true, {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(VoPSRecognizer::getAllWordFromText(c.text, c.upper), c.words)
            << qUtf8Printable(c.text);
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
