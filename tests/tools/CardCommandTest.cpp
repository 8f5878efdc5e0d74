#include "tools/velix-card/CardCommand.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <memory>

namespace VELIX::Test {
namespace {

/// What a call wrote and with what status it ended.
struct Outcome
{
    int status = -1;
    std::string results;
    std::string complaints;
};

class Command : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProfileBuilder profile;
        profile.conversion("m", "ft", 2, 0);
        profile.threshold("T", {{0, "green", "OK"}, {50, "red", "LIMIT"}});
        profile.device("EMU").matrix(7, "Faults");
        profile.parameter(1, QStringLiteral("Height"), "FLOAT").set("thresholdId", "T");
        profile.set("unitMetric", "m").set("unitImperial", "ft").set("precision", "1");
        profile.parameter(2, QStringLiteral("Label"), "ACHAR");
        profile.parameter(1036, QStringLiteral("Lat"), "FLOAT");
        profile.parameter(1037, QStringLiteral("Lon"), "FLOAT");
        ASSERT_TRUE(profile.write(mProfile));

        RecordBuilder a;
        a.id(1).at(1).floatValue(10).at(2).floatValue(60).at(3).floatValue(std::nanf(""));
        a.id(2).at(4).ucharValue(0).id(7).at(1).blongValue(0x80000001).at(4).blongValue(0);
        a.id(0x90000000).source(0).ucharValue(0);
        RecordBuilder b;
        b.date(RecordBuilder::utc(2025, 6, 30, 12, 0, 0)).id(1).at(5).floatValue(1);
        mCard.add("a.CAN", a).add("b.CAN", b);
    }
    /// The words of a call after "velix-card".
    Outcome call(const QString& words)
    {
        QStringList arguments = {QStringLiteral("velix-card")};
        for (const QString& word : words.split(QLatin1Char(' '))) {
            arguments << (word == QLatin1String("CARD")      ? mCard.path()
                          : word == QLatin1String("PROFILE") ? mProfile
                                                             : word);
        }
        const ParsedOptions parsed = parseCardOptions(arguments);
        if (!parsed.options) {
            return {parsed.status, {}, parsed.message.toStdString()};
        }
        const CapturedDiagnostics diagnostics;
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
        ::testing::internal::CaptureStderr();
        Outcome outcome;
        outcome.status = CardCommand(*parsed.options, file.get()).run();
        outcome.complaints = ::testing::internal::GetCapturedStderr();
        std::rewind(file.get());
        for (int c = std::fgetc(file.get()); c != EOF; c = std::fgetc(file.get())) {
            outcome.results.push_back(static_cast<char>(c));
        }
        return outcome;
    }
    Outcome call(const char* words) { return call(QString::fromUtf8(words)); }
    QJsonObject json(const char* words)
    {
        const Outcome outcome = call(words);
        EXPECT_EQ(outcome.status, 0) << outcome.complaints;
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.results)).object();
    }

    void expectWrongUsage(const QString& words)
    {
        const Outcome outcome = call(words);
        EXPECT_EQ(outcome.status, 2) << words.toStdString();
        EXPECT_EQ(outcome.results, "") << words.toStdString();
        EXPECT_FALSE(outcome.complaints.empty()) << words.toStdString();
    }

    QTemporaryDir mFolder;
    QString mProfile = mFolder.filePath(QStringLiteral("Profile.xml"));
    CardFolder mCard;
};

QJsonObject at(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toObject();
}

TEST_F(Command, WrongUsageEndsWithTwoAndASentence)
{
    for (const char* words :
         {"info", "CARD", "info CARD", "list CARD --profile PROFILE",
          "info CARD more --profile PROFILE", "info CARD --profile PROFILE --cycle one",
          "info CARD --profile PROFILE --cycle -1", "info CARD --profile PROFILE --flight 0",
          "info CARD --profile PROFILE --cycle 1 --flight x",
          "info CARD --profile PROFILE --cycle 1 --file a.CAN",
          "info CARD --profile PROFILE --unit us", "info CARD --profile PROFILE --time now",
          "info CARD --profile PROFILE --nonsense", "csv CARD --profile PROFILE",
          "csv CARD --profile PROFILE --cycle 1 --resolution 50",
          "csv CARD --profile PROFILE --cycle 1 --delimiter ;",
          "csv CARD --profile PROFILE --cycle 1 --select EMU/None", "kml CARD --profile PROFILE"}) {
        expectWrongUsage(QLatin1String(words));
    }
    for (const char* option :
         {"time-step 0", "line-width wide", "line-color #ff0000", "line-alpha 256", "polygon true",
          "polygon-color red", "polygon-alpha -1", "placemarks", "placemark-interval 1.5",
          "placemark-color ff00000", "events yes", "limits ON", "warnings 1", "event-color 00gg00",
          "select EMU/None"}) {
        expectWrongUsage(
            QStringLiteral("kml CARD --profile PROFILE --cycle 1 --%1").arg(QLatin1String(option)));
    }
}

TEST_F(Command, WhatCannotBeReadOrWrittenLeavesNoOutput)
{
    const QString old = mFolder.filePath(QStringLiteral("old"));
    const std::pair<const char*, int> rows[] = {
        {"info CARD --profile /no/such --output OLD", 1},
        {"info /no/such --profile PROFILE --output OLD", 1},
        {"info CARD --profile CARD --output OLD", 1},
        {"csv CARD --profile PROFILE --cycle 9 --output OLD", 1},
        {"csv CARD --profile PROFILE --file x.CAN --output OLD", 1},
        {"kml CARD --profile PROFILE --cycle 9 --output OLD", 1},
        {"csv CARD --profile PROFILE --select No/Such --cycle 1 --output OLD", 2},
        {"info CARD --profile PROFILE --output /no/such/file", 1},
        {"info CARD --profile PROFILE --output CARD", 1},
    };
    for (const auto& [words, status] : rows) {
        SCOPED_TRACE(words);
        ASSERT_TRUE(writeFile(old, "old"));
        const Outcome outcome = call(QString::fromUtf8(words).replace(QLatin1String("OLD"), old));
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.results, "");
        EXPECT_EQ(std::count(outcome.complaints.begin(), outcome.complaints.end(), '\n'), 1)
            << outcome.complaints;
        EXPECT_EQ(readFile(old), "old");
    }
}

TEST_F(Command, InfoListsTheCardAlone)
{
    const QJsonObject report = json("info CARD --profile PROFILE");
    EXPECT_EQ(report.keys(), (QStringList{QStringLiteral("cycles"), QStringLiteral("files")}));
    const QJsonObject file = at(at(report, "files"), "a.CAN");
    EXPECT_EQ(file.size(), 13);
    EXPECT_EQ(file.value(QLatin1String("dateTime")).toString(),
              QStringLiteral("2025-06-30T11:59:56.000"));
    EXPECT_TRUE(file.value(QLatin1String("dateInvalid")).toBool());
    EXPECT_EQ(file.value(QLatin1String("sampleCount")).toInt(), 7);
    const QJsonObject cycle = at(at(report, "cycles"), "1");
    EXPECT_EQ(cycle.value(QLatin1String("name")).toString(), QStringLiteral("Cycle 1"));
    EXPECT_EQ(cycle.value(QLatin1String("files")).toArray().size(), 2);
}

TEST_F(Command, InfoOnASelectionReportsWhatIsLoaded)
{
    const QJsonObject report = json(
        "info CARD --profile PROFILE --unit imperial --file a.CAN --time 2.5 --time 0 --time 99");
    const QJsonObject record = at(report, "record");
    EXPECT_EQ(record.value(QLatin1String("indexSize")).toInt(), 6);
    EXPECT_EQ(record.value(QLatin1String("ids")).toObject().keys(),
              (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("2415919104"),
                           QStringLiteral("7")}))
        << "collective lists are left out";
    const QJsonArray limits = report.value(QLatin1String("limits")).toArray();
    ASSERT_EQ(limits.size(), 1) << "no number is no event";
    EXPECT_EQ(limits[0].toObject().value(QLatin1String("value")).toString(),
              QStringLiteral("120.0 "));
    EXPECT_EQ(limits[0].toObject().value(QLatin1String("color")).toString(),
              QStringLiteral("#ffff0000"));
    const auto compact = [&report](const char* part, const char* key) {
        const QJsonArray rows = at(report, part).value(QLatin1String(key)).toArray();
        return QJsonDocument(rows).toJson(QJsonDocument::Compact).toStdString();
    };
    EXPECT_EQ(compact("getValue", "EMU/Height"),
              R"([[2.5,120,2,"#ffff0000"],[0,20,0,"#ff008000"],[99,0,null,null]])");
    EXPECT_EQ(compact("getValue", "EMU/Label"),
              "[[2.5,0,null,null],[0,0,null,null],[99,0,null,null]]");
    EXPECT_EQ(compact("faultWords", "7"), R"([[2.5,"80000001"],[0,"00000000"],[99,"00000000"]])");
}

TEST_F(Command, MissingFlightsAndFilesAreWarnings)
{
    Outcome outcome = call("csv CARD --profile PROFILE --cycle 1 --flight 3");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.complaints, "Warning: cycle 1 has no flight 3, the whole cycle is loaded.\n");
    EXPECT_NE(outcome.results.find("0:00:05.000;1.0\n"), std::string::npos);

    outcome = call("csv CARD --profile PROFILE --file a.CAN --file none.CAN");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.complaints, "Warning: The card has no file none.CAN.\n");
    EXPECT_NE(outcome.results.find("0:00:01.000;10.0\n"), std::string::npos);
}

TEST_F(Command, CsvWritesTheTableOfTheChosenParameters)
{
    EXPECT_EQ(call("csv CARD --profile PROFILE --file b.CAN").results,
              "Time;Height [m];Label;Lat;Lon\n0:00:05.000;1.0\n");
    EXPECT_EQ(call("csv CARD --profile PROFILE --file b.CAN --unit imperial --delimiter tab "
                   "--aligned --resolution 10")
                  .results,
              "Time\tHeight [ft]\tLabel\tLat\tLon\n0:00:05.000\t2.0\t\t\t\n");
    EXPECT_EQ(call("csv CARD --profile PROFILE --file b.CAN --select EMU/Label").results,
              "Time;Label\n");
    const QString target = mFolder.filePath(QStringLiteral("out.csv"));
    const Outcome outcome =
        call(QStringLiteral("csv CARD --profile PROFILE --cycle 1 --output ") + target);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.results, "");
    EXPECT_TRUE(readFile(target).startsWith("Time;Height [m];Label;Lat;Lon\n0:00:01.000;10.0\n"));
}

TEST_F(Command, KmlTakesItsOptions)
{
    RecordBuilder record;
    record.at(1).id(1036).floatValue(4).id(1037).floatValue(5);
    record.id(1).floatValue(10).at(3).floatValue(60).at(5).floatValue(20);
    mCard.add("c.CAN", record);
    const struct
    {
        const char* options;
        const char* present; ///< in the document without white space
        const char* absent;
    } rows[] = {
        {"", "<value>60.0</value>", "10.0[m]"},
        {"--select EMU/Height --placemark-interval 2", "20.0[m]", "xmlns"},
        {"--select EMU/Height --placemark-interval 2 --time-step 3", "10.0[m]", "20.0[m]"},
        {"--select EMU/Height --unit imperial", "20.0[ft]", "[m]"},
        {"--select EMU/Height --placemarks off", "60.0", "[m]"},
        {"--line-width 3 --line-color 010203 --line-alpha 0", ">00030201</color><width>3<", "#"},
        {"--polygon-color 010203 --polygon-alpha 16", ">10030201</color></PolyStyle>", "#"},
        {"--polygon off", "<extrude>0<", "<extrude>1<"},
        {"--placemark-color 010203", ">ff030201</color></IconStyle></Style><Style", "ff00ccff"},
        {"--event-color 010203", ">ff030201</color></IconStyle></Style><Placemark", "#"},
        {"--events off --warnings off", "<extrude>1<", "60.0"},
        {"--limits off", "<extrude>1<", "60.0"},
        {"--standard", "<styleUrl>#errorPlacemark</styleUrl>", "<kml>"},
    };
    for (const auto& row : rows) {
        const Outcome outcome = call(QStringLiteral("kml CARD --profile PROFILE --file c.CAN %1")
                                         .arg(QLatin1String(row.options))
                                         .trimmed());
        EXPECT_EQ(outcome.status, 0) << outcome.complaints;
        const QString text =
            QString::fromStdString(outcome.results).simplified().remove(QLatin1Char(' '));
        EXPECT_TRUE(text.contains(QLatin1String(row.present))) << row.options;
        EXPECT_FALSE(text.contains(QLatin1String(row.absent))) << row.options;
    }
    const QString zipped = mFolder.filePath(QStringLiteral("c.kmz"));
    call(QStringLiteral("kml CARD --profile PROFILE --file c.CAN --output ") + zipped);
    EXPECT_TRUE(readFile(zipped).startsWith("PK"));
    EXPECT_EQ(call("kml CARD --profile PROFILE --file a.CAN").complaints,
              "Warning: there are no positions, the path is empty.\n");
}

} // namespace
} // namespace VELIX::Test
