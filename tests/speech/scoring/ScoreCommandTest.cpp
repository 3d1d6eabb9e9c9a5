#include "tools/CliRunner.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

const QByteArray gutenMorgen = R"json([
    {"word": "<s>", "logProbability": 1, "startFrame": 0, "endFrame": 20},
    {"word": "guten", "logProbability": 0.8},
    {"word": "morgen(2)", "logProbability": 0.6},
    {"word": "</s>", "logProbability": 1}
])json";

/// The score member with exactly this number text, wherever it stands in the object.
QRegularExpression scoreNumber(const QString &text)
{
    return QRegularExpression(uR"("score":%1[,}])"_s.arg(QRegularExpression::escape(text)));
}

CliRun score(const QString &phrase, const QByteArray &words, const QStringList &more = {})
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"words.json"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(words) == words.size());
    file.close();
    return runCli(QStringList{u"score"_s, u"--text"_s, phrase, u"--words"_s, file.fileName()} +
                  more);
}

} // namespace

TEST(ScoreCommand, PrintsScoreMarkAndAdvice)
{
    const CliRun run = score(u"Guten Morgen."_s, gutenMorgen);
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(run.outLines(),
              (QStringList{u"score\t91"_s, u"mark\t9"_s, u"words_score\tGUTEN:80;MORGEN:60"_s}));

    const CliRun silent = score(u"Guten Morgen."_s, R"([{"word": "<sil>"}])");
    EXPECT_EQ(silent.outLines(),
              (QStringList{u"score\t0"_s, u"mark\t0"_s, u"no_voice\tNo voice detected"_s}));
}

TEST(ScoreCommand, JsonHoldsTheShortestScore)
{
    const CliRun run = score(u"Guten Morgen."_s, gutenMorgen, {u"--json"_s});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    ASSERT_EQ(run.outLines().size(), 1) << run.out.toStdString();
    EXPECT_TRUE(run.out.contains(scoreNumber(u"91"_s))) << run.out.toStdString();
    const QJsonObject result = QJsonDocument::fromJson(run.out.toUtf8()).object();
    EXPECT_EQ(result.value(u"mark"_s).toInt(-1), 9);
    EXPECT_EQ(result.value(u"advice"_s).toObject(),
              (QJsonObject{{u"words_score"_s, u"GUTEN:80;MORGEN:60"_s}}));

    // 80.64f widened to double is 80.63999938964844; the file says what the float says.
    const CliRun extra = score(u"eins zwei drei vier"_s, R"([
        {"word": "eins", "logProbability": 0.8}, {"word": "hallo", "logProbability": 0.8},
        {"word": "zwei", "logProbability": 0.8}, {"word": "drei", "logProbability": 0.8},
        {"word": "bitte", "logProbability": 0.8}])",
                               {u"--json"_s});
    EXPECT_TRUE(extra.out.contains(scoreNumber(u"80.64"_s))) << extra.out.toStdString();
    EXPECT_TRUE(extra.out.contains(uR"("mark":8)"_s)) << extra.out.toStdString();
}

TEST(ScoreCommand, BadInputEndsWithOneLine)
{
    expectOneLineFailure(
        runCli({u"score"_s, u"--text"_s, u"Hallo"_s, u"--words"_s, u"/no/such/words.json"_s}),
        u"cannot read /no/such/words.json"_s);
    expectOneLineFailure(score(u"Hallo"_s, "[{\"word\": "), u"words.json"_s);
    expectOneLineFailure(score(u"Hallo"_s, ""), u"words.json"_s);
    expectOneLineFailure(score(u"Hallo"_s, R"({"word": "hallo"})"), u"not an array"_s);
    expectOneLineFailure(score(u"Hallo"_s, R"([{"word": "hallo"}, "hallo"])"),
                         u"entry 1 is not an object"_s);
}
