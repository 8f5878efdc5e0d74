#include "export/ExportCsv.h"
#include "card/RecordData.h"
#include "core/Progress.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QRegularExpression>

namespace VELIX::Test {
namespace {

class CsvTable : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(ProfileBuilder()
                        .conversion("m", "ft", 2, 0)
                        .enumeration("Mode", {{1, "a;b"}, {2, "say \"on\""}, {3, "two\nlines"}})
                        .device("ECU A")
                        .parameter(2, QStringLiteral("Count"), "UCHAR")
                        .set("unitMetric", "m")
                        .set("unitImperial", "ft")
                        .parameter(1, QStringLiteral("Height"), "FLOAT")
                        .set("unitMetric", "m")
                        .set("unitImperial", "ft")
                        .set("precision", "1")
                        .device("ECU B")
                        .parameter(3, QStringLiteral("Mode"), "BLONG")
                        .set("enumId", "Mode")
                        .set("endBit", "7")
                        .load(mProfile));
    }
    std::string table(const CsvExportOptions& options = {})
    {
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        const auto data = mRecord.data();
        ExportCsv writer(mProfile);
        EXPECT_TRUE(writer.writeTable(*data, options, out, mNobody));
        static const QRegularExpression row(QStringLiteral("^\\d+:\\d\\d:\\d\\d\\.\\d{3}"),
                                            QRegularExpression::MultilineOption);
        EXPECT_EQ(writer.rows(*data, options),
                  static_cast<std::size_t>(QString::fromUtf8(out.data()).count(row)));
        return out.data().toStdString();
    }
    static CsvExportOptions with(int resolution, bool aligned = false, char delimiter = ';')
    {
        CsvExportOptions options;
        options.resolution = resolution;
        options.aligned = aligned;
        options.delimiter = delimiter;
        return options;
    }

    const std::string kHeader = "Time;Height [m];Count [m];Mode\n";
    Profile mProfile;
    Progress mNobody;
    RecordBuilder mRecord;
};

TEST_F(CsvTable, HasAHeaderAlsoWithoutSamplesOrParameters)
{
    EXPECT_EQ(table(), kHeader);
    CsvExportOptions selectedOnly;
    selectedOnly.allParameters = false;
    EXPECT_EQ(table(selectedOnly), "Time\n");
}

TEST_F(CsvTable, RoundsTimesToTicksAndCountsHoursBeyondADay)
{
    const struct
    {
        double time;
        int resolution; ///< ms; odd ones, of a settings file, count as 100
        const char* shown;
    } rows[] = {{0, 100, "0:00:00.000"},
                {12.349, 100, "0:00:12.300"},
                {12.349, 10, "0:00:12.350"},
                {12.349, 0, "0:00:12.300"},
                {12.349, 7, "0:00:12.300"},
                {12.349, 2000, "0:00:12.300"},
                {12.349, std::numeric_limits<int>::min(), "0:00:12.300"},
                {3661.5, 100, "1:01:01.500"},
                {86400 + 3600 + 0.1, 100, "25:00:00.100"},
                {100.0 * 3600, 100, "100:00:00.000"}};
    for (const auto& row : rows) {
        mRecord = RecordBuilder().id(1).at(row.time).floatValue(1);
        EXPECT_EQ(table(with(row.resolution)), kHeader + row.shown + ";1.0\n") << row.resolution;
    }
}

TEST_F(CsvTable, RowsHoldOnlyTheCellsPresent)
{
    mRecord.at(1).id(1).floatValue(1).id(2).ucharValue(10).id(3).blongValue(9);
    mRecord.at(2).id(2).ucharValue(20);
    mRecord.at(3).id(3).blongValue(9).at(4).id(1).floatValue(4).id(3).blongValue(9);
    EXPECT_EQ(table(), kHeader + "0:00:01.000;1.0;10;9: Invalid ENUM Value\n"
                                 "0:00:02.000;20\n"
                                 "0:00:03.000;9: Invalid ENUM Value\n"
                                 "0:00:04.000;4.0;9: Invalid ENUM Value\n");
}

TEST_F(CsvTable, OfSeveralSamplesInATickTheLastOneCounts)
{
    mRecord.id(1).at(1.04).floatValue(1).at(0.96).floatValue(2).at(5).floatValue(3);
    mRecord.at(1.01).floatValue(4).at(0.5).floatValue(5);
    EXPECT_EQ(table(), kHeader + "0:00:00.500;5.0\n0:00:01.000;4.0\n0:00:05.000;3.0\n")
        << "last in the file, not latest in time; rows go by time";
    EXPECT_EQ(table(with(10)), kHeader + "0:00:00.500;5.0\n0:00:00.960;2.0\n0:00:01.010;4.0\n"
                                         "0:00:01.040;1.0\n0:00:05.000;3.0\n");
}

TEST_F(CsvTable, TheLastOneCountsInLongRecordsOutOfOrder)
{
    for (int round = 0; round < 3; ++round) { // each round begins at the first tick again
        for (int i = 0; i < 500; ++i) {
            mRecord.id(2).at(i).ucharValue(static_cast<std::uint8_t>(round));
        }
    }
    EXPECT_EQ(QString::fromStdString(table()).count(QStringLiteral(";2\n")), 500);
}

TEST_F(CsvTable, OnlyAlignedRowsHaveEveryColumnAndQuoteWhereNeeded)
{
    mRecord.at(1).id(3).blongValue(1).at(2).blongValue(2);
    EXPECT_EQ(table(), kHeader + "0:00:01.000;1: a;b\n0:00:02.000;2: say \"on\"\n");
    mRecord.at(3).blongValue(3).at(2).id(1).floatValue(1);
    EXPECT_EQ(table(with(100, true)), kHeader + "0:00:01.000;;;\"1: a;b\"\n"
                                                "0:00:02.000;1.0;;\"2: say \"\"on\"\"\"\n"
                                                "0:00:03.000;;;\"3: two\nlines\"\n");
    EXPECT_EQ(table(with(100, true, ',')).substr(0, 61),
              "Time,Height [m],Count [m],Mode\n0:00:01.000,,,1: a;b\n0:00:02.0")
        << "another delimiter needs no quotes";
}

TEST_F(CsvTable, HeadingsNameTheUnitOfTheTexts)
{
    mProfile.setCurrentUnit(eUnitImperial);
    mRecord.at(1).id(1).floatValue(1).id(2).ucharValue(10);
    EXPECT_EQ(table(), "Time;Height [ft];Count [m];Mode\n0:00:01.000;2.0;10\n");
}

TEST_F(CsvTable, SelectedParametersOnlyOnRequest)
{
    mProfile.data().devices[0].parameters.at(2).selected = true;
    mRecord.at(1).id(1).floatValue(1).id(2).ucharValue(10).at(2).id(1).floatValue(2);
    CsvExportOptions options;
    options.allParameters = false;
    EXPECT_EQ(table(options), "Time;Count [m]\n0:00:01.000;10\n")
        << "ticks without a cell have no row";
}

TEST_F(CsvTable, PositionsPassTheJumpFilter)
{
    ASSERT_TRUE(ProfileBuilder()
                    .device("EMU")
                    .parameter(1, QStringLiteral("Lat"), "FLOAT")
                    .set("velixDataType", "Latitude")
                    .set("precision", "1")
                    .load(mProfile));
    for (int i = 0; i < 7; ++i) {
        mRecord.id(1).at(i).floatValue(i < 5 ? 4800.0F : 1000.0F);
    }
    EXPECT_NE(table().find("0:00:06.000;48.0\n"), std::string::npos) << "a jump";
    mRecord = RecordBuilder();
    for (const double time : {0.0, 1.0, 2.0, 3.0, 4.0, 6.0, 5.0}) {
        const float value = time == 6.0 ? 4803.0F : time == 5.0 ? 1000.0F : 4800.0F;
        mRecord.id(1).at(time).floatValue(value);
    }
    EXPECT_NE(table().find("0:00:05.000;48.0\n"), std::string::npos)
        << "judged by the one before it in time, not in the file";
}

} // namespace
} // namespace VELIX::Test
