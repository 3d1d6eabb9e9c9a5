#include "CliRunner.h"
#include "app/UserRecord.h"
#include "content/PlistCodec.h"
#include "content/UserInfoFile.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QRegularExpression>
#include <limits>

TEST(RecordShow, PrintsEveryCounterAndTheExperienceAndRefusesDamagedRecordsWithOneLine)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(u"userInfo.plist"_s);
    const auto show = [&] {
        return runCli({u"record"_s, u"show"_s, u"--record"_s, path});
    };
    expectOneLineFailure(show(), path);

    // A sound record under the wrong key, and a cut one, read as damage, not as empty records.
    const QString xml = QString::fromUtf8(PlistCodec::toXml(initialUserInfo()));
    for (const QString &key : {VoCryptor::contentKey, VoCryptor::recordKey}) {
        const QString plain = key == VoCryptor::recordKey ? xml.left(60) : xml;
        ASSERT_TRUE(
            VoFileUtil::writeFileAtomically(path, VoCryptor::encryptWithDES(plain, key).toUtf8()));
        expectOneLineFailure(show(), path);
    }

    QVariantMap record = initialUserInfo();
    record.remove(UserInfoKey::quizCount);
    ASSERT_TRUE(UserInfoFile(path).write(record));
    expectOneLineFailure(show(), UserInfoKey::quizCount);

    // Each counter fits, but the weighted total does not.
    record = initialUserInfo();
    record.insert(UserInfoKey::reviewed, std::numeric_limits<qint64>::max() / 10);
    ASSERT_TRUE(UserInfoFile(path).write(record));
    expectOneLineFailure(show(), u"experience"_s);

    // Distinct values, so a counter printed under another's name shows.
    qint64 value = 0;
    for (auto it = record.begin(); it != record.end(); ++it)
        *it = (++value) * 3;
    ASSERT_TRUE(UserInfoFile(path).write(record));
    const CliRun run = show();
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    // Weights 10 start, 5 listen, read and write, 10 quizzes, 1 score and word score, 1000 review.
    EXPECT_EQ(run.outLines(),
              (QStringList{u"kAdvised\t3"_s, u"kAwordScore\t6"_s, u"kListenCount\t9"_s,
                           u"kQuizCount\t12"_s, u"kQuizTotalScore\t15"_s, u"kReadCount\t18"_s,
                           u"kReviewed\t21"_s, u"kStartCount\t24"_s, u"kWriteCount\t27"_s,
                           u"kshared\t30"_s, u"experience\t21651"_s}));
}

TEST(Words, OneWordALineKeepingApostrophes)
{
    EXPECT_EQ(runCli({u"words"_s, u"--upper"_s, u"Wie"_s, u"geht's?"_s}).outLines(),
              (QStringList{u"WIE"_s, u"GEHT'S"_s}));
}

// Every command the overview lists has its own page naming each of its options; asking about a
// command that does not exist is wrong usage.
TEST(Help, EveryCommandInTheOverviewHasAPageWithItsOptions)
{
    const CliRun overview = runCli({u"--help"_s});
    ASSERT_EQ(overview.exitCode, 0);
    QStringList commands;
    for (const QString &line : overview.outLines())
        if (line.startsWith(u"  "_s) && !commands.contains(line.section(u' ', 2, 2)))
            commands.append(line.section(u' ', 2, 2));
    EXPECT_GE(commands.size(), 9) << overview.out.toStdString();
    static const QRegularExpression option(u"--[a-z]+"_s);
    for (const QString &command : std::as_const(commands)) {
        const CliRun page = runCli({u"help"_s, command});
        EXPECT_EQ(page.exitCode, 0) << command.toStdString();
        EXPECT_TRUE(page.out.startsWith(u"usage: tolvane-cli "_s + command))
            << page.out.toStdString();
        const QString usage = page.out.section(u"\n\n"_s, 0, 0);
        const QString options = page.out.section(u"options:"_s, 1);
        for (const QRegularExpressionMatch &used : option.globalMatch(usage))
            EXPECT_TRUE(options.contains(used.captured() + u' '))
                << command.toStdString() << " does not describe " << used.captured().toStdString();
    }
    const CliRun unknown = runCli({u"help"_s, u"nosuch"_s});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_TRUE(unknown.err.startsWith(u"tolvane-cli: help: no command \"nosuch\""_s))
        << unknown.err.toStdString();
}
