// The demo profile describes exactly the messages that the generator sends.

#include "profile/Profile.h"
#include "tests/support/TestFile.h"
#include "tools/democard/MessageTable.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <set>

namespace VELIX::Demo {
namespace {

const QString kProfile = QStringLiteral(DEMO_RESOURCES "/Profile.xml");
const QString kProject = QStringLiteral(DEMO_RESOURCES "/CurrentProject.xml");

/// What follows a piece of text in a file, up to the next quotation mark.
std::set<std::string> following(const QString& path, const char* text)
{
    const QRegularExpression pattern(QLatin1String(text) + QStringLiteral("([^\"]+)\""));
    auto matches = pattern.globalMatch(QString::fromUtf8(VELIX::Test::readFile(path)));
    std::set<std::string> found;
    while (matches.hasNext()) {
        found.insert(matches.next().captured(1).toStdString());
    }
    return found;
}

class DemoProfile : public ::testing::Test
{
protected:
    void load(const char* variant)
    {
        ASSERT_EQ(mProfile.loadProfile(kProfile, QLatin1String(variant)), 1);
    }
    const ProfileParameter* find(const std::string& fullName) const
    {
        for (const ProfileDevice& device : mProfile.data().devices) {
            for (const auto& [id, p] : device.parameters) {
                if (p.fullName.toStdString() == fullName) {
                    return &p;
                }
            }
        }
        return nullptr;
    }
    /// Threshold state of a value of a parameter; -1 without the parameter.
    int stateOf(const char* fullName, double value) const
    {
        const ProfileParameter* p = find(fullName);
        int state = -1;
        QColor color;
        if (p != nullptr) {
            mProfile.getThreshold(*p, value, state, color);
        }
        return state;
    }

    Profile mProfile;
};

TEST_F(DemoProfile, DescribesEveryMessageAsItIsSent)
{
    load("");
    for (const Message& m : messageTable()) {
        const ProfileParameter* p = find(m.name);
        ASSERT_NE(p, nullptr) << m.name;
        EXPECT_EQ(p->id, static_cast<int>(m.id)) << m.name;
        EXPECT_EQ(p->startByte, m.startByte) << m.name;
        EXPECT_EQ(p->factor, m.factor) << m.name;
        EXPECT_EQ(p->offset, m.offset) << m.name;
        // A fault word's bits are BLONG as it is sent; the word as a whole is shown as a number.
        const bool word = p->name == QLatin1String("Fault Word");
        EXPECT_EQ(p->dataType, word ? eLong : m.type) << m.name;
    }
    std::size_t described = 0;
    std::set<int> errorTypes;
    for (const ProfileDevice& device : mProfile.data().devices) {
        described += device.parameters.size();
        for (const auto& [id, p] : device.parameters) {
            EXPECT_TRUE(p.unitMetric == p.unitImperial || p.hasConversion)
                << p.fullName.toStdString();
        }
        ASSERT_EQ(device.errorMatrices.size(), 1U);
        const FaultMatrix& matrix = device.errorMatrices.front();
        EXPECT_EQ(matrix.id, find(device.name.toStdString() + "/Fault Word")->id);
        for (const auto& [bit, p] : matrix.bits) {
            EXPECT_EQ(p.startByte, 4) << p.fullName.toStdString();
            errorTypes.insert(p.errorType);
        }
    }
    EXPECT_EQ(described, messageTable().size()) << "nor any bit outside of a fault word";
    EXPECT_EQ(errorTypes, (std::set<int>{1, 2, 3}));
}

TEST_F(DemoProfile, NamesTheListsThatItDefinesAndNoOther)
{
    EXPECT_EQ(following(kProfile, "enumId=\""), following(kProfile, "<Enum name=\""));
    EXPECT_EQ(following(kProfile, "thresholdId=\""), following(kProfile, "<Threshold name=\""));
    EXPECT_FALSE(following(kProfile, "thresholdId=\"").empty());
}

TEST_F(DemoProfile, DiffersByVariantButHasWhatTheProjectSelects)
{
    const std::set<std::string> selected = following(kProject, "<Parameter name=\"");
    EXPECT_EQ(selected.size(), 16U);
    const struct
    {
        const char* variant;
        bool towHook;
        bool injection;
        int speed5300;
        int oil110;
        int fuel20;
    } rows[] = {
        {"Standard", false, true, 1, 0, 0},
        {"Tow", true, true, 0, 0, 1},
        {"Trainer", true, false, 1, 1, 0},
        {"", true, true, 1, 1, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.variant);
        load(row.variant);
        EXPECT_EQ(find("Airframe/Tow Hook") != nullptr, row.towHook);
        EXPECT_EQ(find("Lane A/Injection Time") != nullptr, row.injection);
        EXPECT_EQ(stateOf("Lane A/Engine Speed", 5300.0), row.speed5300);
        EXPECT_EQ(stateOf("Lane A/Oil Temperature", 110.0), row.oil110);
        EXPECT_EQ(stateOf("Airframe/Fuel Level", 20.0), row.fuel20);
        for (const char* role :
             {"Latitude", "Longitude", "Altitude", "GroundSpeed", "ThrottleA", "FuelA", "FuelB"}) {
            EXPECT_NE(mProfile.getParameterFromVelixType(QLatin1String(role)).id, 0) << role;
        }
        for (const std::string& name : selected) {
            EXPECT_NE(find(name), nullptr) << name;
        }
    }
    EXPECT_EQ(mProfile.loadVariants(kProfile), 1);
    EXPECT_EQ(mProfile.variants().size(), 3U);
}

} // namespace
} // namespace VELIX::Demo
