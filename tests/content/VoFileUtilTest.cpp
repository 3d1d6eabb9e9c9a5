#include "content/VoFileUtil.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The settings screen shows the cache size in megabytes and empties the cache folder.
TEST(VoFileUtil, FolderSizeAndEmptying)
{
    QTemporaryDir dir;
    const QString cache = dir.filePath(u"cache"_s);
    ASSERT_TRUE(QDir().mkpath(cache + u"/deep/er"_s));
    const std::pair<const char *, qsizetype> files[] = {
        {"/a.bin", 512 * 1024}, {"/deep/er/b.bin", 256 * 1024}, {"/.hidden", 256 * 1024}};
    for (const auto &[name, size] : files)
        ASSERT_TRUE(
            VoFileUtil::writeFileAtomically(cache + QLatin1String(name), QByteArray(size, 'x')));

    EXPECT_EQ(VoFileUtil::getFileSizeAtPath(cache + u"/a.bin"_s), 512.0 * 1024);
    EXPECT_EQ(VoFileUtil::getFileSizeAtPath(dir.filePath(u"none"_s)), 0.0);
    // Folder entries add their own few bytes.
    EXPECT_NEAR(VoFileUtil::getFolderSizeAtPath(cache), 1.0, 0.05);
    EXPECT_EQ(VoFileUtil::getFolderSizeAtPath(dir.filePath(u"none"_s)), 0.0F);

    VoFileUtil::removeFileInFolder(cache);
    EXPECT_TRUE(QFileInfo(cache).isDir());
    EXPECT_TRUE(QDir(cache).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}
