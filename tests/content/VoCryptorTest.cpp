#include "content/PlistCodec.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
const QString sixteen = u"0123456789abcdef"_s;
}

// Expected values from an independent DES-CBC (openssl enc -des-cbc) with our keys and vector,
// so the shipped files stay readable whatever library does the cipher.
TEST(VoCryptor, MatchesAnIndependentDesCbc)
{
    EXPECT_EQ(VoCryptor::encryptWithDES(sixteen, VoCryptor::contentKey),
              u"3xMd8QoJantXlzUq1rAG/D77wygtXAvn"_s);
    EXPECT_EQ(VoCryptor::encryptWithDES(u"Grüße"_s, VoCryptor::recordKey), u"P6yu9MWruPI="_s);
}

TEST(VoCryptor, PaddingAlwaysAddsBytes)
{
    const QByteArray block = sixteen.toLatin1();
    EXPECT_EQ(VoCryptor::encryptData(block, VoCryptor::Encipher, VoCryptor::contentKey)->size(),
              24);
    EXPECT_EQ(VoCryptor::encryptData(block.left(15), VoCryptor::Encipher, VoCryptor::contentKey)
                  ->size(),
              16);
    EXPECT_EQ(VoCryptor::encryptWithDES(sixteen, VoCryptor::contentKey).size(), 32);
    EXPECT_EQ(VoCryptor::encryptWithDES(QString(), VoCryptor::contentKey).size(), 12);
}

TEST(VoCryptor, TextRoundTrips)
{
    for (const QString &plain : {u"Grüße aus Köln – „Straße“ 你好"_s, QString(), sixteen}) {
        for (const QString &key : {VoCryptor::contentKey, VoCryptor::recordKey}) {
            const QString cipher = VoCryptor::encryptWithDES(plain, key);
            EXPECT_EQ(VoCryptor::decryptWithDES(cipher, key), plain) << qPrintable(cipher);
        }
    }
}

TEST(VoCryptor, KeyIsItsFirstEightUtf8Bytes)
{
    const QString longKey = VoCryptor::contentKey + u"-and-more"_s;
    EXPECT_EQ(VoCryptor::encryptWithDES(sixteen, longKey),
              VoCryptor::encryptWithDES(sixteen, VoCryptor::contentKey));
    // "ä" takes two bytes, so both keys cut to the same eight bytes although their eighth
    // characters differ.
    EXPECT_EQ(VoCryptor::encryptWithDES(sixteen, u"äbcdefgh"_s),
              VoCryptor::encryptWithDES(sixteen, u"äbcdefgX"_s));
    EXPECT_NE(VoCryptor::encryptWithDES(sixteen, u"abcdefgh"_s),
              VoCryptor::encryptWithDES(sixteen, u"abcdefgX"_s));
}

TEST(VoCryptor, DamagedInputGivesNoText)
{
    const QString cipher = VoCryptor::encryptWithDES(sixteen, VoCryptor::contentKey);
    EXPECT_FALSE(VoCryptor::decryptWithDES(cipher, VoCryptor::recordKey));
    EXPECT_FALSE(VoCryptor::decryptWithDES(u"not Base64!"_s, VoCryptor::contentKey));
    EXPECT_FALSE(VoCryptor::decryptWithDES(QString(), VoCryptor::contentKey));
    // 18 bytes: not whole blocks.
    EXPECT_FALSE(VoCryptor::decryptWithDES(cipher.left(24), VoCryptor::contentKey));
    // Whole blocks, but the padding block is gone.
    const QByteArray bytes = QByteArray::fromBase64(cipher.toLatin1());
    EXPECT_FALSE(VoCryptor::decryptWithDES(QString::fromLatin1(bytes.left(16).toBase64()),
                                           VoCryptor::contentKey));
    // Deciphers, but the plain bytes are not UTF-8.
    const auto latin1 =
        VoCryptor::encryptData("Gr\xfc\xdf"
                               "e",
                               VoCryptor::Encipher, VoCryptor::contentKey);
    EXPECT_FALSE(VoCryptor::decryptWithDES(QString::fromLatin1(latin1->toBase64()),
                                           VoCryptor::contentKey));
}

TEST(VoCryptor, DataFormIsTheTextFormWithoutBase64)
{
    QByteArray everyByte;
    for (int b = 0; b < 256; ++b)
        everyByte.append(static_cast<char>(b));
    const auto cipher = VoCryptor::encryptData(everyByte, VoCryptor::Encipher, VoCryptor::recordKey);
    ASSERT_TRUE(cipher);
    EXPECT_EQ(VoCryptor::decryptData(*cipher, VoCryptor::recordKey), everyByte);
    EXPECT_EQ(VoCryptor::encryptData(sixteen.toLatin1(), VoCryptor::Encipher, VoCryptor::contentKey)
                  ->toBase64(),
              VoCryptor::encryptWithDES(sixteen, VoCryptor::contentKey).toLatin1());
}

TEST(VoCryptor, FileFormsRoundTrip)
{
    QTemporaryDir dir;
    const QString plist = dir.filePath(u"record.plist"_s);
    {
        QFile file(plist);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
  <key>kStartCount</key><integer>3</integer>
  <key>greeting</key><string>Grüße</string>
</dict></plist>)");
    }
    const QVariantMap expected{{u"kStartCount"_s, qint64{3}}, {u"greeting"_s, u"Grüße"_s}};

    ASSERT_TRUE(VoCryptor::encryptWithDESForFile(plist, VoCryptor::recordKey));
    const QString enciphered = plist + u".des"_s;
    EXPECT_EQ(VoFileUtil::getDicFromEncryptedPlist(enciphered, VoCryptor::recordKey), expected);

    ASSERT_TRUE(VoCryptor::decryptWithDESForFile(enciphered, VoCryptor::recordKey));
    const auto plain = VoFileUtil::readFile(enciphered + u".src"_s);
    ASSERT_TRUE(plain);
    EXPECT_EQ(PlistCodec::dictionaryFromBytes(*plain), expected);

    const QString data = dir.filePath(u"data"_s);
    ASSERT_TRUE(VoCryptor::encryptWithDESForDataFile(plist, data, VoCryptor::contentKey));
    ASSERT_TRUE(VoCryptor::decryptWithDESForDataFile(data, data + u".out"_s, VoCryptor::contentKey));
    EXPECT_EQ(VoFileUtil::readFile(data + u".out"_s), VoFileUtil::readFile(plist));
    EXPECT_FALSE(VoCryptor::decryptWithDESForDataFile(data, data + u".wrong"_s, VoCryptor::recordKey));
    EXPECT_FALSE(QFile::exists(data + u".wrong"_s));
}
