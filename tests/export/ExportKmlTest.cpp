#include "export/ExportKml.h"
#include "card/RecordData.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <KZip>
#include <QBuffer>
#include <QDomDocument>

#include <limits>

namespace VELIX::Test {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

struct Sample
{
    double time;
    float value;
};
using Samples = std::vector<Sample>;

/// Positions in plain degrees and metres, two parameters to choose and a lamp.
class KmlExport : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(ProfileBuilder()
                        .conversion("m", "ft", 2, 0)
                        .device("EMU")
                        .parameter(1036, QStringLiteral("Lat"), "FLOAT")
                        .parameter(1037, QStringLiteral("Lon"), "FLOAT")
                        .parameter(1038, QStringLiteral("Alt"), "FLOAT")
                        .set("unitMetric", "m")
                        .set("unitImperial", "ft")
                        .set("precision", "1")
                        .device("Lane A")
                        .parameter(500, QStringLiteral("Mode"), "UCHAR")
                        .load(mProfile));
    }
    void add(std::uint32_t id, const Samples& samples)
    {
        for (const Sample& sample : samples) {
            mRecord.id(id).at(sample.time).floatValue(sample.value);
        }
    }
    void fly(const Samples& latitudes, const Samples& longitudes, const Samples& altitudes)
    {
        mRecord = RecordBuilder();
        add(1036, latitudes);
        add(1037, longitudes);
        add(1038, altitudes);
    }
    void flyStraight(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            const auto f = static_cast<float>(i);
            add(1036, {{i + 0.5, 48 + f / 64}});
            add(1037, {{i + 0.5, 11 + f / 64}});
            add(1038, {{i + 0.5, 500 + f}});
        }
    }
    void choose(std::initializer_list<int> ids)
    {
        mOptions.parameters.clear();
        for (const ProfileDevice& device : mProfile.data().devices) {
            for (const auto& [id, p] : device.parameters) {
                if (std::find(ids.begin(), ids.end(), id) != ids.end()) {
                    mOptions.parameters.push_back(&p);
                }
            }
        }
    }
    static RecordLimit event(double time, const char* name, const char* value)
    {
        RecordLimit event;
        event.time = time;
        event.name = name;
        event.value = value;
        return event;
    }
    QByteArray written()
    {
        const auto data = mRecord.data();
        data->limits = mLimits;
        for (const RecordLimit& warning : mWarnings) {
            data->warnings.push_back({warning});
        }
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        ExportKml writer(mProfile);
        EXPECT_TRUE(writer.writeDocument(*data, mOptions, out));
        mSummary = writer.summary(*data, mOptions);
        return out.data();
    }
    QDomElement body()
    {
        QString error;
        EXPECT_TRUE(mDocument.setContent(written(), &error)) << error.toStdString();
        return mDocument.documentElement().firstChildElement();
    }
    /// One line an element: its depth, tag, id and text.
    static std::string outline(const QDomElement& element, int depth = 0)
    {
        std::string text(static_cast<std::size_t>(depth), ' ');
        text += element.tagName().toStdString();
        for (const char* name : {"id", "name", "xmlns"}) {
            if (element.hasAttribute(QLatin1String(name))) {
                text += " " + element.attribute(QLatin1String(name)).toStdString();
            }
        }
        if (element.firstChildElement().isNull()) {
            text += " = " + element.text().toStdString();
        }
        text += '\n';
        for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            text += outline(e, depth + 1);
        }
        return text;
    }
    /// One line a placemark with a point: style, name, position and values.
    std::string marks()
    {
        std::string text;
        const QDomElement all = body();
        for (QDomElement mark = all.firstChildElement(QStringLiteral("Placemark")); !mark.isNull();
             mark = mark.nextSiblingElement()) {
            const QDomElement point = mark.firstChildElement(QStringLiteral("Point"));
            if (point.isNull()) {
                continue;
            }
            for (const char* tag : {"styleUrl", "name"}) {
                text += mark.firstChildElement(QLatin1String(tag)).text().left(8).toStdString();
                text += ' ';
            }
            text += point.lastChildElement().text().toStdString();
            const QDomNodeList values = mark.elementsByTagName(QStringLiteral("Data"));
            for (int i = 0; i < values.size(); ++i) {
                const QDomElement data = values.at(i).toElement();
                text += " " + data.firstChildElement().text().toStdString() + "=" +
                        data.lastChildElement().text().toStdString();
            }
            text += '\n';
        }
        return text;
    }
    std::string path()
    {
        const QDomElement line =
            body().lastChildElement().firstChildElement(QStringLiteral("LineString"));
        return line.firstChildElement(QStringLiteral("coordinates")).text().toStdString();
    }

    CapturedDiagnostics mOutput;
    Profile mProfile{eUnitMetric};
    RecordBuilder mRecord;
    std::vector<RecordLimit> mLimits;
    std::vector<RecordLimit> mWarnings;
    KmlExportOptions mOptions;
    KmlSummary mSummary;
    QDomDocument mDocument;
};

TEST_F(KmlExport, PathTakesOnePointAStepAndFillsGaps)
{
    const struct
    {
        const char* behaviour;
        Samples latitudes;
        Samples longitudes;
        Samples altitudes;
        int step;
        const char* coordinates;
    } rows[] = {
        {"the last sample of a step counts",
         {{0.2, 1}, {0.6, 2}, {0.9, 3}},
         {{0.1, 7}},
         {{0, 5}},
         1,
         "7.00000000,3.00000000,5.0\n"},
        {"points go by time, whatever the order in the file",
         {{5, 2}, {1, 1}},
         {{1, 7}, {5, 8}},
         {{5, 20}, {1, 10}},
         1,
         "7.00000000,1.00000000,10.0\n8.00000000,2.00000000,20.0\n"},
        {"a gap takes the value before it, a late start the first one",
         {{0, 1}, {3, 2}},
         {{2, 7}},
         {{1, 50}},
         1,
         "7.00000000,1.00000000,50.0\n7.00000000,1.00000000,50.0\n"
         "7.00000000,1.00000000,50.0\n7.00000000,2.00000000,50.0\n"},
        {"long steps",
         {{9.9, 1}, {10, 2}, {25, 3}},
         {{0, 7}},
         {{0, 0}},
         10,
         "7.00000000,1.00000000,0.0\n7.00000000,2.00000000,0.0\n7.00000000,3.00000000,0.0\n"},
        {"no number is no position",
         {{0, kNan}, {1, 1}, {1.5, kInfinity}, {2, kNan}},
         {{0, 7}, {2, 9}},
         {{0, kNan}, {1, 3}},
         1,
         "7.00000000,1.00000000,3.0\n7.00000000,1.00000000,3.0\n9.00000000,1.00000000,3.0\n"},
        {"a single point", {{4, 1}}, {{4, 7}}, {{4, 3}}, 1, "7.00000000,1.00000000,3.0\n"},
        {"across the antimeridian",
         {{0, 1}, {1, 1}},
         {{0, 179.5F}, {1, -179.5F}},
         {{0, -4}},
         1,
         "179.50000000,1.00000000,-4.0\n-179.50000000,1.00000000,-4.0\n"},
        {"no altitude at all stays marked as missing",
         {{0, 1}},
         {{0, 7}},
         {},
         1,
         "7.00000000,1.00000000,-1000.0\n"},
        {"no longitude, no path", {{0, 1}, {1, 2}}, {}, {{0, 3}}, 1, ""},
        {"no number as latitude, no path", {{0, kNan}}, {{0, 7}}, {{0, 3}}, 1, ""},
        {"a step from a broken settings file",
         {{0, 1}, {1, 2}},
         {{0, 7}},
         {{0, 3}},
         0,
         "7.00000000,1.00000000,3.0\n7.00000000,2.00000000,3.0\n"},
    };
    for (const auto& row : rows) {
        fly(row.latitudes, row.longitudes, row.altitudes);
        mLimits = {event(0, "E", "1")};
        mOptions.timeStep = row.step;
        const std::string coordinates = path();
        EXPECT_EQ(coordinates, row.coordinates) << row.behaviour;
        EXPECT_EQ(marks().empty(), coordinates.empty()) << row.behaviour;
        EXPECT_EQ(mSummary.hasPositions, !coordinates.empty()) << row.behaviour;
        EXPECT_EQ(mSummary.pathPoints, static_cast<std::size_t>(std::count(
                                           coordinates.begin(), coordinates.end(), '\n')))
            << row.behaviour;
    }
}

TEST_F(KmlExport, LogsPositionsAndLongitudesFilledIn)
{
    fly({{0.5, 1}, {1.5, kNan}}, {{1.25, 7}}, {{2, 3}});
    const std::size_t before = mOutput.text().size();
    written(); // and a summary, which logs nothing
    EXPECT_EQ(mOutput.text().substr(before), "time 0.500000 lat 1.000000\ntime 1.500000 lat nan\n"
                                             "time 1.250000 long 7.000000\nnew lons 7.000000\n");
}

TEST_F(KmlExport, PositionsAreMetricAndPassTheJumpFilterAfresh)
{
    ASSERT_TRUE(ProfileBuilder()
                    .conversion("m", "ft", 2, 0)
                    .device("EMU")
                    .parameter(1036, QStringLiteral("Lat"), "FLOAT")
                    .set("velixDataType", "Latitude")
                    .parameter(1037, QStringLiteral("Lon"), "FLOAT")
                    .set("velixDataType", "Longitude")
                    .parameter(1038, QStringLiteral("Alt"), "FLOAT")
                    .set("unitMetric", "m")
                    .set("unitImperial", "ft")
                    .load(mProfile));
    mProfile.setCurrentUnit(eUnitImperial);
    for (int i = 0; i < 7; ++i) {
        add(1036, {{i * 1.0, i == 6 ? 1000.0F : 4800.0F}}); // the last one jumps
        add(1037, {{i * 1.0, 1100.0F}});
    }
    add(1038, {{0, 100}});
    choose({1036, 1038});
    const std::string point = "11.00000000,48.00000000,100.0\n";
    EXPECT_EQ(path(), point + point + point + point + point + point + point);
    EXPECT_EQ(marks(), "normalPl 00:00:00 11.00000000,48.00000000,100.0 <b>Lat</b>=48.000000 [] "
                       "<b>Alt</b>=200.000000 [ft]\n");
    fly({{1, 1000}}, {{1, 1100}}, {{1, 0}});
    EXPECT_EQ(path(), "11.00000000,10.00000000,0.0\n") << "another record";
}

TEST_F(KmlExport, PlacemarksTakeTheFirstValueOfTheirSpan)
{
    fly({{1, 1}, {14, 2}, {40, 3}, {3700, 4}}, {{1, 7}}, {{1, 100}, {14, 200}, {3700, 300}});
    mRecord.id(500).at(12).ucharValue(5).at(13).ucharValue(6).at(25).ucharValue(7);
    mRecord.at(49.9).ucharValue(8).at(0.1).ucharValue(9);
    choose({1038, 500});
    mOptions.placeMarkInterval = 5;
    mOptions.timeStep = 2;
    EXPECT_EQ(
        marks(),
        "normalPl 00:00:00 7.00000000,1.00000000,100.0 <b>Alt</b>=100.0 [m] <b>Mode</b>=9 []\n"
        "normalPl 00:00:10 7.00000000,2.00000000,200.0 <b>Alt</b>=200.0 [m] <b>Mode</b>=5 []\n"
        "normalPl 00:00:20 7.00000000,2.00000000,200.0 <b>Mode</b>=7 []\n"
        "normalPl 00:00:40 7.00000000,3.00000000,200.0 <b>Mode</b>=8 []\n"
        "normalPl 01:01:40 7.00000000,4.00000000,300.0 <b>Alt</b>=300.0 [m]\n");
    EXPECT_EQ(mSummary.parameterMarks, 5U);
    mOptions.placeMarkOn = false;
    EXPECT_EQ(marks(), "");
    EXPECT_EQ(mSummary.parameterMarks, 0U);
}

TEST_F(KmlExport, EventsStandAtTheirTimeLimitsFirst)
{
    fly({{10, 1}, {20, 2}}, {{10, 7}}, {{10, 100}});
    mLimits = {event(3.99, "EMU Alt", "9 "), event(86410.5, "EMU Alt", "10 X")};
    mWarnings = {event(19.9, "Lane A Mode", "1: on C")};
    const std::string limits =
        "errorPla 00:00:03 7.00000000,1.00000000,100.0 <b>EMU Alt</b>=9 \n"
        "errorPla 00:00:10 7.00000000,2.00000000,100.0 <b>EMU Alt</b>=10 X\n";
    const std::string warnings =
        "errorPla 00:00:19 7.00000000,1.00000000,100.0 <b>Lane A Mode</b>=1: on C\n";
    for (const bool on : {true, false}) {
        for (const bool limit : {true, false}) {
            for (const bool warning : {true, false}) {
                mOptions.errorMarkOn = on;
                mOptions.showLimit = limit;
                mOptions.showWarning = warning;
                const std::string wanted = (on && limit ? limits : std::string()) +
                                           (on && warning ? warnings : std::string());
                EXPECT_EQ(marks(), wanted) << on << limit << warning;
                EXPECT_EQ(mSummary.eventMarks,
                          static_cast<std::size_t>(std::count(wanted.begin(), wanted.end(), '\n')));
            }
        }
    }
}

TEST_F(KmlExport, BothFormsHaveTheirOrderOfElements)
{
    mRecord.date(RecordBuilder::utc(2025, 6, 3, 9, 5, 7));
    fly({{0, 1}}, {{0, 7}}, {{0, 3}});
    mRecord.date(RecordBuilder::utc(2025, 6, 3, 9, 5, 7));
    choose({1038});
    mLimits = {event(0, "EMU Alt", "3 ")};
    mOptions.lineColor = "00ff00";
    mOptions.lineAlpha = 128;
    mOptions.lineWidth = 4;
    mOptions.polygonOn = false;
    mOptions.errorMarkColor = "no colour";
    const std::string mark = "   Data %1\n    displayName = <b>%2</b>\n    value = %3\n"
                             "  Point\n   altitudeMode = absolute\n"
                             "   coordinates = 7.00000000,1.00000000,3.0\n";
    const auto filled = [&mark](const char* id, const char* label, const char* value) {
        return QString::fromStdString(mark)
            .arg(QLatin1String(id), QLatin1String(label), QLatin1String(value))
            .toStdString();
    };
    const std::string name = " name = VELIX Flightpath 3.6.2025 9:05:07\n";
    const std::string style = "  Style\n   LineStyle\n    color = 8000ff00\n    width = 4\n"
                              "   PolyStyle\n    color = 64ff0000\n";
    const std::string coordinates = "   coordinates = 7.00000000,1.00000000,3.0\n\n";
    EXPECT_EQ(outline(body()),
              "Document\n" + name +
                  " Style normalPlacemark\n  LabelStyle\n   color = ff00ccff\n"
                  "  IconStyle\n   color = ff00ccff\n"
                  " Style errorPlacemark\n  LabelStyle\n   color = ff000000\n"
                  "  IconStyle\n   color = ff000000\n"
                  " Placemark\n  name = 00:00:00\n  styleUrl = normalPlacemark\n  ExtendedData\n" +
                  filled("EMU/Alt", "Alt", "3.0 [m]") +
                  " Placemark\n  name = 00:00:00\n  styleUrl = errorPlacemark\n  ExtendedData\n" +
                  filled("EMU Alt", "EMU Alt", "3 ") + " Placemark\n" + style +
                  "  LineString\n   extrude = 0\n" + coordinates +
                  "   altitudeMode = absolute\n  name = Flight path\n");
    EXPECT_TRUE(written().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml>\n"));
    mOptions.standard = true;
    EXPECT_EQ(outline(body()),
              "Document\n" + name +
                  " Style normalPlacemark\n  IconStyle\n   color = ff00ccff\n"
                  "  LabelStyle\n   color = ff00ccff\n"
                  " Style errorPlacemark\n  IconStyle\n   color = ff000000\n"
                  "  LabelStyle\n   color = ff000000\n"
                  " Placemark\n  name = 00:00:00\n  styleUrl = #normalPlacemark\n  ExtendedData\n" +
                  filled("EMU/Alt", "Alt", "3.0 [m]") +
                  " Placemark\n  name = 00:00:00\n  styleUrl = #errorPlacemark\n  ExtendedData\n" +
                  filled("EMU Alt", "EMU Alt", "3 ") + " Placemark\n  name = Flight path\n" +
                  style + "  LineString\n   extrude = 0\n   altitudeMode = absolute\n" +
                  coordinates);
    EXPECT_EQ(mDocument.documentElement().attribute(QStringLiteral("xmlns")),
              QStringLiteral("http://www.opengis.net/kml/2.2"));
}

TEST_F(KmlExport, AnyTextMakesAReadableDocument)
{
    flyStraight(1);
    ProfileParameter& p = mProfile.data().devices[0].parameters.at(1038);
    p.name = QStringLiteral("a<b> & \"c\" ]]> \u00D6l\x01\x1F");
    p.fullName = p.name;
    p.unitMetric = QStringLiteral("<&\x02>");
    choose({1038});
    mLimits = {event(0,
                     "Gr\xC3\xB6\xC3\x9F"
                     "e </b>\x1B",
                     "<value>")};
    for (const bool standard : {false, true}) {
        mOptions.standard = standard;
        const std::string at = " 00:00:00 11.00000000,48.00000000,500.0 <b>";
        EXPECT_EQ(marks(), (standard ? "#normalP" : "normalPl") + at +
                               "a<b> & \"c\" ]]> \u00D6l</b>=500.0 [<&>]\n" +
                               (standard ? "#errorPl" : "errorPla") + at +
                               "Gr\u00F6\u00DFe </b></b>=<value>\n");
    }
}

TEST_F(KmlExport, ZipsTheDocumentWhenTheNameSaysSo)
{
    flyStraight(3);
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
