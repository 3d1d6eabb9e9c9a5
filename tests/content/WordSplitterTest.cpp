#include "QtPrinters.h"
#include "content/VoAppCommon.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(WordSplitter, BlanksAndSentencePunctuationEndWords)
{
    const std::pair<QString, QStringList> cases[] = {
        {u"Wie geht's?"_s, {u"Wie"_s, u"geht's"_s}},
        {u"Ja...nein,danke"_s, {u"Ja"_s, u"nein"_s, u"danke"_s}},
        {u"  Hallo\tdu\nda  "_s, {u"Hallo"_s, u"du"_s, u"da"_s}},
        {u"Guten\u00a0Tag!"_s, {u"Guten"_s, u"Tag"_s}},
        {u"你好、世界。再见"_s, {u"你好"_s, u"世界"_s, u"再见"_s}},
        // Other marks stay inside the word.
        {u"E-Mail um 8:30 Uhr; „gut“"_s, {u"E-Mail"_s, u"um"_s, u"8:30"_s, u"Uhr;"_s, u"„gut“"_s}},
        {QString(), {}},
        {u" .,!? \u3001\u3002 ..."_s, {}},
    };
    for (const auto &[text, words] : cases)
        EXPECT_EQ(VoAppCommon::getAllWordFromText(text, false), words) << qPrintable(text);

    EXPECT_EQ(VoAppCommon::getAllWordFromText(u"Straße schön"_s, true),
              (QStringList{u"STRASSE"_s, u"SCHÖN"_s}));
}
