#include "app/CategoryViewController.h"
#include "app/MainViewController.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"

#include <QSettings>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

class ControllersTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        CourseFixture::appCourse();
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
    }

    static QVariantList column(const QAbstractItemModel &model, int role)
    {
        QVariantList values;
        for (int row = 0; row < model.rowCount(); ++row)
            values.append(model.data(model.index(row, 0), role));
        return values;
    }
};

} // namespace

TEST_F(ControllersTest, MainScreenNamesCategoriesInTheLearnersLanguage)
{
    MainViewController main;
    CategoryListModel &categories = *main.categories();
    EXPECT_EQ(column(categories, CategoryListModel::CategoryIdRole),
              (QVariantList{u"10"_s, u"2"_s, u"9"_s}));
    EXPECT_EQ(column(categories, CategoryListModel::PhraseCountRole), (QVariantList{2, 1, 0}));
    EXPECT_EQ(column(categories, CategoryListModel::NameRole),
              (QVariantList{u"Greetings"_s, u"At the café"_s, u"Zahlen"_s}));

    QSignalSpy changed(&categories, &QAbstractItemModel::dataChanged);
    Preferences::instance().setLanguageType(u"fr"_s);
    Preferences::instance().setLanguageType(u"fr"_s);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 2);
    EXPECT_TRUE(changed[0][2].value<QList<int>>().contains(CategoryListModel::NameRole));
    EXPECT_EQ(column(categories, CategoryListModel::NameRole),
              (QVariantList{u"Salutations"_s, u"Im Café"_s, u"Zahlen"_s}));
}

TEST_F(ControllersTest, ExperienceTotalUpdatesOnRefresh)
{
    incrementUserInfoCounter(UserInfoKey::startCount);
    MainViewController main;
    EXPECT_EQ(main.experienceTotal(), 10);
    QSignalSpy changed(&main, &MainViewController::experienceTotalChanged);

    recordQuizResult(70);
    EXPECT_EQ(main.experienceTotal(), 10) << "read again only on refresh";
    main.refresh();
    main.refresh();
    EXPECT_EQ(main.experienceTotal(), 10 + 10 + 70);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ControllersTest, CategoryScreenShowsOneCategory)
{
    CategoryViewController screen;
    QSignalSpy title(&screen, &CategoryViewController::titleChanged);
    screen.setCategoryId(u"2"_s);
    EXPECT_EQ(screen.title(), u"At the café"_s);
    EXPECT_EQ(title.count(), 1);
    const PhraseListModel &phrases = *screen.phrases();
    ASSERT_EQ(phrases.rowCount(), 1);
    EXPECT_EQ(phrases.data(phrases.index(0), PhraseListModel::TextRole), u"Einen Kaffee bitte!"_s);

    screen.setCategoryId(u"10"_s);
    EXPECT_EQ(column(phrases, PhraseListModel::PhoneticsRole),
              (QVariantList{u"ˈɡuːtn̩ ˈmɔʁɡn̩"_s, QString()}));
    QSignalSpy translations(screen.phrases(), &QAbstractItemModel::dataChanged);
    Preferences::instance().setLanguageType(u"fr"_s);
    EXPECT_EQ(screen.title(), u"Salutations"_s);
    EXPECT_EQ(title.count(), 3);
    EXPECT_EQ(translations.count(), 1);
    EXPECT_EQ(column(phrases, PhraseListModel::TranslationRole),
              (QVariantList{u"Bonjour !"_s, u"Wie geht's?"_s}));

    screen.setCategoryId(u"11"_s);
    EXPECT_TRUE(screen.categoryId().isEmpty());
    EXPECT_TRUE(screen.title().isEmpty());
    EXPECT_EQ(phrases.rowCount(), 0);
}

TEST_F(ControllersTest, LanguageChangeRefreshesEveryRoleShowingTheName)
{
    MainViewController main;
    QSignalSpy changed(main.categories(), &QAbstractItemModel::dataChanged);
    Preferences::instance().setLanguageType(u"fr"_s);
    ASSERT_EQ(changed.count(), 1);
    const auto roles = changed[0][2].value<QList<int>>();
    EXPECT_TRUE(roles.isEmpty() || roles.contains(Qt::DisplayRole));
}
