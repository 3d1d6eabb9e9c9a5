#include "QtPrinters.h"
#include "content/VoAppCommon.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QStringList words(const QString &text)
{
    return VoAppCommon::getAllWordFromText(text, false);
}
QStringList upper(const QString &text)
{
    return VoAppCommon::getAllWordFromText(text, true);
}
} // namespace

TEST(WordSplitter, PunctuationEndsWords)
{
    EXPECT_EQ(words(u"Wie geht's?"_s), (QStringList{u"Wie"_s, u"geht's"_s}));
    EXPECT_EQ(words(u"Guten Morgen!"_s), (QStringList{u"Guten"_s, u"Morgen"_s}));
    EXPECT_EQ(words(u"Ja...nein"_s), (QStringList{u"Ja"_s, u"nein"_s}));
    EXPECT_EQ(words(u"z. B."_s), (QStringList{u"z"_s, u"B"_s}));
    EXPECT_EQ(words(u"Nein,danke"_s), (QStringList{u"Nein"_s, u"danke"_s}));
    EXPECT_EQ(words(u"  Hallo\tdu\nda  "_s), (QStringList{u"Hallo"_s, u"du"_s, u"da"_s}));
    EXPECT_EQ(words(u"Guten\u00a0Tag"_s), (QStringList{u"Guten"_s, u"Tag"_s}));
    EXPECT_EQ(words(u"你好、世界。再见"_s), (QStringList{u"你好"_s, u"世界"_s, u"再见"_s}));
}

TEST(WordSplitter, OtherCharactersStayInsideWords)
{
    EXPECT_EQ(words(u"E-Mail um 8:30 Uhr; „gut“"_s),
              (QStringList{u"E-Mail"_s, u"um"_s, u"8:30"_s, u"Uhr;"_s, u"„gut“"_s}));
    EXPECT_EQ(words(u"Größe: 42"_s), (QStringList{u"Größe:"_s, u"42"_s}));
}

TEST(WordSplitter, NoWordsInBlanksAndDelimiters)
{
    EXPECT_TRUE(words(QString()).isEmpty());
    EXPECT_TRUE(words(u" .,!? \u3001\u3002 ..."_s).isEmpty());
}

TEST(WordSplitter, UppercasingIsFullUnicode)
{
    EXPECT_EQ(upper(u"Wie geht's?"_s), (QStringList{u"WIE"_s, u"GEHT'S"_s}));
    EXPECT_EQ(upper(u"Straße schön"_s), (QStringList{u"STRASSE"_s, u"SCHÖN"_s}));
}
