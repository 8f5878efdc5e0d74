#include "core/DataHandler.h"

#include "tests/support/CapturedDiagnostics.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using VELIX::Test::CapturedDiagnostics;

namespace {

std::string reportOf(const std::string& home)
{
    return "Data Path      : <" + home + "/VELIX/data/>\nUser Data Path : <" + home +
           "/VELIX/data/>\nResource Path  : </opt/velix/bin/../resources/>\nProfile Path  : <" +
           home + "/VELIX/data/>\n";
}

TEST(DataHandler, MakesItsFolderOnceAndReportsThePaths)
{
    const QTemporaryDir temporary;
    const std::string home = temporary.path().toStdString();
    const std::string data = home + "/VELIX/data/";

    DataHandler first;
    {
        CapturedDiagnostics output;
        first.init(home.c_str(), "/opt/velix/bin");
        EXPECT_EQ(output.text(),
                  "HOME: <" + home + ">\nDataPath created <" + data + ">\n" + reportOf(home));
    }
    EXPECT_TRUE(QDir(QString::fromStdString(data)).exists());
    EXPECT_EQ(first.dataPath(), data);
    EXPECT_EQ(first.userDataPath(), data);
    EXPECT_EQ(first.profilePath(), data);
    EXPECT_EQ(first.resourcePath(), "/opt/velix/bin/../resources/");

    CapturedDiagnostics output;
    DataHandler().init(home.c_str(), "/opt/velix/bin");
    EXPECT_EQ(output.text(), "HOME: <" + home + ">\n" + reportOf(home));
}

TEST(DataHandler, WithoutHomeOnlyTheResourcesAreKnown)
{
    const QTemporaryDir home;
    DataHandler paths;
    CapturedDiagnostics output;
    paths.init(home.path().toStdString().c_str(), "/bin");
    const std::string before = output.text();

    paths.init(nullptr, "/opt/velix/bin");
    EXPECT_EQ(output.text(), before);
    EXPECT_EQ(paths.dataPath(), "");
    EXPECT_EQ(paths.userDataPath(), "");
    EXPECT_EQ(paths.profilePath(), "");
    EXPECT_EQ(paths.resourcePath(), "/opt/velix/bin/../resources/");
}

TEST(DataHandler, AFolderThatCannotBeMadeIsReportedAndItsPathKept)
{
    const QTemporaryDir temporary;
    QFile file(temporary.filePath(QStringLiteral("VELIX")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)); // in the folder's place
    const std::string home = temporary.path().toStdString();
    const std::string data = home + "/VELIX/data/";

    DataHandler paths;
    CapturedDiagnostics output;
    paths.init(home.c_str(), "/opt/velix/bin");
    EXPECT_EQ(output.text(), "HOME: <" + home + ">\ncould not create DataPath <" + data +
                                 ">\ncould not create UserDataPath <" + data + ">\n" +
                                 reportOf(home));
    EXPECT_EQ(paths.dataPath(), data);
}

} // namespace
