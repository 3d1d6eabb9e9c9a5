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
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }
    static QByteArray read(const QString &path)
    {
        return VoFileUtil::readFile(path).value_or("<missing>");
    }
    static CliRun crypt(const QStringList &arguments)
    {
        return runCli(QStringList{u"crypt"_s} + arguments);
    }

    // Umlauts, nesting, negative and large integers: what records and course lists hold.
    const QVariantMap dictionary{
        {u"name"_s, u"Grüße aus Köln"_s},
        {u"kReviewed"_s, qint64{3}},
        {u"kQuizTotalScore"_s, qint64{-5'000'000'000}},
        {u"phrases"_s, QVariantList{qint64{101}, u"Guten Morgen!"_s}},
        {u"nested"_s, QVariantMap{{u"fr"_s, u"Bonjour !"_s}}},
    };

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST_F(CryptCommandTest, PlistRoundTripKeepsTheDictionary)
{
    const QString plain = path(u"record.plist"_s);
    write(plain, PlistCodec::toXml(dictionary));

    // By default: IN.des, under the course's content key.
    ASSERT_EQ(crypt({u"encipher-plist"_s, plain}).exitCode, 0);
    const QString enciphered = plain + u".des"_s;
    EXPECT_FALSE(read(enciphered).contains("Köln"));
    EXPECT_EQ(VoFileUtil::getDicFromEncryptedPlist(enciphered, VoCryptor::contentKey), dictionary);
    ASSERT_EQ(crypt({u"decipher-file"_s, enciphered}).exitCode, 0);
    EXPECT_EQ(PlistCodec::dictionaryFromBytes(read(enciphered + u".src"_s)), dictionary);

    // A named output and another key.
    const QString named = path(u"named.bin"_s);
    ASSERT_EQ(crypt({u"encipher-plist"_s, plain, named, u"--key"_s, u"record!"_s}).exitCode, 0);
    ASSERT_EQ(crypt({u"decipher-file"_s, named, u"--key"_s, u"record!"_s}).exitCode, 0);
    EXPECT_EQ(PlistCodec::dictionaryFromBytes(read(named + u".src"_s)), dictionary);
}

TEST_F(CryptCommandTest, DataRoundTripKeepsTheBytes)
{
    // Empty, short of a block, and whole blocks (which gain a block of padding).
    for (const int size : {0, 13, 256}) {
        SCOPED_TRACE(size);
        QByteArray bytes;
        for (int i = 0; i < size; ++i)
            bytes.append(static_cast<char>((i * 37) & 0xff));
        const QString in = path(u"in-%1"_s.arg(size));
        const QString out = path(u"out-%1"_s.arg(size));
        const QString back = path(u"back-%1"_s.arg(size));
        write(in, bytes);

        ASSERT_EQ(crypt({u"encipher-data"_s, in, out}).exitCode, 0);
        EXPECT_EQ(read(out).size(), (size / 8 + 1) * 8);
        if (size > 0) {
            EXPECT_FALSE(read(out).startsWith(bytes.left(8)));
        }
        ASSERT_EQ(crypt({u"decipher-data"_s, out, back}).exitCode, 0);
        EXPECT_EQ(read(back), bytes);
    }
}

TEST_F(CryptCommandTest, WrongKeyFailsWithoutOutput)
{
    QByteArray bytes;
    for (int i = 0; i < 100; ++i)
        bytes.append(static_cast<char>(i));
    write(path(u"in"_s), bytes);
    ASSERT_EQ(crypt({u"encipher-data"_s, path(u"in"_s), path(u"out"_s), u"--key"_s, u"first123"_s})
                  .exitCode,
              0);
    expectOneLineFailure(
        crypt({u"decipher-data"_s, path(u"out"_s), path(u"back"_s), u"--key"_s, u"other123"_s}),
        u"decipher-data"_s);
    EXPECT_FALSE(QFileInfo::exists(path(u"back"_s)));

    const QString plain = path(u"record.plist"_s);
    write(plain, PlistCodec::toXml(dictionary));
    ASSERT_EQ(crypt({u"encipher-plist"_s, plain}).exitCode, 0);
    expectOneLineFailure(crypt({u"decipher-file"_s, plain + u".des"_s, u"--key"_s, u"other123"_s}),
                         u"decipher-file"_s);
    EXPECT_FALSE(QFileInfo::exists(plain + u".des.src"_s));
}
