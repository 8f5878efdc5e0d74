// What both exports promise about their file: written as a whole, or not at all.

#include "card/RecordData.h"
#include "core/Progress.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "export/OutputFile.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/FullDisk.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "tests/support/TestFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace VELIX::Test {
namespace {

struct Kml
{
    using Writer = ExportKml;
    using Options = KmlExportOptions;
    static constexpr const char* kWhole = "</kml>\n";
};
struct Csv
{
    using Writer = ExportCsv;
    using Options = CsvExportOptions;
    static constexpr const char* kWhole = "0:01:39.000;48.000000;11.000000\n";
};

template <class Format>
class ExportFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(ProfileBuilder()
                        .device("EMU")
                        .parameter(1036, QStringLiteral("Lat"), "FLOAT")
                        .parameter(1037, QStringLiteral("Lon"), "FLOAT")
                        .load(mProfile));
        fly(100);
        mOptions.directory = mFolder.path().toStdString();
        mOptions.fileName = "größe";
        ASSERT_TRUE(writeFile(path(), "old"));
    }
    QString path() const { return mFolder.filePath(QString::fromUtf8("größe")); }
    void fly(int seconds)
    {
        mRecord = RecordBuilder();
        for (int i = 0; i < seconds; ++i) {
            mRecord.at(i).id(1036).floatValue(48).id(1037).floatValue(11);
        }
    }
    void expectOldFileAlone() const
    {
        EXPECT_EQ(readFile(path()), "old");
        EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files).size(), 1) << "left a temporary";
    }
    Outcome run(Progress progress = {})
    {
        return mWriter.exportData(*mRecord.data(), mOptions, progress);
    }

    CapturedDiagnostics mOutput;
    QTemporaryDir mFolder;
    Profile mProfile{eUnitMetric};
    RecordBuilder mRecord;
    typename Format::Writer mWriter{mProfile};
    typename Format::Options mOptions;
};

using Formats = ::testing::Types<Kml, Csv>;
TYPED_TEST_SUITE(ExportFile, Formats);

TYPED_TEST(ExportFile, ReportsProgressToTheEnd)
{
    std::vector<int> reports;
    const Outcome outcome = this->run(Progress([&reports](int percent) {
        reports.push_back(percent);
        return true;
    }));
    EXPECT_TRUE(outcome.ok);
    EXPECT_TRUE(readFile(this->path()).endsWith(TypeParam::kWhole));
    ASSERT_GT(reports.size(), 2U);
    EXPECT_EQ(reports.front(), 0);
    EXPECT_EQ(reports.back(), 100);
}

TYPED_TEST(ExportFile, ACancelledExportKeepsTheOldFile)
{
    for (const int last : {0, 30, 99}) {
        const Outcome outcome =
            this->run(Progress([last](int percent) { return percent <= last; }));
        EXPECT_FALSE(outcome.ok) << last;
        EXPECT_TRUE(outcome.cancelled);
        EXPECT_EQ(outcome.reason, QString()) << "the user knows";
        this->expectOldFileAlone();
    }
    EXPECT_EQ(this->mWriter.exportData(*this->mRecord.data(), this->mOptions), 1);
}

TYPED_TEST(ExportFile, AFullDiskLeavesTheOldFile)
{
    for (const int seconds : {1, 2000, 50000}) { // below and above the buffers in between
        this->fly(seconds);
        const FullDisk disk(10);
        const Outcome outcome = this->run();
        EXPECT_FALSE(outcome.ok) << seconds;
        EXPECT_FALSE(outcome.reason.isEmpty());
        EXPECT_NE(outcome.reason, QStringLiteral("Unknown error")) << seconds;
        this->expectOldFileAlone();
    }
}

TYPED_TEST(ExportFile, AFailureSaysWhy)
{
    const std::string folder = this->mOptions.directory;
    for (const std::string& bad : {folder + "/no/such", folder}) {
        this->mOptions.directory = bad;
        QDir(this->mFolder.path()).remove(QString::fromUtf8("größe"));
        QDir(this->mFolder.path()).mkdir(QString::fromUtf8("größe")); // no file can replace it
        const Outcome outcome = this->run();
        EXPECT_FALSE(outcome.ok || outcome.cancelled);
        EXPECT_FALSE(outcome.reason.isEmpty());
        EXPECT_EQ(this->mWriter.exportData(*this->mRecord.data(), this->mOptions), 0);
        EXPECT_NE(this->mOutput.text().find("could not write file <" + bad + "/größe>"),
                  std::string::npos);
        EXPECT_TRUE(QFileInfo(this->path()).isDir());
    }
}

TEST(OutputFile, IsShownFromTheRootOn)
{
    const std::pair<const char*, QString> rows[] = {
        {".", QDir::currentPath() + QStringLiteral("/a.csv")},
        {"sub/..", QDir::currentPath() + QStringLiteral("/a.csv")},
        {"/", QStringLiteral("/a.csv")},
        {"/tmp//x/../y/", QStringLiteral("/tmp/y/a.csv")}};
    for (const auto& [directory, path] : rows) {
        EXPECT_EQ(absoluteOutputPath(directory, "a.csv"), path);
    }
}

TEST(OutputFile, DevicesAreWrittenToAndStay)
{
    const auto fill = [](QIODevice& out) { return out.write("text") == 4; };
    EXPECT_TRUE(writeOutputFile(QStringLiteral("/dev/null"), fill).ok);
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/null")).isFile());
    EXPECT_FALSE(writeOutputFile(QStringLiteral("/dev/full"), fill).reason.isEmpty());
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/full")).isFile());
}

} // namespace
} // namespace VELIX::Test
