#include "core/DataHandler.h"

#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/TestFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using VELIX::Test::CapturedDiagnostics;

namespace {

class DataFolders : public ::testing::Test
{
protected:
    /// What is printed by a start that says this about its folder.
    std::string report(const std::string& aboutFolder) const
    {
        return "HOME: <" + mHome + ">\n" + aboutFolder + "Data Path      : <" + mData +
               ">\nUser Data Path : <" + mData +
               ">\nResource Path  : </opt/velix/bin/../resources/>\nProfile Path  : <" + mData +
               ">\n";
    }
    std::string printedBy(DataHandler& paths) const
    {
        CapturedDiagnostics output;
        paths.init(mHome.c_str(), "/opt/velix/bin");
        return output.text();
    }

    QTemporaryDir mFolder;
    std::string mHome = mFolder.path().toStdString();
    std::string mData = mHome + "/VELIX/data/";
    DataHandler mPaths;
};

TEST_F(DataFolders, AreMadeOnceAndReported)
{
    EXPECT_EQ(printedBy(mPaths), report("DataPath created <" + mData + ">\n"));
    EXPECT_TRUE(QDir(QString::fromStdString(mData)).exists());
    EXPECT_EQ(mPaths.dataPath(), mData);
    EXPECT_EQ(mPaths.userDataPath(), mData);
    EXPECT_EQ(mPaths.profilePath(), mData);
    EXPECT_EQ(printedBy(mPaths), report(""));

    CapturedDiagnostics output;
    mPaths.init(nullptr, "/usr/bin");
    EXPECT_EQ(output.text(), "") << "without a home only the resources are known";
    EXPECT_EQ(mPaths.dataPath() + mPaths.userDataPath() + mPaths.profilePath(), "");
    EXPECT_EQ(mPaths.resourcePath(), "/usr/bin/../resources/");
}

TEST_F(DataFolders, ThatCannotBeMadeAreReportedAndTheirPathsKept)
{
    ASSERT_TRUE(VELIX::Test::writeFile(mFolder.filePath(QStringLiteral("VELIX")), "")); // a file
    EXPECT_EQ(printedBy(mPaths), report("could not create DataPath <" + mData +
                                        ">\ncould not create UserDataPath <" + mData + ">\n"));
    EXPECT_EQ(mPaths.dataPath(), mData);
}

} // namespace
