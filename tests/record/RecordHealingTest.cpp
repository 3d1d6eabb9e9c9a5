#include "AppWindow.h"
#include "app/UserRecord.h"
#include "content/RecordWriter.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <string_view>
#include <thread>

using namespace Qt::StringLiterals;
using Outcome = RecordOpening::Outcome;

namespace {

QVariantMap recordWith(qint64 starts)
{
    QVariantMap record = initialUserInfo();
    record.insert(UserInfoKey::startCount, starts);
    return record;
}

QByteArray bytesOf(const QVariantMap &record)
{
    QTemporaryDir folder;
    const UserInfoFile file(folder.filePath(u"r"_s));
    EXPECT_TRUE(file.write(record));
    return VoFileUtil::readFile(file.path()).value_or(QByteArray());
}

QStringList damagedCopies(const QString &folder)
{
    return QDir(folder).entryList({u"userInfo.plist.damaged-*"_s}, QDir::Files);
}

} // namespace

// Every way a record file can be spoiled, with and without the copy the last write kept: the
// record that comes back, what the app is to say, and that the damaged bytes are kept aside.
TEST(RecordHealing, DamagedRecordsComeBackFromTheKeptCopyOrFresh)
{
    const QByteArray whole = bytesOf(recordWith(7));
    QVariantMap lacking = recordWith(7);
    lacking.remove(UserInfoKey::quizCount);
    QVariantMap unrounded = recordWith(7);
    unrounded.insert(UserInfoKey::quizCount, 1e300);
    const QByteArray cipherOfText =
        VoCryptor::encryptWithDES(u"not a property list"_s, VoCryptor::recordKey).toUtf8();
    const std::vector<std::pair<const char *, QByteArray>> damages{
        {"garbage", QByteArray("\x01\xff garbage \x80", 12)},
        {"truncated", whole.left(whole.size() / 2)},
        {"emptied", QByteArray()},
        {"lacking a key", bytesOf(lacking)},
        {"a real for a counter", bytesOf(unrounded)},
        {"deciphered to no plist", cipherOfText},
    };
    for (const auto &[what, damaged] : damages) {
        for (const bool keptCopy : {true, false}) {
            SCOPED_TRACE(std::string(what) + (keptCopy ? ", copy kept" : ", no copy"));
            const QTemporaryDir folder;
            const UserInfoFile file(folder.filePath(u"userInfo.plist"_s));
            ASSERT_TRUE(VoFileUtil::writeFileAtomically(file.path(), damaged));
            if (keptCopy) {
                ASSERT_TRUE(
                    VoFileUtil::writeFileAtomically(file.previousPath(), bytesOf(recordWith(5))));
            }

            const RecordOpening opening = file.open(initialUserInfo());
            // Without a copy, what a record lacking a key still holds is kept.
            const bool readable = std::string_view(what) == "lacking a key" ||
                                  std::string_view(what) == "a real for a counter";
            EXPECT_EQ(opening.outcome, keptCopy   ? Outcome::RestoredPrevious
                                       : readable ? Outcome::Repaired
                                                  : Outcome::StartedFresh);
            EXPECT_EQ(opening.record.value(UserInfoKey::startCount).toLongLong(),
                      keptCopy ? 5 : (readable ? 7 : 0));
            EXPECT_EQ(opening.record.keys(), initialUserInfo().keys());
            EXPECT_EQ(file.read(), opening.record);
            ASSERT_EQ(damagedCopies(folder.path()).size(), 1);
            EXPECT_EQ(VoFileUtil::readFile(opening.setAsidePath), damaged);
            // A second start finds the healed record whole.
            EXPECT_EQ(file.open(initialUserInfo()).outcome, Outcome::Read);
        }
    }
}

// Changes from two threads all arrive, and whatever is pending when the writer goes is written.
TEST(RecordWriter, KeepsEveryChangeAndDrainsWhenItGoes)
{
    const QTemporaryDir folder;
    const UserInfoFile file(folder.filePath(u"userInfo.plist"_s));
    constexpr int perThread = 2000;
    {
        RecordWriter writer(file, initialUserInfo());
        std::thread other([&] {
            for (int i = 0; i < perThread; ++i)
                writer.add({{UserInfoKey::listenCount, 1}});
        });
        for (int i = 0; i < perThread; ++i)
            writer.add({{UserInfoKey::listenCount, 1}, {UserInfoKey::readCount, 2}});
        other.join();
        EXPECT_EQ(writer.value(UserInfoKey::listenCount), 2 * perThread);
    }
    EXPECT_EQ(file.intValue(UserInfoKey::listenCount), 2 * perThread);
    EXPECT_EQ(file.intValue(UserInfoKey::readCount), 2 * perThread);
}

// A write that fails (here: a file where the folder should be, as a full disk fails) keeps the
// change in memory and lands with the next change once the disk takes it again.
TEST(RecordWriter, AFailedWriteIsTriedAgainWithTheNextChange)
{
    const QTemporaryDir folder;
    const QString blocked = folder.filePath(u"blocked"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(blocked, "a file, not a folder"));
    const UserInfoFile file(blocked + u"/userInfo.plist"_s);
    RecordWriter writer(file, initialUserInfo());
    writer.add({{UserInfoKey::writeCount, 1}});
    EXPECT_FALSE(writer.flush());
    EXPECT_EQ(writer.value(UserInfoKey::writeCount), 1);

    ASSERT_TRUE(QFile::remove(blocked) && QDir().mkpath(blocked));
    writer.add({{UserInfoKey::readCount, 1}});
    EXPECT_TRUE(writer.flush());
    EXPECT_EQ(file.intValue(UserInfoKey::writeCount), 1);
}

// The app opens over a garbage record, shows the main screen, and says once what it did.
TEST(RecordHealing, TheAppOpensOverAGarbageRecordAndSaysSoOnce)
{
    const UserInfoFile file;
    QDir().mkpath(QFileInfo(file.path()).path());
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(file.path(), "garbage"));
    {
        AppWindow app;
        QQuickItem *notice = findItem(app.currentPage(), u"recordNotice"_s);
        ASSERT_NE(notice, nullptr);
        EXPECT_TRUE(notice->isVisible());
        const QString text = findItem(notice, u"recordNoticeText"_s)->property("text").toString();
        EXPECT_TRUE(text.contains(u"started your progress again"_s)) << qPrintable(text);
        EXPECT_TRUE(text.contains(u"userInfo.plist.damaged-"_s)) << qPrintable(text);
        EXPECT_EQ(userInfoInt(UserInfoKey::startCount), 1);
        (void)app.screenshot(u"record-healed-notice"_s);
        app.tapCentre(findItem(notice, u"recordNoticeDismiss"_s));
        EXPECT_FALSE(notice->isVisible());
    }
    AppWindow again;
    EXPECT_FALSE(findItem(again.currentPage(), u"recordNotice"_s)->isVisible());
}
