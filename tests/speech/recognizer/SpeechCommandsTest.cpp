#include "content/VoFileUtil.h"
#include "speech/SpeechTestSupport.h"
#include "tools/CliRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

CliRun assess(const QStringList &more)
{
    return runCli(QStringList{u"assess"_s, u"--text"_s, u"Guten Morgen!"_s, gutenMorgenVoice(),
                              u"--hmm"_s, TestPaths::acousticModel()} +
                  more);
}

} // namespace

TEST(AssessCommand, PrintsWordsScoreMarkAndAdviceAsTextAndJson)
{
    const CliRun text = assess({});
    ASSERT_EQ(text.exitCode, 0) << text.err.toStdString();
    const QStringList lines = text.outLines();
    ASSERT_GT(lines.size(), 1);
    EXPECT_EQ(lines.first(), u"hypothesis: GUTEN MORGEN"_s);
    EXPECT_TRUE(lines[1].startsWith(u"word <s> frames 0-"_s)) << lines[1].toStdString();
    EXPECT_EQ(lines.filter(QRegularExpression(u"^word (GUTEN|MORGEN) frames "_s)).size(), 2);
    const QStringList scoreLines = lines.filter(QRegularExpression(u"^score: [0-9.]+$"_s));
    const QStringList markLines = lines.filter(QRegularExpression(u"^mark: [0-9]+/10$"_s));
    ASSERT_EQ(scoreLines.size(), 1);
    ASSERT_EQ(markLines.size(), 1);
    EXPECT_EQ(lines.filter(u"advice words_score: GUTEN:"_s).size(), 1);

    const CliRun run = assess({u"--json"_s});
    ASSERT_EQ(run.outLines().size(), 1) << run.err.toStdString();
    const QJsonObject json = QJsonDocument::fromJson(run.out.toUtf8()).object();
    EXPECT_EQ(json.value(u"hypothesis"_s).toString(), u"GUTEN MORGEN"_s);
    // The decoder's dither is seeded the same in every process.
    EXPECT_GT(json.value(u"score"_s).toDouble(-1.0), 0.0);
    EXPECT_EQ(scoreLines.first().mid(7).toDouble(), json.value(u"score"_s).toDouble());
    EXPECT_EQ(markLines.first().mid(6).section(u'/', 0, 0).toInt(), json.value(u"mark"_s).toInt());
    const QJsonObject check = json.value(u"verification"_s).toObject();
    EXPECT_TRUE(check.value(u"checked"_s).toBool());
    const QJsonArray words = check.value(u"words"_s).toArray();
    ASSERT_EQ(words.size(), 2);
    EXPECT_EQ(words[1].toObject().value(u"word"_s).toString(), u"Morgen"_s);
    EXPECT_NE(words[1].toObject().value(u"verdict"_s).toString(), u"missing"_s);
    EXPECT_TRUE(json.value(u"advice"_s).toObject().contains(u"words_score"_s));
}

TEST(SpeechCommands, BadRecordingsFailWithOneLine)
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(u"missing.wav"_s);
    const QString damaged = folder.filePath(u"damaged.wav"_s);
    const QString png = folder.filePath(u"out.png"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(damaged, "no sound in here at all"));
    expectOneLineFailure(runCli({u"assess"_s, u"--text"_s, u"Guten Morgen!"_s, missing}),
                         u"missing.wav"_s);
    expectOneLineFailure(runCli({u"spectrum"_s, missing, u"--png"_s, png}), u"missing.wav"_s);
    expectOneLineFailure(runCli({u"spectrum"_s, damaged, u"--png"_s, png}), u"damaged.wav"_s);
    EXPECT_FALSE(QFile::exists(png));
}

TEST(LmCommand, WritesTheDecodersTwoFiles)
{
    const QTemporaryDir folder;
    const CliRun run = runCli({u"lm"_s, u"--name"_s, u"greeting"_s, u"--out"_s, folder.path(),
                               u"--hmm"_s, TestPaths::acousticModel(), u"GUTEN"_s, u"MORGEN"_s});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QStringList files{folder.filePath(u"greeting.DMP"_s), folder.filePath(u"greeting.dic"_s)};
    EXPECT_EQ(run.outLines(), files);
    for (const QString &file : files)
        EXPECT_GT(QFileInfo(file).size(), 0) << file.toStdString();

    // A folder that cannot be made is the machine's failure, not the input's.
    const QString blocked = folder.filePath(u"greeting.dic"_s) + u"/lm"_s;
    const CliRun refused = runCli({u"lm"_s, u"--name"_s, u"greeting"_s, u"--out"_s, blocked,
                                   u"--hmm"_s, TestPaths::acousticModel(), u"GUTEN"_s});
    expectOneLineFailure(refused, blocked, 3);
}
