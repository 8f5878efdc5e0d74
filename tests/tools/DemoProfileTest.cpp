// The demo profile describes exactly the messages that the generator sends.

#include "profile/Profile.h"
#include "tools/democard/MessageTable.h"

#include <QDomDocument>
#include <QFile>
#include <QSet>
#include <gtest/gtest.h>

#include <map>

namespace VELIX::Demo {
namespace {

const QString kProfile = QStringLiteral(DEMO_RESOURCES "/Profile.xml");
const QString kProject = QStringLiteral(DEMO_RESOURCES "/CurrentProject.xml");

QDomElement rootOf(QDomDocument& doc, const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QString error;
    int line = 0;
    EXPECT_TRUE(doc.setContent(&file, &error, &line)) << error.toStdString() << " line " << line;
    return doc.documentElement();
}

/// One "Parameter" element, with the name of its device.
struct Description
{
    QString fullName;
    QDomElement element;

    int number(const char* name, int def) const
    {
        return element.attribute(QLatin1String(name), QString::number(def)).toInt(nullptr, 0);
    }
    double real(const char* name, double def) const
    {
        return element.attribute(QLatin1String(name), QString::number(def)).toDouble();
    }
    QString text(const char* name) const { return element.attribute(QLatin1String(name)); }
    bool isFaultBit() const { return !text("errorType").isEmpty(); }
};

std::vector<Description> descriptions(const QDomElement& root)
{
    std::vector<Description> all;
    const QString parameter = QStringLiteral("Parameter");
    for (QDomElement d = root.firstChildElement(QStringLiteral("Device")); !d.isNull();
         d = d.nextSiblingElement(QStringLiteral("Device"))) {
        const QString device = d.attribute(QStringLiteral("name")) + QLatin1Char('/');
        for (QDomElement p = d.firstChildElement(parameter); !p.isNull();
             p = p.nextSiblingElement(parameter)) {
            all.push_back({device + p.attribute(QStringLiteral("name")), p});
        }
    }
    return all;
}

/// Names of the elements of a list, for example of all "Enum" in "EnumList".
QSet<QString> listed(const QDomElement& root, const char* list, const char* item)
{
    QSet<QString> names;
    const QDomElement parent = root.firstChildElement(QLatin1String(list));
    for (QDomElement e = parent.firstChildElement(QLatin1String(item)); !e.isNull();
         e = e.nextSiblingElement(QLatin1String(item))) {
        names.insert(e.attribute(QStringLiteral("name")));
    }
    return names;
}

TEST(DemoProfile, DescribesEveryMessageAsItIsSent)
{
    QDomDocument doc;
    std::map<QString, Description> byName;
    for (const Description& d : descriptions(rootOf(doc, kProfile))) {
        if (!d.isFaultBit()) {
            EXPECT_TRUE(byName.emplace(d.fullName, d).second) << d.fullName.toStdString();
        }
    }
    EXPECT_EQ(byName.size(), messageTable().size());
    const std::map<EDataType, const char*> typeNames = {
        {eFloat, "FLOAT"}, {eLong, "LONG"},      {eULong, "ULONG"},    {eBLong, "BLONG"},
        {eShort, "SHORT"}, {eUShort, "USHORT"},  {eBShort, "BSHORT"},  {eChar, "CHAR"},
        {eUChar, "UCHAR"}, {eShort2, "SHORT_2"}, {eUChar2, "UCHAR_2"},
    };
    for (const Message& m : messageTable()) {
        const auto found = byName.find(QLatin1String(m.name));
        ASSERT_NE(found, byName.end()) << m.name;
        const Description& d = found->second;
        EXPECT_EQ(d.number("id", 0), static_cast<int>(m.id)) << m.name;
        EXPECT_EQ(d.number("startByte", 0), m.startByte) << m.name;
        EXPECT_EQ(d.real("factor", 1.0), m.factor) << m.name;
        EXPECT_EQ(d.real("offset", 0.0), m.offset) << m.name;
        // A fault word's bits are BLONG as it is sent; the word as a whole is shown as a number.
        const bool word = d.fullName.endsWith(QLatin1String("/Fault Word"));
        EXPECT_EQ(d.text("dataType"), QLatin1String(word ? "LONG" : typeNames.at(m.type)))
            << m.name;
    }
}

TEST(DemoProfile, FaultBitsLieInTheFaultWordsOfTheirDevice)
{
    QDomDocument doc;
    std::map<QString, int> words;
    for (const Message& m : messageTable()) {
        const QString name = QLatin1String(m.name);
        if (name.endsWith(QLatin1String("/Fault Word"))) {
            words[name.section(QLatin1Char('/'), 0, 0)] = static_cast<int>(m.id);
        }
    }
    QSet<QString> types;
    for (const Description& d : descriptions(rootOf(doc, kProfile))) {
        if (d.isFaultBit()) {
            types.insert(d.text("errorType"));
            const std::string name = d.fullName.toStdString();
            EXPECT_EQ(d.number("id", 0), words[d.fullName.section(QLatin1Char('/'), 0, 0)]) << name;
            EXPECT_EQ(d.number("startBit", -1), d.number("endBit", -2)) << name;
            EXPECT_EQ(d.text("dataType"), QLatin1String("BLONG")) << name;
        }
    }
    EXPECT_EQ(types.size(), 3);
    EXPECT_EQ(words.size(), 3U);
}

TEST(DemoProfile, NamesOnlyListsAndUnitsThatItDefines)
{
    QDomDocument doc;
    const QDomElement root = rootOf(doc, kProfile);
    const QSet<QString> enums = listed(root, "EnumList", "Enum");
    const QSet<QString> thresholds = listed(root, "ThresholdList", "Threshold");
    QSet<QString> units;
    const QDomElement conversions = root.firstChildElement(QStringLiteral("UnitConversions"));
    for (QDomElement u = conversions.firstChildElement(); !u.isNull(); u = u.nextSiblingElement()) {
        units.insert(u.attribute(QStringLiteral("unitMetric")) + QLatin1Char('_') +
                     u.attribute(QStringLiteral("unitImperial")));
    }
    QSet<QString> used;
    for (const Description& d : descriptions(root)) {
        const std::string name = d.fullName.toStdString();
        const QString enumId = d.text("enumId");
        const QString thresholdId = d.text("thresholdId");
        EXPECT_TRUE(enumId.isEmpty() || enums.contains(enumId)) << name;
        EXPECT_TRUE(thresholdId.isEmpty() || thresholds.contains(thresholdId)) << name;
        used << enumId << thresholdId;
        if (d.text("unitMetric") != d.text("unitImperial")) {
            const QString pair = d.text("unitMetric") + QLatin1Char('_') + d.text("unitImperial");
            EXPECT_TRUE(units.contains(pair)) << name;
        }
    }
    EXPECT_TRUE(used.contains(enums)) << "an enumeration that nothing uses";
    EXPECT_TRUE(used.contains(thresholds)) << "thresholds that nothing uses";
}

const ProfileParameter* parameter(const Profile& profile, const char* fullName)
{
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            if (p.fullName == QLatin1String(fullName)) {
                return &p;
            }
        }
    }
    return nullptr;
}

/// Threshold state of a value of a parameter; -1 without the parameter.
int stateOf(const Profile& profile, const char* fullName, double value)
{
    const ProfileParameter* p = parameter(profile, fullName);
    int state = -1;
    QColor color;
    if (p != nullptr) {
        profile.getThreshold(*p, value, state, color);
    }
    return state;
}

TEST(DemoProfile, VariantsDiffer)
{
    struct Row
    {
        const char* variant;
        bool towHook;
        bool injection;
        int speed5300;
        int oil110;
        int fuel20;
    };
    const Row rows[] = {
        {"Standard", false, true, 1, 0, 0},
        {"Tow", true, true, 0, 0, 1},
        {"Trainer", true, false, 1, 1, 0},
        {"", true, true, 1, 1, 0},
    };
    Profile profile;
    for (const Row& row : rows) {
        ASSERT_EQ(profile.loadProfile(kProfile, QLatin1String(row.variant)), 1);
        EXPECT_EQ(parameter(profile, "Airframe/Tow Hook") != nullptr, row.towHook) << row.variant;
        EXPECT_EQ(parameter(profile, "Lane A/Injection Time") != nullptr, row.injection)
            << row.variant;
        EXPECT_EQ(stateOf(profile, "Lane A/Engine Speed", 5300.0), row.speed5300) << row.variant;
        EXPECT_EQ(stateOf(profile, "Lane A/Oil Temperature", 110.0), row.oil110) << row.variant;
        EXPECT_EQ(stateOf(profile, "Airframe/Fuel Level", 20.0), row.fuel20) << row.variant;
        for (const char* role :
             {"Latitude", "Longitude", "Altitude", "GroundSpeed", "ThrottleA", "FuelA", "FuelB"}) {
            EXPECT_NE(profile.getParameterFromVelixType(QLatin1String(role)).id, 0) << role;
        }
    }
    EXPECT_EQ(profile.loadVariants(kProfile), 1);
    EXPECT_EQ(profile.variants().size(), 3U);
}

TEST(DemoProject, SelectsParametersThatEveryVariantHas)
{
    QDomDocument doc;
    const QDomElement list = rootOf(doc, kProject).firstChildElement(QStringLiteral("Parameters"));
    QStringList names;
    for (QDomElement p = list.firstChildElement(); !p.isNull(); p = p.nextSiblingElement()) {
        names.append(p.attribute(QStringLiteral("name")));
    }
    EXPECT_GE(names.size(), 12);
    EXPECT_LE(names.size(), 16);
    Profile profile;
    for (const char* variant : {"Standard", "Tow", "Trainer"}) {
        ASSERT_EQ(profile.loadProfile(kProfile, QLatin1String(variant)), 1);
        for (const QString& name : names) {
            EXPECT_NE(parameter(profile, name.toUtf8().constData()), nullptr)
                << variant << ": " << name.toStdString();
        }
    }
}

} // namespace
} // namespace VELIX::Demo
