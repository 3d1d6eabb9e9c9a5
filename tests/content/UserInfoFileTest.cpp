#include "content/UserInfoFile.h"

#include "QtPrinters.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
class UserInfoFileTest : public ::testing::Test {
protected:
    QTemporaryDir dir;
    UserInfoFile record{dir.filePath(u"userInfo.plist"_s)};
};
using UserInfoFileDeathTest = UserInfoFileTest;
} // namespace

TEST_F(UserInfoFileTest, CountersAreStoredEncipheredAndReplacedWhole)
{
    EXPECT_TRUE(record.read().isEmpty());
    ASSERT_TRUE(record.write({{u"kStartCount"_s, qint64{0}}, {u"kQuizTotalScore"_s, qint64{5}}}));
    record.increment(u"kStartCount"_s);
    record.add({{u"kStartCount"_s, 2}, {u"kQuizTotalScore"_s, -7}});
    const QVariantMap beforeLastWrite = record.read();
    record.setInt(u"kReviewed"_s, std::numeric_limits<qint64>::max());
    EXPECT_EQ(UserInfoFile(record.previousPath()).read(), beforeLastWrite);
    EXPECT_EQ(record.intValue(u"kStartCount"_s), 3);
    EXPECT_EQ(record.intValue(u"kQuizTotalScore"_s), -2);
    EXPECT_EQ(record.intValue(u"kReviewed"_s), std::numeric_limits<qint64>::max());

    const auto plain = VoCryptor::decryptWithDES(
        QString::fromUtf8(*VoFileUtil::readFile(record.path())), VoCryptor::recordKey);
    ASSERT_TRUE(plain);
    EXPECT_TRUE(plain->startsWith(u"<?xml"_s));
    EXPECT_TRUE(plain->contains(u"<key>kQuizTotalScore</key>"_s));
    // Writes go through a temporary file that replaces the record whole, and keep the one
    // before.
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"userInfo.plist"_s, u"userInfo.plist.previous"_s}));
    // A damaged record is never kept as the copy: healing needs the good one.
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(record.path(), "damaged"));
    ASSERT_TRUE(record.write({}));
    EXPECT_EQ(UserInfoFile(record.previousPath()).read(), beforeLastWrite);
}

TEST_F(UserInfoFileDeathTest, NonIntegersAndOverflowsAreFatal)
{
    const char *fatal = "Tolvane/AppCommon";
    ASSERT_TRUE(record.write({{u"big"_s, std::numeric_limits<qint64>::max()},
                              {u"small"_s, std::numeric_limits<qint64>::min()},
                              {u"text"_s, u"seven"_s}}));
    EXPECT_DEATH(record.increment(u"big"_s), fatal);
    EXPECT_DEATH(record.add({{u"small"_s, -1}}), fatal);
    EXPECT_DEATH((void)record.intValue(u"text"_s), fatal);
}
