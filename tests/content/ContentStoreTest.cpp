#include "CourseFixture.h"
#include "content/AppCommon.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

QStringList idsOf(const auto &items)
{
    QStringList ids;
    for (const auto *item : items)
        ids.append(item->id);
    return ids;
}

class ContentStoreTest : public ::testing::Test {
protected:
    void SetUp() override { course.addSampleCategories(); }

    CourseFixture course;
    ContentStore store{course.root()};
};

} // namespace

TEST_F(ContentStoreTest, CategoriesSortByIdAsTextAndPhrasesByFile)
{
    const auto &categories = store.loadAllCategories();
    EXPECT_EQ(idsOf(categories), (QStringList{u"10"_s, u"2"_s, u"9"_s}));
    EXPECT_EQ(categories[0]->name, u"Begrüßung"_s);
    EXPECT_EQ(categories[0]->trans.value(u"fr"_s), u"Salutations"_s);
    EXPECT_FALSE(categories[0]->phraseInfoList) << "phrases load on first request";

    EXPECT_EQ(idsOf(store.allPhrases()), (QStringList{u"12"_s, u"13"_s, u"20"_s}));
    EXPECT_TRUE(store.loadPhrases(u"9"_s)->isEmpty());
    const auto translated =
        store.phrasesMatching([](const PhraseInfo &p) { return !p.trans.isEmpty(); });
    EXPECT_EQ(idsOf(translated), (QStringList{u"12"_s, u"20"_s}));
}

TEST_F(ContentStoreTest, OptionalPhraseKeysTakeDefaults)
{
    const QList<PhraseInfo *> &phrases = *store.loadPhrases(u"10"_s);
    EXPECT_EQ(phrases[0]->phon, u"ˈɡuːtn̩ ˈmɔʁɡn̩"_s);
    EXPECT_EQ(phrases[0]->trans.value(u"en"_s), u"Good morning!"_s);

    const PhraseInfo &bare = *phrases[1];
    EXPECT_EQ(bare.content, u"Wie geht's?"_s);
    EXPECT_TRUE(bare.phon.isEmpty());
    EXPECT_TRUE(bare.trans.isEmpty());
    EXPECT_EQ(translation(bare, u"en"_s), bare.content);
    EXPECT_EQ(bare.categoryId, u"10"_s);
    EXPECT_EQ(bare.indexInCategory, 1);
    EXPECT_EQ(bare.score, -1);
}

TEST_F(ContentStoreTest, PhrasesAreSharedNotReloaded)
{
    const auto *first = store.loadPhrases(u"10"_s);
    first->at(0)->score = 70;
    const auto *second = store.loadPhrases(u"10"_s);
    EXPECT_EQ(*first, *second);
    EXPECT_EQ(second->at(0)->score, 70);
    EXPECT_EQ(store.allPhrases().at(0), first->at(0));

    EXPECT_EQ(store.loadPhrases(u"11"_s), nullptr);
    EXPECT_EQ(store.loadPhrases(u"010"_s), nullptr);
}

TEST_F(ContentStoreTest, TranslationsFallBackToGermanThenContent)
{
    const auto &phrases = store.allPhrases();
    const PhraseInfo &morning = *phrases[0];
    const PhraseInfo &coffee = *phrases[2];
    EXPECT_EQ(translation(morning, u"fr"_s), u"Bonjour !"_s);
    EXPECT_EQ(translation(morning, u"ja"_s), u"Guten Morgen!"_s);
    EXPECT_EQ(translation(coffee, u"fr"_s), u"Einen Kaffee bitte!"_s);
    EXPECT_EQ(foreignText(coffee), u"Einen Kaffee bitte!"_s) << "its German entry";
    EXPECT_EQ(foreignText(morning), u"Guten Morgen!"_s) << "its content";

    const auto &categories = store.loadAllCategories();
    EXPECT_EQ(translatedName(*categories[0], u"en"_s), u"Greetings"_s);
    EXPECT_EQ(translatedName(*categories[0], u"ja"_s), u"Hallo!"_s);
    EXPECT_EQ(translatedName(*categories[2], u"en"_s), u"Zahlen"_s);
}

TEST(DefaultLanguageCode, FirstLocalisationWithASupportedPrefix)
{
    EXPECT_EQ(defaultLanguageCode({u"fr-CA"_s}), u"fr"_s);
    EXPECT_EQ(defaultLanguageCode({u"sv"_s}), u"en"_s);
    EXPECT_EQ(defaultLanguageCode({u"zh-Hans-CN"_s}), u"zh-Hans"_s);
    EXPECT_EQ(defaultLanguageCode({u"pt-BR"_s}), u"pt"_s);
    EXPECT_EQ(defaultLanguageCode({u"sv-SE"_s, u"de-AT"_s, u"fr"_s}), u"de"_s);
    EXPECT_EQ(defaultLanguageCode(QStringList()), u"en"_s);
}

TEST_F(ContentStoreTest, MediaPathsLieInTheCategoryFolder)
{
    PhraseInfo &morning = *store.loadPhrases(u"10"_s)->at(0);
    EXPECT_EQ(store.soundPath(morning), course.root() + u"/10/voices/12.mp3"_s);
    // md5 of "images-12-de"
    EXPECT_EQ(store.imagePath(morning),
              course.root() + u"/10/images/5350997a27d9409195aba293c26906fc.jpg"_s);
}

// Content is part of the app: anything wrong with it ends the program.
class ContentStoreDeathTest : public ::testing::Test {
protected:
    using File = std::optional<QByteArray>;

    /// Loads a course of one category, 3, with these files (none where nothing is given).
    void load(const File &pkgInfo, const File &phrasesInfo) const
    {
        QDir(course.root()).mkdir(u"3"_s);
        if (pkgInfo)
            course.writeFile(u"3/pkgInfo"_s, *pkgInfo);
        if (phrasesInfo)
            course.writeFile(u"3/phrasesInfo"_s, *phrasesInfo);
        (void)ContentStore(course.root()).allPhrases();
    }
    static QByteArray enciphered(const char *json, const QString &key = VoCryptor::contentKey)
    {
        return VoCryptor::encryptWithDES(QString::fromUtf8(json), key).toUtf8();
    }

    CourseFixture course;
};

TEST_F(ContentStoreDeathTest, DamagedContentIsFatal)
{
    const char *fatal = "Tolvane/AppCommon";
    EXPECT_DEATH(ContentStore(course.root() + u"/missing"_s).loadAllCategories(), fatal);
    EXPECT_DEATH(
        {
            setResourceRoot(course.root() + u"/missing"_s);
            (void)contentStore();
        },
        fatal);

    const QByteArray info = R"({"id": 3, "name": "Drei", "nameTrans": {}})";
    const QByteArray phrases = enciphered(R"([{"id": 1, "txt": "Ja"}])");
    const struct {
        const char *what;
        File pkgInfo, phrasesInfo;
    } cases[] = {
        {"no pkgInfo", std::nullopt, phrases},
        {"pkgInfo not JSON", R"({"id": 3, "name": "Drei")", phrases},
        {"no id", R"({"name": "Drei", "nameTrans": {}})", phrases},
        {"no name", R"({"id": 3, "nameTrans": {}})", phrases},
        {"no nameTrans", R"({"id": 3, "name": "Drei"})", phrases},
        {"no phrasesInfo", info, std::nullopt},
        {"phrasesInfo not Base64", info, R"([{"id": 1, "txt": "Ja"}])"},
        {"phrasesInfo of another key", info, enciphered(R"([])", VoCryptor::recordKey)},
        {"phrases not JSON", info, enciphered(R"([{"id": 1)")},
        {"phrase without id", info, enciphered(R"([{"txt": "Ja"}])")},
        {"phrase id not whole", info, enciphered(R"([{"id": 1.5, "txt": "Ja"}])")},
        {"phrase without txt", info, enciphered(R"([{"id": 1, "phon": "ja"}])")},
    };
    for (const auto &broken : cases)
        EXPECT_DEATH(load(broken.pkgInfo, broken.phrasesInfo), fatal) << broken.what;
    load(info, phrases);
}
