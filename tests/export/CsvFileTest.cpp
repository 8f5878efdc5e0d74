#include "card/RecordData.h"
#include "export/ExportCsv.h"
#include "export/OutputFile.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace VELIX::Test {
namespace {

/// While it lives, files cannot grow beyond a size: that stands for the full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit small{size, mBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &mBefore); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit mBefore{};
};

class CsvFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            ProfileBuilder().device("D").parameter(1, QStringLiteral("P"), "FLOAT").load(mProfile));
        mOptions.directory = mFolder.path().toStdString();
        mOptions.fileName = "größe.csv";
    }
    QString path() const { return mFolder.filePath(QString::fromUtf8("größe.csv")); }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    void fill(const char* text)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    int exportSamples(int count)
    {
        RecordBuilder record;
        for (int i = 0; i < count; ++i) {
            record.id(1).at(i).floatValue(0.5F);
        }
        return ExportCsv(mProfile).exportData(*record.data(), mOptions);
    }

    CapturedDiagnostics mOutput;
    QTemporaryDir mFolder;
    Profile mProfile;
    CsvExportOptions mOptions;
};

TEST_F(CsvFile, ReplacesAnOldOne)
{
    fill("something longer than the new table, which must be gone afterwards");
    EXPECT_EQ(exportSamples(1), 1);
    EXPECT_EQ(content(), "Time;P\n0:00:00.000;0.500000\n");
    EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(CsvFile, IsNotWrittenInPlaceOfAFolder)
{
    QDir(mFolder.path()).mkdir(QString::fromUtf8("größe.csv"));
    EXPECT_EQ(exportSamples(1), 0);
    EXPECT_TRUE(QFileInfo(path()).isDir());
}

TEST_F(CsvFile, AFullDiskLeavesTheOldOne)
{
    fill("old");
    for (const int samples : {1, 2000, 100000}) { // below and above the buffers in between
        const FullDisk disk(10);
        EXPECT_EQ(exportSamples(samples), 0) << samples;
        EXPECT_EQ(content(), "old") << samples;
        EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files).size(), 1) << "left a temporary";
    }
}

TEST(OutputFile, DevicesAreWrittenToAndStay)
{
    const auto fill = [](QIODevice& out) { return out.write("text") == 4; };
    EXPECT_EQ(writeOutputFile(QStringLiteral("/dev/null"), fill), QString());
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/null")).isFile());
    EXPECT_FALSE(writeOutputFile(QStringLiteral("/dev/full"), fill).isEmpty());
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/full")).isFile());
}

} // namespace
} // namespace VELIX::Test
