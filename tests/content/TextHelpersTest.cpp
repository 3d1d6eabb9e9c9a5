#include "content/TextHelpers.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace TextHelpers;

// Known digests of the UTF-8 bytes (md5sum, sha1sum, sha256sum).
TEST(TextHelpers, DigestsAndBase64)
{
    EXPECT_EQ(md5(QString()), u"d41d8cd98f00b204e9800998ecf8427e"_s);
    EXPECT_EQ(md5(u"ü"_s), u"c03410a5204b21cd8229ff754688d743"_s);
    EXPECT_EQ(sha256(u"abc"_s),
              u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s);
    EXPECT_EQ(sha1(u"abc"_s), u"a9993e364706816aba3e25717850c26c9cd0d89d"_s);
    // Kept as it always was: only as many bytes as the text has UTF-16 units ("Gr\xc3\xbc\xc3").
    EXPECT_EQ(sha1(u"Grüße"_s), u"36217eed7a3633ecfe34ec3407f5650e98952503"_s);

    EXPECT_EQ(base64Encode(u"Grüße"_s), u"R3LDvMOfZQ=="_s);
    EXPECT_EQ(base64Decode(u"R3LDvMOfZQ=="_s), u"Grüße"_s);
    EXPECT_FALSE(base64Decode(u"R3LD*MOfZQ=="_s));
    EXPECT_FALSE(base64Decode(u"//4="_s)) << "the bytes ff fe are not UTF-8";
}
