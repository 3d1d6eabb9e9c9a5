#include "LmTestSupport.h"
#include "content/VoFileUtil.h"
#include "speech/lm/LmToolkit.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray records(std::initializer_list<std::array<quint32, 4>> fields)
{
    QByteArray bytes;
    for (const auto &record : fields) {
        for (quint32 field : record) {
            char big[4];
            qToBigEndian(field, big);
            bytes.append(big, 4);
        }
    }
    return bytes;
}

void write(const QString &path, const QByteArray &bytes)
{
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(path, bytes));
}

QStringList without(QStringList arguments, const QString &option)
{
    const qsizetype at = arguments.indexOf(option);
    arguments.remove(at, option == u"-witten_bell"_s ? 1 : 2);
    return arguments;
}

QStringList replaced(QStringList arguments, const QString &option, const QString &value)
{
    arguments[arguments.indexOf(option) + 1] = value;
    return arguments;
}

struct Breakage {
    const char *what;
    // Damages the files of a complete model and gives the arguments of the step to run.
    std::function<QStringList(const ModelFiles &)> damage;
    int (*step)(const QStringList &);
};

} // namespace

// Each case breaks one input of a model that was built fine and reruns one step: the step must
// fail with an error line, not crash and not pretend.
TEST(BadInput, ProgramStepsFailCleanly)
{
    const auto text2idngram = &lm::text2idngram;
    const auto idngram2lm = &lm::idngram2lm;
    const Breakage cases[] = {
        {"no program name", [](const ModelFiles &) { return QStringList(); }, text2idngram},
        {"unknown option",
         [](const ModelFiles &f) { return f.text2idngramArguments() << u"-n"_s << u"3"_s; },
         text2idngram},
        {"option without value",
         [](const ModelFiles &f) { return f.text2idngramArguments().mid(0, 8); }, text2idngram},
        {"no text option",
         [](const ModelFiles &f) { return without(f.text2idngramArguments(), u"-textfile"_s); },
         text2idngram},
        {"missing vocabulary",
         [](const ModelFiles &f) {
             QFile::remove(f.vocabulary);
             return f.text2idngramArguments();
         },
         text2idngram},
        {"vocabulary of comments",
         [](const ModelFiles &f) {
             write(f.vocabulary, "## nothing here\n");
             return f.text2idngramArguments();
         },
         text2idngram},
        {"vocabulary with a word twice",
         [](const ModelFiles &f) {
             write(f.vocabulary, "A\nB\nA\n");
             return f.text2idngramArguments();
         },
         text2idngram},
        {"missing text",
         [](const ModelFiles &f) {
             QFile::remove(f.alternativeCorpus);
             return f.text2idngramArguments();
         },
         text2idngram},
        {"empty text",
         [](const ModelFiles &f) {
             write(f.alternativeCorpus, " \n\t\n");
             return f.text2idngramArguments();
         },
         text2idngram},
        {"temporary folder template in a missing folder",
         [](const ModelFiles &f) {
             return replaced(f.text2idngramArguments(), u"-temp_directory"_s,
                             f.folder + u"/none/cmuclmtk-XXXXXX"_s);
         },
         text2idngram},
        {"id n-grams into a missing folder",
         [](const ModelFiles &f) {
             return replaced(f.text2idngramArguments(), u"-idngram"_s,
                             f.folder + u"/none/m.idngram"_s);
         },
         text2idngram},
        {"open vocabulary",
         [](const ModelFiles &f) {
             return replaced(f.idngram2lmArguments(), u"-vocab_type"_s, u"1"_s);
         },
         idngram2lm},
        {"no discounting named",
         [](const ModelFiles &f) { return without(f.idngram2lmArguments(), u"-witten_bell"_s); },
         idngram2lm},
        {"verbosity not a number",
         [](const ModelFiles &f) {
             return replaced(f.idngram2lmArguments(), u"-verbosity"_s, u"loud"_s);
         },
         idngram2lm},
        {"missing context cues",
         [](const ModelFiles &f) {
             QFile::remove(f.contextCues);
             return f.idngram2lmArguments();
         },
         idngram2lm},
        {"id n-grams cut inside a record",
         [](const ModelFiles &f) {
             write(f.idNgrams, VoFileUtil::readFile(f.idNgrams)->chopped(3));
             return f.idngram2lmArguments();
         },
         idngram2lm},
        {"no id n-grams",
         [](const ModelFiles &f) {
             write(f.idNgrams, {});
             return f.idngram2lmArguments();
         },
         idngram2lm},
        {"word id beyond the vocabulary",
         [](const ModelFiles &f) {
             write(f.idNgrams, records({{{0, 0, 1, 1}}, {{0, 1, 99, 1}}}));
             return f.idngram2lmArguments();
         },
         idngram2lm},
        {"3-gram without its history",
         [](const ModelFiles &f) {
             write(f.idNgrams, records({{{1, 2, 3, 1}}}));
             return f.idngram2lmArguments();
         },
         idngram2lm},
        {"nothing to predict",
         [](const ModelFiles &f) {
             write(f.vocabulary, "<s>\n");
             write(f.idNgrams, records({{{0, 0, 1, 1}}}));
             return f.idngram2lmArguments();
         },
         idngram2lm},
        {"model into a missing folder",
         [](const ModelFiles &f) {
             return replaced(f.idngram2lmArguments(), u"-arpa"_s, f.folder + u"/none/m.arpa"_s);
         },
         idngram2lm},
    };
    for (const Breakage &breakage : cases) {
        SCOPED_TRACE(breakage.what);
        QTemporaryDir folder;
        const ModelFiles files(folder.path(), u"m"_s);
        ASSERT_TRUE(buildModel(files, corpusOf({"GUTEN MORGEN"})));
        const QStringList arguments = breakage.damage(files);
        const LmLogCapture log;
        EXPECT_NE(breakage.step(arguments), 0);
        EXPECT_FALSE(log.errors().isEmpty());
    }
}

TEST(BadInput, StreamStepsFailCleanly)
{
    const QByteArray damagedFrequencies[] = {"", "A\n", "A B\n", "A 2\nB -1\n", "A 2 B 3 C\n"};
    for (const QByteArray &frequencies : damagedFrequencies) {
        SCOPED_TRACE(frequencies.toStdString());
        QByteArray input = frequencies;
        QBuffer in(&input);
        in.open(QIODevice::ReadOnly);
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        const LmLogCapture log;
        EXPECT_FALSE(lm::wfreq2vocab(in, out, -1, -1, 64000, -1));
        EXPECT_FALSE(log.errors().isEmpty());
    }
    const LmLogCapture log;
    QBuffer closed;
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    EXPECT_FALSE(lm::text2wfreq(closed, out, 7500, -1));
    QByteArray blank = " \n ";
    QBuffer blankText(&blank);
    blankText.open(QIODevice::ReadOnly);
    EXPECT_FALSE(lm::text2wfreq(blankText, out, 7500, -1));
    EXPECT_EQ(log.errors().size(), 2);
}

// Odd corpora still give a model whose header matches its sections, or a clean failure.
TEST(BadInput, OddCorporaGiveConsistentModels)
{
    QByteArray garbage(64 * 1024, Qt::Uninitialized);
    QRandomGenerator random(20261122);
    for (char &byte : garbage)
        byte = static_cast<char>(random.bounded(256));
    const std::pair<const char *, QByteArray> corpora[] = {
        {"one token", "HALLO"},
        {"a huge token", corpusOf({"GUTEN " + QByteArray(1 << 20, 'X') + " MORGEN"})},
        {"binary garbage", garbage},
    };
    for (const auto &[what, corpus] : corpora) {
        SCOPED_TRACE(what);
        QTemporaryDir folder;
        const ModelFiles files(folder.path(), u"m"_s);
        ASSERT_TRUE(buildModel(files, corpus));
        const NgramTables tables = NgramTables::fromArpa(files.arpa);
        for (int order = 1; order <= 3; ++order)
            EXPECT_EQ(tables.headerCounts[order - 1], tables.sections[order - 1].size());
    }
}
