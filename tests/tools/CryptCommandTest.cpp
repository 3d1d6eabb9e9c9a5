#include "CliRunner.h"
#include "content/PlistCodec.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QFile>
#include <QFileInfo>

namespace {

class CryptCommandTest : public ::testing::Test {
protected:
    [[nodiscard]] QString path(const QString &name) const { return m_dir.filePath(name); }

    static void write(const QString &path, const QByteArray &bytes)
    {
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(path, bytes)) << path.toStdString();
    }
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

TEST_F(CryptCommandTest, PlistRoundTripKeepsTheDictionaryAndAWrongKeyWritesNothing)
{
    // Umlauts, nesting, negative and large integers: what records and course lists hold.
    const QVariantMap dictionary{
        {u"name"_s, u"Grüße aus Köln"_s},
        {u"kQuizTotalScore"_s, qint64{-5'000'000'000}},
        {u"phrases"_s, QVariantList{qint64{101}, u"Guten Morgen!"_s}},
        {u"nested"_s, QVariantMap{{u"fr"_s, u"Bonjour !"_s}}},
    };
    const QString plain = path(u"record.plist"_s);
    write(plain, PlistCodec::toXml(dictionary));

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
}

TEST_F(CryptCommandTest, DataRoundTripKeepsTheBytesAndAWrongKeyWritesNothing)
{
    // Empty, short of a block, and whole blocks (which gain a block of padding).
    for (const int size : {0, 13, 256}) {
        SCOPED_TRACE(size);
        QByteArray bytes;
        for (int i = 0; i < size; ++i)
            bytes.append(static_cast<char>((i * 37) & 0xff));
        const QString in = path(u"in-%1"_s.arg(size));
        const QString out = path(u"out-%1"_s.arg(size));
        write(in, bytes);
        ASSERT_EQ(crypt({u"encipher-data"_s, in, out, u"--key"_s, u"first123"_s}), 0);
        EXPECT_EQ(read(out).size(), (size / 8 + 1) * 8);
        EXPECT_TRUE(size == 0 || !read(out).startsWith(bytes.left(8)));
        ASSERT_EQ(crypt({u"decipher-data"_s, out, in + u".back"_s, u"--key"_s, u"first123"_s}), 0);
        EXPECT_EQ(read(in + u".back"_s), bytes);
    }
    expectOneLineFailure(runCli({u"crypt"_s, u"decipher-data"_s, path(u"out-256"_s),
                                 path(u"wrong"_s), u"--key"_s, u"other123"_s}),
                         u"decipher-data"_s);
    EXPECT_FALSE(QFileInfo::exists(path(u"wrong"_s)));
}
