#include "platform/tessel/Directory.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using Tessel::FileSystem::Directory;

namespace {

TEST(Directory, MakesAllMissingParents)
{
    const QTemporaryDir home;
    for (const char* path : {"/a/b/c", "/with/slash/", "/double//slash", "/M\xC3\xBCnchen/d"}) {
        const std::string folder = home.path().toStdString() + path;
        EXPECT_FALSE(Directory::exists(folder)) << path;
        EXPECT_TRUE(Directory::create(folder)) << path;
        EXPECT_TRUE(Directory::exists(folder)) << path;
        EXPECT_TRUE(Directory::create(folder)) << path << ", a second time";
    }
}

TEST(Directory, AFileIsNoFolder)
{
    const QTemporaryDir home;
    QFile file(home.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const std::string path = file.fileName().toStdString();
    EXPECT_FALSE(Directory::exists(path));
    EXPECT_FALSE(Directory::create(path));
    EXPECT_FALSE(Directory::create(path + "/below"));
}

TEST(Directory, RefusesImpossiblePaths)
{
    EXPECT_FALSE(Directory::create(""));
    EXPECT_FALSE(Directory::create("/tmp/" + std::string(5000, 'x')));
    EXPECT_FALSE(Directory::exists("/tmp/" + std::string(5000, 'x')));
}

} // namespace
