#include "CliRunner.h"
#include "content/PlistCodec.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QFileInfo>

namespace {

class CryptCommandTest : public ::testing::Test {
protected:
    [[nodiscard]] QString path(const QString &name) const { return m_dir.filePath(name); }
    static QByteArray read(const QString &path)
    {
        return VoFileUtil::readFile(path).value_or("<missing>");
    }
    static int crypt(const QStringList &arguments)
    {
        return runCli(QStringList{u"crypt"_s} + arguments).exitCode;
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST_F(CryptCommandTest, RoundTripsKeepPlistsAndBytesAndAWrongKeyWritesNothing)
{
    // Umlauts, nesting, negative and large integers: what records and course lists hold.
    const QVariantMap dictionary{
        {u"name"_s, u"Grüße aus Köln"_s},
        {u"kQuizTotalScore"_s, qint64{-5'000'000'000}},
        {u"phrases"_s, QVariantList{qint64{101}, u"Guten Morgen!"_s}},
        {u"nested"_s, QVariantMap{{u"fr"_s, u"Bonjour !"_s}}},
    };
    const QString plain = path(u"record.plist"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(plain, PlistCodec::toXml(dictionary)));

    // By default: IN.des, under the course's content key.
    ASSERT_EQ(crypt({u"encipher-plist"_s, plain}), 0);
    const QString enciphered = plain + u".des"_s;
    EXPECT_FALSE(read(enciphered).contains("Köln"));
    EXPECT_EQ(VoFileUtil::getDicFromEncryptedPlist(enciphered, VoCryptor::contentKey), dictionary);
    ASSERT_EQ(crypt({u"decipher-file"_s, enciphered}), 0);
    EXPECT_EQ(PlistCodec::dictionaryFromBytes(read(enciphered + u".src"_s)), dictionary);

    const QString named = path(u"named.bin"_s);
    ASSERT_EQ(crypt({u"encipher-plist"_s, plain, named, u"--key"_s, u"record!"_s}), 0);
    expectOneLineFailure(runCli({u"crypt"_s, u"decipher-file"_s, named}), u"decipher-file"_s);
    EXPECT_FALSE(QFileInfo::exists(named + u".src"_s));
    ASSERT_EQ(crypt({u"decipher-file"_s, named, u"--key"_s, u"record!"_s}), 0);
    EXPECT_EQ(PlistCodec::dictionaryFromBytes(read(named + u".src"_s)), dictionary);

    // Every byte value, in whole blocks (which gain a block of padding).
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(static_cast<char>((i * 37) & 0xff));
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(path(u"in"_s), bytes));
    ASSERT_EQ(crypt({u"encipher-data"_s, path(u"in"_s), path(u"out"_s), u"--key"_s, u"k1"_s}), 0);
    EXPECT_EQ(read(path(u"out"_s)).size(), 264);
    EXPECT_FALSE(read(path(u"out"_s)).startsWith(bytes.left(8)));
    ASSERT_EQ(crypt({u"decipher-data"_s, path(u"out"_s), path(u"back"_s), u"--key"_s, u"k1"_s}), 0);
    EXPECT_EQ(read(path(u"back"_s)), bytes);
    expectOneLineFailure(runCli({u"crypt"_s, u"decipher-data"_s, path(u"out"_s), path(u"wrong"_s),
                                 u"--key"_s, u"k2"_s}),
                         u"decipher-data"_s);
    EXPECT_FALSE(QFileInfo::exists(path(u"wrong"_s)));
}
