#include "CourseFixture.h"

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

} // namespace

TEST(ContentStore, ReadsTheCourseWithItsFallbacks)
{
    CourseFixture course;
    course.addSampleCategories();
    ContentStore store(course.root());

    // Ids sort as text ("10" before "9"); phrases keep their file order.
    const auto &categories = store.loadAllCategories();
    EXPECT_EQ(idsOf(categories), (QStringList{u"10"_s, u"2"_s, u"9"_s}));
    EXPECT_FALSE(categories[0]->phraseInfoList) << "phrases load on first request";
    EXPECT_EQ(idsOf(store.allPhrases()), (QStringList{u"12"_s, u"13"_s, u"20"_s}));
    EXPECT_TRUE(store.loadPhrases(u"9"_s)->isEmpty());
    EXPECT_EQ(store.loadPhrases(u"010"_s), nullptr);
    EXPECT_EQ(idsOf(store.phrasesMatching([](const PhraseInfo &p) { return !p.trans.isEmpty(); })),
              (QStringList{u"12"_s, u"20"_s}));

    // Loaded once: a score set on a phrase is seen through every way to it.
    const auto *greetings = store.loadPhrases(u"10"_s);
    greetings->at(0)->score = 70;
    EXPECT_EQ(store.loadPhrases(u"10"_s), greetings);
    EXPECT_EQ(store.allPhrases().at(0)->score, 70);

    PhraseInfo &morning = *greetings->at(0);
    const PhraseInfo &bare = *greetings->at(1);
    const PhraseInfo &coffee = *store.allPhrases().at(2);
    EXPECT_TRUE(bare.phon.isEmpty());
    EXPECT_EQ(bare.categoryId, u"10"_s);
    EXPECT_EQ(bare.indexInCategory, 1);
    EXPECT_EQ(bare.score, -1);

    // Translations fall back to the German entry, then to the text.
    EXPECT_EQ(translation(morning, u"fr"_s), u"Bonjour !"_s);
    EXPECT_EQ(translation(bare, u"en"_s), u"Wie geht's?"_s);
    EXPECT_EQ(translation(coffee, u"fr"_s), u"Einen Kaffee bitte!"_s);
    EXPECT_EQ(foreignText(coffee), u"Einen Kaffee bitte!"_s);
    EXPECT_EQ(foreignText(morning), u"Guten Morgen!"_s);
    EXPECT_EQ(translatedName(*categories[0], u"fr"_s), u"Salutations"_s);
    EXPECT_EQ(translatedName(*categories[0], u"ja"_s), u"Hallo!"_s);
    EXPECT_EQ(translatedName(*categories[2], u"en"_s), u"Zahlen"_s);

    EXPECT_EQ(store.soundPath(morning), course.root() + u"/10/voices/12.mp3"_s);
    // md5 of "images-12-de"
    EXPECT_EQ(store.imagePath(morning),
              course.root() + u"/10/images/5350997a27d9409195aba293c26906fc.jpg"_s);
}

TEST(ContentStore, DefaultLanguageIsTheFirstLocalisationWithASupportedPrefix)
{
    const std::pair<QStringList, QString> cases[] = {
        {{u"fr-CA"_s}, u"fr"_s},
        {{u"zh-Hans-CN"_s}, u"zh-Hans"_s},
        {{u"sv-SE"_s, u"de-AT"_s, u"fr"_s}, u"de"_s},
        {{u"sv"_s}, u"en"_s},
        {{}, u"en"_s},
    };
    for (const auto &[localisations, code] : cases)
        EXPECT_EQ(defaultLanguageCode(localisations), code) << qPrintable(localisations.join(u' '));
}

// Content is part of the app: anything wrong with it ends the program.
TEST(ContentStoreDeathTest, DamagedContentIsFatal)
{
    using File = std::optional<QByteArray>;
    const CourseFixture course;
    const auto load = [&](const File &pkgInfo, const File &phrasesInfo) {
        QDir(course.root()).mkdir(u"3"_s);
        if (pkgInfo)
            course.writeFile(u"3/pkgInfo"_s, *pkgInfo);
        if (phrasesInfo)
            course.writeFile(u"3/phrasesInfo"_s, *phrasesInfo);
        (void)ContentStore(course.root()).allPhrases();
    };
    const auto enciphered = [](const char *json, const QString &key = VoCryptor::contentKey) {
        return VoCryptor::encryptWithDES(QString::fromUtf8(json), key).toUtf8();
    };

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
