#include "content/TextHelpers.h"

#include "QtPrinters.h"

#include <QCryptographicHash>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace TextHelpers;

TEST(TextHelpers, DigestsOfUtf8Bytes)
{
    EXPECT_EQ(md5(QString()), u"d41d8cd98f00b204e9800998ecf8427e"_s);
    EXPECT_EQ(md5(u"images-12-de"_s), u"5350997a27d9409195aba293c26906fc"_s);
    EXPECT_EQ(md5(u"ü"_s), u"c03410a5204b21cd8229ff754688d743"_s);
    EXPECT_EQ(sha256(u"abc"_s),
              u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s);
    EXPECT_EQ(sha1(u"abc"_s), u"a9993e364706816aba3e25717850c26c9cd0d89d"_s);
}

TEST(TextHelpers, Sha1OfNonAsciiHashesAPrefix)
{
    // "Grüße" is 5 UTF-16 units but 7 UTF-8 bytes: only the first 5 bytes count.
    const QByteArray prefix("Gr\xc3\xbc\xc3");
    EXPECT_EQ(
        sha1(u"Grüße"_s),
        QString::fromLatin1(QCryptographicHash::hash(prefix, QCryptographicHash::Sha1).toHex()));
    EXPECT_EQ(sha1(u"Grüße"_s), u"36217eed7a3633ecfe34ec3407f5650e98952503"_s);
}

TEST(TextHelpers, Base64)
{
    EXPECT_EQ(base64Encode(u"Grüße"_s), u"R3LDvMOfZQ=="_s);
    EXPECT_EQ(base64Decode(u"R3LDvMOfZQ=="_s), u"Grüße"_s);
    EXPECT_EQ(base64Decode(QString()), QString());
    EXPECT_FALSE(base64Decode(u"R3LD*MOfZQ=="_s));
    // Valid Base64 of the bytes ff fe, which are not UTF-8.
    EXPECT_FALSE(base64Decode(u"//4="_s));
}
