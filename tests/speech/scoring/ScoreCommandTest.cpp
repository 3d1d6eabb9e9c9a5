#include "content/VoFileUtil.h"
#include "tools/CliRunner.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

CliRun score(const QString &phrase, const QByteArray &words, const QStringList &more = {})
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"words.json"_s);
    EXPECT_TRUE(VoFileUtil::writeFileAtomically(file, words));
    return runCli(QStringList{u"score"_s, u"--text"_s, phrase, u"--words"_s, file} + more);
}

} // namespace

TEST(ScoreCommand, PrintsScoreMarkAndAdviceAsTextAndJson)
{
    const CliRun run = score(u"Guten Morgen."_s, R"j([
        {"word": "<s>", "logProbability": 1, "startFrame": 0, "endFrame": 20},
        {"word": "guten", "logProbability": 0.8}, {"word": "morgen(2)", "logProbability": 0.6},
        {"word": "</s>", "logProbability": 1}])j");
    EXPECT_EQ(run.outLines(),
              (QStringList{u"score\t91"_s, u"mark\t9"_s, u"words_score\tGUTEN:80;MORGEN:60"_s}))
        << run.err.toStdString();

    // 80.64f widened to double is 80.63999938964844; the file says what the float says.
    const CliRun json = score(u"eins zwei drei vier"_s, R"([
        {"word": "eins", "logProbability": 0.8}, {"word": "hallo", "logProbability": 0.8},
        {"word": "zwei", "logProbability": 0.8}, {"word": "drei", "logProbability": 0.8},
        {"word": "bitte", "logProbability": 0.8}])",
                              {u"--json"_s});
    ASSERT_EQ(json.outLines().size(), 1) << json.err.toStdString();
    EXPECT_TRUE(json.out.contains(uR"("score":80.64)"_s)) << json.out.toStdString();
    const QJsonObject result = QJsonDocument::fromJson(json.out.toUtf8()).object();
    EXPECT_EQ(result.value(u"mark"_s).toInt(-1), 8);
    EXPECT_EQ(result.value(u"advice"_s).toObject(),
              (QJsonObject{{u"words_score"_s, u"EINS:80;ZWEI:80;DREI:80;VIER:0"_s}}));
}

TEST(ScoreCommand, BadInputEndsWithOneLine)
{
    expectOneLineFailure(
        runCli({u"score"_s, u"--text"_s, u"Hallo"_s, u"--words"_s, u"/no/such/words.json"_s}),
        u"cannot read /no/such/words.json"_s);
    expectOneLineFailure(score(u"Hallo"_s, "[{\"word\": "), u"words.json"_s);
    expectOneLineFailure(score(u"Hallo"_s, R"({"word": "hallo"})"), u"not an array"_s);
    expectOneLineFailure(score(u"Hallo"_s, R"([{"word": "hallo"}, "hallo"])"),
                         u"entry 1 is not an object"_s);
}
