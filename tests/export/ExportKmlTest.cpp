#include "export/ExportKml.h"

#include "card/RecordData.h"
#include "core/Progress.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <KZip>
#include <QBuffer>
#include <QDomDocument>

namespace VELIX::Test {
namespace {

/// One line an element: its depth, tag, attribute and text.
std::string outline(const QDomElement& element, int depth = 0)
{
    std::string text = std::string(static_cast<std::size_t>(depth), ' ');
    text += element.tagName().toStdString();
    for (const char* name : {"id", "name"}) {
        const QString value = element.attribute(QLatin1String(name));
        text += value.isEmpty() ? "" : " " + value.toStdString();
    }
    text += element.firstChildElement().isNull() ? " = " + element.text().toStdString() : "";
    text += '\n';
    for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        text += outline(e, depth + 1);
    }
    return text;
}

/// Coordinates without the decimals that are 0, one blank between points.
std::string brief(const QString& coordinates)
{
    QStringList points;
    for (const QString& point : coordinates.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        QStringList numbers;
        for (const QString& number : point.split(QLatin1Char(','))) {
            numbers << QString::number(number.toDouble());
        }
        points << numbers.join(QLatin1Char(','));
    }
    return points.join(QLatin1Char(' ')).toStdString();
}

std::size_t lines(const std::string& text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

RecordLimit event(double time, const char* name, const char* value)
{
    RecordLimit event;
    event.time = time;
    event.name = name;
    event.value = value;
    return event;
}

class KmlExport : public ::testing::Test
{
protected:
    /// role: makes positions coordinates in the form dddmm.mmmm instead of plain degrees.
    void load(bool role)
    {
        ASSERT_TRUE(ProfileBuilder()
                        .conversion("m", "ft", 2, 0)
                        .device("EMU")
                        .parameter(1036, QStringLiteral("Lat"), "FLOAT")
                        .set("velixDataType", role ? "Latitude" : "")
                        .parameter(1037, QStringLiteral("Lon"), "FLOAT")
                        .set("velixDataType", role ? "Longitude" : "")
                        .parameter(1038, QStringLiteral("Alt"), "FLOAT")
                        .set("unitMetric", "m")
                        .set("unitImperial", "ft")
                        .set("precision", "1")
                        .load(mProfile));
        for (const auto& [id, p] : mProfile.data().devices[0].parameters) {
            if (id != 1037) {
                mOptions.parameters.push_back(&p);
            }
        }
    }
    void SetUp() override { load(false); }
    /// Makes the record again: "lat", "lon" and "alt" start a series, "time:value" is a sample of
    /// it.
    void fly(const char* samples)
    {
        mRecord = RecordBuilder();
        for (const QString& word : QString::fromLatin1(samples).split(QLatin1Char(' '))) {
            const QStringList pair = word.split(QLatin1Char(':'));
            if (pair.size() == 2) {
                mRecord.at(pair[0].toDouble()).floatValue(pair[1].toFloat());
            } else {
                mRecord.id(word == QLatin1String("lat")   ? 1036
                           : word == QLatin1String("lon") ? 1037
                                                          : 1038);
            }
        }
    }
    QByteArray written()
    {
        const auto data = mRecord.data();
        data->limits = mLimits;
        data->warnings = mWarnings;
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        ExportKml writer(mProfile);
        Progress nobody;
        EXPECT_TRUE(writer.writeDocument(*data, mOptions, out, nobody));
        mSummary = writer.summary(*data, mOptions);
        return out.data();
    }
    QDomElement body()
    {
        EXPECT_TRUE(mDocument.setContent(written()));
        return mDocument.documentElement().firstChildElement();
    }
    /// One line a placemark with a point: style, name, position and values.
    std::string marks()
    {
        std::string text;
        const QDomElement all = body();
        const QString placemark = QStringLiteral("Placemark");
        for (QDomElement e = all.firstChildElement(placemark); !e.isNull();
             e = e.nextSiblingElement()) {
            const QDomElement point = e.firstChildElement(QStringLiteral("Point"));
            if (!point.isNull()) {
                text +=
                    e.firstChildElement(QStringLiteral("styleUrl")).text().left(2).toStdString() +
                    ' ' + e.firstChildElement().text().toStdString() + ' ' +
                    brief(point.lastChildElement().text());
            }
            const QDomNodeList values = e.elementsByTagName(QStringLiteral("Data"));
            for (int i = 0; i < values.size(); ++i) {
                text += ' ' + values.at(i).firstChild().toElement().text().toStdString() + '=' +
                        values.at(i).lastChild().toElement().text().toStdString();
            }
            text += point.isNull() ? "" : "\n";
        }
        return text;
    }
    std::string path()
    {
        return brief(body()
                         .lastChildElement()
                         .elementsByTagName(QStringLiteral("coordinates"))
                         .at(0)
                         .toElement()
                         .text());
    }

    CapturedDiagnostics mOutput;
    Profile mProfile{eUnitMetric};
    RecordBuilder mRecord;
    std::vector<RecordLimit> mLimits;
    std::vector<RecordWarning> mWarnings;
    KmlExportOptions mOptions;
    KmlSummary mSummary;
    QDomDocument mDocument;
};

TEST_F(KmlExport, PathTakesOnePointAStepAndFillsGaps)
{
    const struct
    {
        const char* behaviour;
        int step;
        const char* samples;
        const char* path; ///< longitude, latitude, altitude
    } rows[] = {
        {"the last sample of a step counts", 1, "lat 0.2:1 0.6:2 0.9:3 lon 0.1:7 alt 0:5", "7,3,5"},
        {"points go by time", 1, "lat 5:2 1:1 lon 1:7 5:8 alt 5:20 1:10", "7,1,10 8,2,20"},
        {"gaps take the value before them, else the first", 1, "lat 0:1 3:2 lon 2:7 alt 1:50",
         "7,1,50 7,1,50 7,1,50 7,2,50"},
        {"long steps", 10, "lat 9.9:1 10:2 25:3 lon 0:7 alt 0:0", "7,1,0 7,2,0 7,3,0"},
        {"no number is no position", 1, "lat 0:nan 1:1 1.5:inf 2:nan lon 0:7 2:9 alt 0:nan 1:3",
         "7,1,3 7,1,3 9,1,3"},
        {"a single point", 1, "lat 4:1 lon 4:7 alt 4:3", "7,1,3"},
        {"across the antimeridian", 1, "lat 0:1 lon 0:179.5 1:-179.5 alt 0:-4",
         "179.5,1,-4 -179.5,1,-4"},
        {"without any altitude it stays missing", 1, "lat 0:1 lon 0:7", "7,1,-1000"},
        {"without any longitude there is no path", 1, "lat 0:1 1:2 alt 0:3", ""},
        {"neither without a latitude that is a number", 1, "lat 0:nan lon 0:7 alt 0:3", ""},
        {"a step from a broken settings file", 0, "lat 0:1 1:2 lon 0:7 alt 0:3", "7,1,3 7,2,3"},
    };
    mLimits = {event(0, "E", "1")};
    for (const auto& row : rows) {
        fly(row.samples);
        mOptions.timeStep = row.step;
        const QString wanted = QString::fromLatin1(row.path);
        EXPECT_EQ(path(), row.path) << row.behaviour;
        EXPECT_EQ(marks().empty(), wanted.isEmpty()) << row.behaviour;
        EXPECT_EQ(mSummary.hasPositions, !wanted.isEmpty()) << row.behaviour;
        EXPECT_EQ(static_cast<int>(mSummary.pathPoints), wanted.count(QLatin1Char(',')) / 2);
    }
}

TEST_F(KmlExport, LogsPositionsAndLongitudesFilledIn)
{
    fly("lat 0.5:1 1.5:nan lon 1.25:7 alt 2:3");
    const std::size_t before = mOutput.text().size();
    written(); // and a summary, which logs nothing
    EXPECT_EQ(mOutput.text().substr(before), "time 0.500000 lat 1.000000\ntime 1.500000 lat nan\n"
                                             "time 1.250000 long 7.000000\nnew lons 7.000000\n");
}

TEST_F(KmlExport, PositionsAreMetricAndPassTheJumpFilter)
{
    mOptions.parameters.clear();
    load(true);
    mProfile.setCurrentUnit(eUnitImperial);
    fly("lat 0:4800 1:4800 2:4800 3:4800 4:4800 5:1000 lon 0:1100 alt 0:100");
    EXPECT_EQ(path(), "11,48,100 11,48,100 11,48,100 11,48,100 11,48,100 11,48,100");
    EXPECT_EQ(marks(), "no 00:00:00 11,48,100 <b>Lat</b>=48.000000 [] <b>Alt</b>=200.0 [ft]\n");
}

TEST_F(KmlExport, PlacemarksTakeTheFirstValueOfTheirSpan)
{
    mOptions.parameters.erase(mOptions.parameters.begin()); // leaves the altitude
    mOptions.timeStep = 2;
    mOptions.placeMarkInterval = 5;
    fly("lat 1:1 14:2 40:3 3700:4 lon 1:7 alt 4:100 3:150 12:200 13:250 25:300 49.9:350 3702:400");
    EXPECT_EQ(marks(), "no 00:00:00 7,1,150 <b>Alt</b>=100.0 [m]\n" // first of the file
                       "no 00:00:10 7,1,250 <b>Alt</b>=200.0 [m]\n"
                       "no 00:00:20 7,2,300 <b>Alt</b>=300.0 [m]\n"
                       "no 00:00:40 7,3,300 <b>Alt</b>=350.0 [m]\n"
                       "no 01:01:40 7,4,350 <b>Alt</b>=400.0 [m]\n");
    EXPECT_EQ(mSummary.parameterMarks, 5U);
    mOptions.placeMarkOn = false;
    EXPECT_EQ(marks(), "");
    EXPECT_EQ(mSummary.parameterMarks, 0U);
}

TEST_F(KmlExport, EventsStandAtTheirTimeLimitsFirst)
{
    mOptions.placeMarkOn = false;
    fly("lat 10:1 20:2 lon 10:7 alt 10:100");
    mLimits = {event(3.99, "EMU Alt", "9 "), event(86410.5, "EMU Alt", "10 X")};
    mWarnings = {{event(19.9, "Lane A Mode", "1: on C")}};
    const std::string limits = "er 00:00:03 7,1,100 <b>EMU Alt</b>=9 \n"
                               "er 00:00:10 7,2,100 <b>EMU Alt</b>=10 X\n";
    const std::string warnings = "er 00:00:19 7,1,100 <b>Lane A Mode</b>=1: on C\n";
    for (int i = 0; i < 8; ++i) {
        mOptions.errorMarkOn = (i & 4) != 0;
        mOptions.showLimit = (i & 2) != 0;
        mOptions.showWarning = (i & 1) != 0;
        const std::string wanted = (i >= 6 ? limits : "") + (i == 5 || i == 7 ? warnings : "");
        EXPECT_EQ(marks(), wanted) << i;
        EXPECT_EQ(mSummary.eventMarks, lines(wanted)) << i;
    }
}

TEST_F(KmlExport, BothFormsHaveTheirOrderOfElements)
{
    fly("lat 0:1 lon 0:7 alt 0:3");
    mRecord.date(RecordBuilder::utc(2025, 6, 3, 9, 5, 7));
    mOptions.parameters.clear();
    mLimits = {event(0, "EMU Alt", "3 ")};
    mOptions.lineColor = "00ff00";
    mOptions.lineAlpha = 128;
    mOptions.lineWidth = 4;
    mOptions.polygonOn = false;
    mOptions.errorMarkColor = "no colour";
    const std::string head = "Document\n name = VELIX Flightpath 3.6.2025 9:05:07\n";
    const std::string label = "  LabelStyle\n   color = ";
    const std::string icon = "  IconStyle\n   color = ";
    const std::string normal = " Style normalPlacemark\n";
    const std::string error = " Style errorPlacemark\n";
    const std::string yellow = "ff00ccff\n";
    const std::string black = "ff000000\n";
    const std::string mark = "errorPlacemark\n  ExtendedData\n   Data EMU Alt\n"
                             "    displayName = <b>EMU Alt</b>\n    value = 3 \n"
                             "  Point\n   altitudeMode = absolute\n"
                             "   coordinates = 7.00000000,1.00000000,3.0\n Placemark\n";
    const std::string name = "  name = Flight path\n";
    const std::string line = "  Style\n   LineStyle\n    color = 8000ff00\n    width = 4\n"
                             "   PolyStyle\n    color = 64ff0000\n  LineString\n   extrude = 0\n";
    const std::string mode = "   altitudeMode = absolute\n";
    const std::string points = "   coordinates = 7.00000000,1.00000000,3.0\n\n";
    const std::string placemark = " Placemark\n  name = 00:00:00\n  styleUrl = ";
    EXPECT_EQ(outline(body()), head + normal + label + yellow + icon + yellow + error + label +
                                   black + icon + black + placemark + mark + line + points + mode +
                                   name);
    EXPECT_TRUE(written().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml>\n"));
    mOptions.standard = true;
    EXPECT_EQ(outline(body()), head + normal + icon + yellow + label + yellow + error + icon +
                                   black + label + black + placemark + "#" + mark + name + line +
                                   mode + points);
    EXPECT_TRUE(written().contains("<kml xmlns=\"http://www.opengis.net/kml/2.2\">"));
}

TEST_F(KmlExport, AnyTextMakesAReadableDocument)
{
    fly("lat 0:1 lon 0:7 alt 0:3");
    mOptions.parameters.erase(mOptions.parameters.begin());
    ProfileParameter& p = mProfile.data().devices[0].parameters.at(1038);
    p.name = QStringLiteral("a<b> & \"c\" ]]> \u00D6l\x01\x1F");
    p.fullName = p.name;
    p.unitMetric = QStringLiteral("<&\x02>");
    mLimits = {event(0, "\u00D6l </b>\x1B", "<value>")};
    EXPECT_EQ(marks(), "no 00:00:00 7,1,3 <b>a<b> & \"c\" ]]> \u00D6l</b>=3.0 [<&>]\n"
                       "er 00:00:00 7,1,3 <b>\u00D6l </b></b>=<value>\n");
}

TEST_F(KmlExport, ZipsTheDocumentWhenTheNameSaysSo)
{
    fly("lat 0:1 lon 0:7 alt 0:3");
    const QByteArray plain = written();
    mOptions.fileName = "Flight.KMZ";
    QByteArray bytes = written();
    QBuffer file(&bytes);
    KZip zip(&file);
    ASSERT_TRUE(zip.open(QIODevice::ReadOnly));
    ASSERT_EQ(zip.directory()->entries(), QStringList(QStringLiteral("doc.kml")));
    EXPECT_EQ(zip.directory()->file(QStringLiteral("doc.kml"))->data(), plain);
}

} // namespace
} // namespace VELIX::Test
