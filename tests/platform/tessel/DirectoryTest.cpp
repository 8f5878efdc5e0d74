#include "platform/tessel/Directory.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using Tessel::FileSystem::Directory;

namespace {

TEST(Directory, MakesAllMissingParentsAndReportsWhatItCannot)
{
    const QTemporaryDir home;
    QFile file(home.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const std::string root = home.path().toStdString();
    const std::pair<std::string, bool> rows[] = {{root + "/a/b/c", true},
                                                 {root + "/with/slash/", true},
                                                 {root + "/double//slash", true},
                                                 {root + "/M\xC3\xBCnchen/d", true},
                                                 {root + "/file", false},
                                                 {root + "/file/below", false},
                                                 {root + "/" + std::string(5000, 'x'), false},
                                                 {"", false}};
    for (const auto& [folder, isPossible] : rows) {
        EXPECT_FALSE(Directory::exists(folder)) << folder;
        EXPECT_EQ(Directory::create(folder), isPossible) << folder;
        EXPECT_EQ(Directory::exists(folder), isPossible) << folder;
        EXPECT_EQ(Directory::create(folder), isPossible) << folder << ", a second time";
    }
}

} // namespace
