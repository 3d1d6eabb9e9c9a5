#include "CliRunner.h"

TEST(Words, OneWordALineKeepingApostrophes)
{
    const CliRun upper = runCli({u"words"_s, u"--upper"_s, u"Wie geht's?"_s});
    EXPECT_EQ(upper.exitCode, 0) << upper.err.toStdString();
    EXPECT_EQ(upper.outLines(), (QStringList{u"WIE"_s, u"GEHT'S"_s}));

    const CliRun plain = runCli({u"words"_s, u"Wie geht's?"_s});
    EXPECT_EQ(plain.outLines(), (QStringList{u"Wie"_s, u"geht's"_s}));
}
