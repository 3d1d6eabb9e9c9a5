#include "content/VoCryptor.h"

#include "QtPrinters.h"
#include "content/PlistCodec.h"
#include "content/VoFileUtil.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
const QString sixteen = u"0123456789abcdef"_s;
QString encipher(const QString &text, const QString &key = VoCryptor::contentKey)
{
    return VoCryptor::encryptWithDES(text, key);
}
} // namespace

// Expected values from an independent DES-CBC (openssl enc -des-cbc) with our keys and vector,
// so the shipped files stay readable whatever library does the cipher. 16 bytes gain a whole
// block of padding: 24 bytes, 32 Base64 characters.
TEST(VoCryptor, MatchesAnIndependentDesCbc)
{
    EXPECT_EQ(encipher(sixteen), u"3xMd8QoJantXlzUq1rAG/D77wygtXAvn"_s);
    EXPECT_EQ(encipher(u"Grüße"_s, VoCryptor::recordKey), u"P6yu9MWruPI="_s);
    EXPECT_EQ(encipher(QString()).size(), 12);
}

TEST(VoCryptor, RoundTrips)
{
    for (const QString &plain : {u"Grüße aus Köln – „Straße“ 你好"_s, QString(), sixteen}) {
        for (const QString &key : {VoCryptor::contentKey, VoCryptor::recordKey})
            EXPECT_EQ(VoCryptor::decryptWithDES(encipher(plain, key), key), plain);
    }
    QByteArray everyByte;
    for (int b = 0; b < 256; ++b)
        everyByte.append(static_cast<char>(b));
    const auto cipher =
        VoCryptor::encryptData(everyByte, VoCryptor::Encipher, VoCryptor::recordKey);
    ASSERT_TRUE(cipher);
    EXPECT_EQ(cipher->size(), 264);
    EXPECT_EQ(VoCryptor::decryptData(*cipher, VoCryptor::recordKey), everyByte);
}

TEST(VoCryptor, KeyIsItsFirstEightUtf8Bytes)
{
    EXPECT_EQ(encipher(sixteen, VoCryptor::contentKey + u"-and-more"_s), encipher(sixteen));
    // "ä" takes two bytes, so both keys cut to the same eight bytes.
    EXPECT_EQ(encipher(sixteen, u"äbcdefgh"_s), encipher(sixteen, u"äbcdefgX"_s));
    EXPECT_NE(encipher(sixteen, u"abcdefgh"_s), encipher(sixteen, u"abcdefgX"_s));
}

TEST(VoCryptor, DamagedInputGivesNoText)
{
    const QString cipher = encipher(sixteen);
    const auto decipher = [](const QString &text) {
        return VoCryptor::decryptWithDES(text, VoCryptor::contentKey);
    };
    EXPECT_FALSE(VoCryptor::decryptWithDES(cipher, VoCryptor::recordKey));
    EXPECT_FALSE(decipher(u"not Base64!"_s));
    EXPECT_FALSE(decipher(QString()));
    EXPECT_FALSE(decipher(cipher.left(24))) << "18 bytes are no whole blocks";
    const QByteArray bytes = QByteArray::fromBase64(cipher.toLatin1());
    EXPECT_FALSE(decipher(QString::fromLatin1(bytes.left(16).toBase64()))) << "padding cut off";
    const auto latin1 =
        VoCryptor::encryptData("Gr\xfc\xdf", VoCryptor::Encipher, VoCryptor::contentKey);
    EXPECT_FALSE(decipher(QString::fromLatin1(latin1->toBase64()))) << "plain text not UTF-8";
}

TEST(VoCryptor, FileFormsRoundTrip)
{
    QTemporaryDir dir;
    const QString plist = dir.filePath(u"record.plist"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(plist, R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>kStartCount</key><integer>3</integer><key>greeting</key><string>Grüße</string>
</dict></plist>)"));
    const QVariantMap expected{{u"kStartCount"_s, qint64{3}}, {u"greeting"_s, u"Grüße"_s}};

    ASSERT_TRUE(VoCryptor::encryptWithDESForFile(plist, VoCryptor::recordKey));
    const QString enciphered = plist + u".des"_s;
    EXPECT_EQ(VoFileUtil::getDicFromEncryptedPlist(enciphered, VoCryptor::recordKey), expected);
    ASSERT_TRUE(VoCryptor::decryptWithDESForFile(enciphered, VoCryptor::recordKey));
    EXPECT_EQ(PlistCodec::dictionaryFromBytes(*VoFileUtil::readFile(enciphered + u".src"_s)),
              expected);

    const QString data = dir.filePath(u"data"_s);
    ASSERT_TRUE(VoCryptor::encryptWithDESForDataFile(plist, data, VoCryptor::contentKey));
    ASSERT_TRUE(
        VoCryptor::decryptWithDESForDataFile(data, data + u".out"_s, VoCryptor::contentKey));
    EXPECT_EQ(VoFileUtil::readFile(data + u".out"_s), VoFileUtil::readFile(plist));
    EXPECT_FALSE(
        VoCryptor::decryptWithDESForDataFile(data, data + u".wrong"_s, VoCryptor::recordKey));
    EXPECT_FALSE(QFile::exists(data + u".wrong"_s));
}
