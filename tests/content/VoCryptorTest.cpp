#include "content/VoCryptor.h"

#include "QtPrinters.h"

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
TEST(VoCryptor, MatchesAnIndependentDesCbcRoundTripsAndCutsTheKey)
{
    EXPECT_EQ(encipher(sixteen), u"3xMd8QoJantXlzUq1rAG/D77wygtXAvn"_s);
    EXPECT_EQ(encipher(u"Grüße"_s, VoCryptor::recordKey), u"P6yu9MWruPI="_s);
    EXPECT_EQ(encipher(QString()).size(), 12);

    for (const QString &plain : {u"Grüße aus Köln – „Straße“ 你好"_s, QString()})
        EXPECT_EQ(VoCryptor::decryptWithDES(encipher(plain), VoCryptor::contentKey), plain);

    // A typed key counts with its first eight UTF-8 bytes.
    EXPECT_EQ(encipher(sixteen, VoCryptor::contentKey + u"-and-more"_s), encipher(sixteen));
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
