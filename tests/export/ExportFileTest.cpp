// What both exports promise about their file: written as a whole, or not at all.

#include "card/RecordData.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

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
        for (int i = 0; i < 100; ++i) {
            mRecord.at(i).id(1036).floatValue(48).id(1037).floatValue(11);
        }
        mOptions.directory = mFolder.path().toStdString();
        mOptions.fileName = "old";
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
    QString path() const { return mFolder.filePath(QStringLiteral("old")); }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    int run() { return mWriter.exportData(*mRecord.data(), mOptions); }

    CapturedDiagnostics mOutput;
    QTemporaryDir mFolder;
    Profile mProfile{eUnitMetric};
    RecordBuilder mRecord;
    typename Format::Writer mWriter{mProfile};
    typename Format::Options mOptions;
};

using Formats = ::testing::Types<Kml, Csv>;
TYPED_TEST_SUITE(ExportFile, Formats);

TYPED_TEST(ExportFile, ReportsRisingProgressToTheEnd)
{
    std::vector<int> reports;
    this->mWriter.setProgress([&reports](int percent) {
        reports.push_back(percent);
        return true;
    });
    EXPECT_EQ(this->run(), 1);
    EXPECT_TRUE(this->content().endsWith(TypeParam::kWhole)) << this->content().toStdString();
    ASSERT_GT(reports.size(), 2U);
    EXPECT_EQ(reports.front(), 0);
    EXPECT_EQ(reports.back(), 100);
    EXPECT_EQ(std::adjacent_find(reports.begin(), reports.end(), std::greater_equal<>()),
              reports.end());
}

TYPED_TEST(ExportFile, ACancelledExportKeepsTheOldFile)
{
    for (const int last : {0, 30, 99}) {
        int calls = 0;
        this->mWriter.setProgress([&](int percent) { return percent <= last && ++calls > 0; });
        EXPECT_EQ(this->run(), 0) << last;
        EXPECT_TRUE(this->mWriter.cancelled());
        EXPECT_EQ(this->mWriter.lastError(), QString()) << "the user knows";
        EXPECT_EQ(this->content(), "old");
        EXPECT_EQ(QDir(this->mFolder.path()).entryList(QDir::Files).size(), 1);
    }
    this->mWriter.setProgress(nullptr);
    EXPECT_EQ(this->run(), 1);
    EXPECT_FALSE(this->mWriter.cancelled());
}

TYPED_TEST(ExportFile, AFailureSaysWhy)
{
    this->mOptions.directory += "/no/such";
    EXPECT_EQ(this->run(), 0);
    EXPECT_FALSE(this->mWriter.cancelled());
    EXPECT_FALSE(this->mWriter.lastError().isEmpty());
    EXPECT_NE(this->mOutput.text().find("could not write file <" + this->mOptions.directory),
              std::string::npos);
}

} // namespace
} // namespace VELIX::Test
