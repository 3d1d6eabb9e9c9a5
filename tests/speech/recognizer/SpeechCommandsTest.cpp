#include "tools/CliRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <cmath>

namespace {

const QString gutenMorgenVoice()
{
    return TestPaths::course() + u"/1/voices/101.mp3"_s;
}

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
    ASSERT_EQ(scoreLines.size(), 1);
    EXPECT_EQ(lines.filter(QRegularExpression(u"^mark: [0-9]+/10$"_s)).size(), 1);
    EXPECT_EQ(lines.filter(u"advice words_score: GUTEN:"_s).size(), 1);

    const CliRun run = assess({u"--json"_s});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    ASSERT_EQ(run.outLines().size(), 1);
    QJsonParseError error{};
    const QJsonObject json = QJsonDocument::fromJson(run.out.toUtf8(), &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError) << run.out.toStdString();
    EXPECT_EQ(json.value(u"hypothesis"_s).toString(), u"GUTEN MORGEN"_s);
    const double score = json.value(u"score"_s).toDouble(-1.0);
    EXPECT_GT(score, 0.0);
    EXPECT_LE(score, 100.0);
    // The decoder's dither is seeded the same in every process.
    EXPECT_EQ(scoreLines.first().mid(7).toDouble(), score);
    // The check heard both words: the mark is at least the recogniser's.
    EXPECT_GE(json.value(u"mark"_s).toInt(-1), static_cast<int>(std::floor(score / 10.0)));
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
    expectOneLineFailure(runCli({u"assess"_s, u"--text"_s, u"Guten Morgen!"_s, missing}),
                         u"missing.wav"_s);
    const QString png = folder.filePath(u"out.png"_s);
    expectOneLineFailure(runCli({u"spectrum"_s, missing, u"--png"_s, png}), u"missing.wav"_s);

    QFile damaged(folder.filePath(u"damaged.wav"_s));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no sound in here at all");
    damaged.close();
    expectOneLineFailure(runCli({u"spectrum"_s, damaged.fileName(), u"--png"_s, png}),
                         u"damaged.wav"_s);
    EXPECT_FALSE(QFile::exists(png));
}

TEST(LmCommand, WritesTheDecodersTwoFiles)
{
    const QTemporaryDir folder;
    const CliRun run = runCli({u"lm"_s, u"--name"_s, u"greeting"_s, u"--out"_s, folder.path(),
                               u"--hmm"_s, TestPaths::acousticModel(), u"GUTEN"_s, u"MORGEN"_s});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(run.outLines(), QStringList({folder.filePath(u"greeting.DMP"_s),
                                           folder.filePath(u"greeting.dic"_s)}));
    EXPECT_GT(QFileInfo(folder.filePath(u"greeting.DMP"_s)).size(), 0);
    QFile dictionary(folder.filePath(u"greeting.dic"_s));
    ASSERT_TRUE(dictionary.open(QIODevice::ReadOnly));
    EXPECT_TRUE(dictionary.readAll().startsWith("GUTEN\t"));
}
