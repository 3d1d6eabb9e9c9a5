#include "CliRunner.h"
#include "app/UserRecord.h"
#include "content/PlistCodec.h"
#include "content/UserInfoFile.h"
#include "content/VoCryptor.h"

#include <QFile>
#include <limits>

namespace {

class RecordShowTest : public ::testing::Test {
protected:
    [[nodiscard]] QString path() const { return m_dir.filePath(u"userInfo.plist"_s); }

    CliRun show() const { return runCli({u"record"_s, u"show"_s, u"--record"_s, path()}); }

    void writeRaw(const QByteArray &bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST_F(RecordShowTest, PrintsEveryCounterAndTheExperience)
{
    // Distinct values, so a counter printed under another's name shows.
    QVariantMap record = initialUserInfo();
    qint64 value = 0;
    for (auto it = record.begin(); it != record.end(); ++it)
        *it = (++value) * 3;
    ASSERT_TRUE(UserInfoFile(path()).write(record));

    const CliRun run = show();
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    QStringList expected;
    for (auto it = record.cbegin(); it != record.cend(); ++it)
        expected.append(it.key() + u'\t' + QString::number(it.value().toLongLong()));
    expected.append(u"experience\t"_s + QString::number(totalExperience(record)));
    EXPECT_EQ(run.outLines(), expected);
}

TEST_F(RecordShowTest, MissingOrDamagedRecordFailsClearly)
{
    expectOneLineFailure(show(), path());

    writeRaw("not a record at all");
    expectOneLineFailure(show(), path());

    // A sound record under the wrong key reads as damage, not as an empty record.
    const QString xml = QString::fromUtf8(PlistCodec::toXml(initialUserInfo()));
    writeRaw(VoCryptor::encryptWithDES(xml, VoCryptor::contentKey).toUtf8());
    expectOneLineFailure(show(), path());

    QVariantMap incomplete = initialUserInfo();
    incomplete.remove(UserInfoKey::quizCount);
    ASSERT_TRUE(UserInfoFile(path()).write(incomplete));
    expectOneLineFailure(show(), UserInfoKey::quizCount);
}

TEST_F(RecordShowTest, CounterThatIsNoIntegerFailsWithoutAborting)
{
    QVariantMap record = initialUserInfo();
    record.insert(UserInfoKey::reviewed, u"many"_s);
    ASSERT_TRUE(UserInfoFile(path()).write(record));
    expectOneLineFailure(show(), UserInfoKey::reviewed);

    // Each counter fits, but the weighted total does not.
    record.insert(UserInfoKey::reviewed, std::numeric_limits<qint64>::max() / 10);
    ASSERT_TRUE(UserInfoFile(path()).write(record));
    expectOneLineFailure(show(), u"experience"_s);
}
