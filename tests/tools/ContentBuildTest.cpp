#include "CliRunner.h"
#include "content/AppCommon.h"
#include "content/VoFileUtil.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Snapshot = QMap<QString, QByteArray>; ///< relative path to contents

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QJsonObject phrase(int id, const QString &text)
{
    return {{u"id"_s, id},
            {u"txt"_s, text},
            {u"phon"_s, u"ˈbɪtə"_s},
            {u"wTrans"_s, QJsonObject{{u"en"_s, u"en %1"_s.arg(id)},
                                      {u"fr"_s, u"fr %1"_s.arg(id)},
                                      {u"de"_s, text}}}};
}

// Synthesis takes tens of milliseconds a phrase, so the course stays tiny: categories 2 and 10
// (whose text order differs from their numeric one) with three phrases between them.
class ContentBuildTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        writeCategory(u"2"_s, 2, {phrase(201, u"Danke schön!"_s), phrase(202, u"Bitte."_s)});
        writeCategory(u"10"_s, 10, {phrase(1001, u"Guten Morgen!"_s)});
    }

    void writeCategory(const QString &folder, int id, const QJsonArray &phrases) const
    {
        const QDir dir(m_dir.filePath(u"src/"_s + folder));
        ASSERT_TRUE(dir.mkpath(u"."_s));
        const QJsonObject info{{u"id"_s, id},
                               {u"name"_s, u"Kategorie %1"_s.arg(id)},
                               {u"nameTrans"_s, QJsonObject{{u"fr"_s, u"Catégorie %1"_s.arg(id)}}}};
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(dir.filePath(u"pkgInfo.json"_s),
                                                    QJsonDocument(info).toJson()));
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(dir.filePath(u"phrases.json"_s),
                                                    QJsonDocument(phrases).toJson()));
    }

    [[nodiscard]] QString output() const { return m_dir.filePath(u"out"_s); }

    CliRun build() const
    {
        return runCli({u"content"_s, u"build"_s, m_dir.filePath(u"src"_s), output()});
    }

    /// Builds and checks the one summary line says that many files were made.
    void expectBuildMaking(int made) const
    {
        const CliRun run = build();
        EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
        EXPECT_EQ(run.outLines().size(), 1) << run.out.toStdString();
        EXPECT_TRUE(run.out.contains(u" %1 files made"_s.arg(made))) << run.out.toStdString();
    }

    [[nodiscard]] Snapshot snapshot() const
    {
        Snapshot files;
        QDirIterator it(output(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            files.insert(QDir(output()).relativeFilePath(path), *VoFileUtil::readFile(path));
        }
        return files;
    }

    /// The paths of a phrase's voice and picture relative to the output, as the app finds them.
    [[nodiscard]] QStringList mediaOf(const QString &categoryId, qsizetype index) const
    {
        ContentStore store(output());
        PhraseInfo &found = *store.loadPhrases(categoryId)->at(index);
        const QDir root(output());
        return {root.relativeFilePath(store.soundPath(found)),
                root.relativeFilePath(store.imagePath(found))};
    }

    static QStringList changedFiles(const Snapshot &before, const Snapshot &after)
    {
        QStringList changed;
        for (const QString &path : before.keys() + after.keys())
            if (before.value(path) != after.value(path) && !changed.contains(path))
                changed.append(path);
        return sorted(changed);
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST_F(ContentBuildTest, MakesACourseTheAppLoadsRemakesOnlyWhatChangedAndRefusesBadSources)
{
    expectBuildMaking(10); // 2 pkgInfo, 2 phrasesInfo, 3 voices, 3 pictures and nothing else
    const Snapshot first = snapshot();
    EXPECT_EQ(first.size(), 10);
    EXPECT_FALSE(first.value(u"2/phrasesInfo"_s).contains("Danke")) << "the list is enciphered";

    ContentStore store(output());
    ASSERT_EQ(store.loadAllCategories().size(), 2);
    EXPECT_EQ(store.loadAllCategories()[1]->trans.value(u"fr"_s), u"Catégorie 2"_s);
    const QList<PhraseInfo *> &phrases = store.allPhrases();
    ASSERT_EQ(phrases.size(), 3);
    EXPECT_EQ(phrases[1]->content, u"Danke schön!"_s);
    EXPECT_EQ(phrases[1]->phon, u"ˈbɪtə"_s);
    EXPECT_EQ(phrases[1]->trans.value(u"fr"_s), u"fr 201"_s);
    for (PhraseInfo *each : phrases) {
        SCOPED_TRACE(each->id.toStdString());
        // An MPEG audio frame or an ID3 tag in front of one.
        const QByteArray head = VoFileUtil::readFile(store.soundPath(*each)).value_or("").left(3);
        EXPECT_TRUE(head.startsWith("ID3") ||
                    (head.size() == 3 && static_cast<quint8>(head[0]) == 0xff &&
                     (static_cast<quint8>(head[1]) & 0xe0) == 0xe0));
        EXPECT_FALSE(QImage(store.imagePath(*each)).isNull());
    }

    expectBuildMaking(0);
    EXPECT_EQ(snapshot(), first) << "an unchanged source gives the same bytes";

    // New text: the list, the voice and the picture of that phrase, nothing else.
    const QStringList media201 = mediaOf(u"2"_s, 0);
    writeCategory(u"2"_s, 2, {phrase(201, u"Vielen Dank!"_s), phrase(202, u"Bitte."_s)});
    expectBuildMaking(3);
    const Snapshot retexted = snapshot();
    EXPECT_EQ(changedFiles(first, retexted), sorted(QStringList{u"2/phrasesInfo"_s} + media201));

    // A translation is not spoken or drawn: only the list changes.
    QJsonObject reworded = phrase(201, u"Vielen Dank!"_s);
    reworded[u"wTrans"_s] = QJsonObject{{u"fr"_s, u"Merci beaucoup !"_s}};
    writeCategory(u"2"_s, 2, {reworded, phrase(202, u"Bitte."_s)});
    expectBuildMaking(1);
    const Snapshot translated = snapshot();
    EXPECT_EQ(changedFiles(retexted, translated), QStringList{u"2/phrasesInfo"_s});

    // A removed phrase takes its voice and picture with it.
    const QStringList media202 = mediaOf(u"2"_s, 1);
    writeCategory(u"2"_s, 2, {reworded});
    expectBuildMaking(1);
    const Snapshot built = snapshot();
    EXPECT_EQ(changedFiles(translated, built), sorted(QStringList{u"2/phrasesInfo"_s} + media202));

    // Phrase ids name the media files, so a repeat within or across categories is refused; the
    // folder name is the category id the app loads media under. None of it touches the course.
    writeCategory(u"2"_s, 2, {reworded, reworded});
    expectOneLineFailure(build(), u"201"_s);
    writeCategory(u"2"_s, 2, {reworded, phrase(1001, u"Bitte."_s)});
    expectOneLineFailure(build(), u"1001"_s);
    writeCategory(u"2"_s, 2, {reworded});
    writeCategory(u"10"_s, 11, {phrase(1001, u"Guten Morgen!"_s)});
    const CliRun mismatch = build();
    expectOneLineFailure(mismatch, u"11"_s);
    EXPECT_TRUE(mismatch.err.contains(u"folder 10"_s)) << mismatch.err.toStdString();
    EXPECT_EQ(snapshot(), built) << "a failed build must not touch the last good course";
}
