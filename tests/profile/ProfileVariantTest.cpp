#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

namespace VELIX::Test {
namespace {

TEST(ProfileVariant, ListsAcceptAndExclude)
{
    CapturedDiagnostics output;
    const struct
    {
        const char* current;
        const char* list;
        int accepted;
    } rows[] = {
        {"A", "", 1},      {"", "A", 1},    {"", "!A", 1},        {"A", "A", 1},
        {"B", "A", 0},     {"A", "A,B", 1}, {"B", " A , B ", 1},  {"C", "A,B", 0},
        {"C", "!C", 0},    {"A", "!C", 1},  {"A", "A,!A", 0},     {"B", "A,!A", 0},
        {"A", "!C,!D", 1}, {"a", "A", 0},   {"D", " !C , !D", 0}, {"AB", "A", 0},
    };
    for (const auto& row : rows) {
        const auto list = QString::fromUtf8(row.list);
        EXPECT_EQ(Profile::checkVariant(QString::fromUtf8(row.current), list), row.accepted)
            << row.current << " in <" << row.list << ">";
    }
    EXPECT_EQ(output.text().rfind("variant <A> size 1\nvariant <A> size 1\nvariant <A,B> size 2\n"),
              0U)
        << "only lists that are looked into";
}

/// Each kind of element once for variant A and once for everyone; readable as one line.
const char* const kXml = R"(<CanAerospaceProfile>
  <Variants><Variant name='A' id='1' color='#ff0000'/><Variant name='B' id='2'/></Variants>
  <UnitConversions><Unit unitMetric='m' unitImperial='ft' factor='2' variant='A'/></UnitConversions>
  <EnumList><Enum name='E'><Value val='1' label='any'/><Value val='1' label='onlyA' variant='A'/>
  </Enum><Enum name='EA' variant='A'/></EnumList>
  <ThresholdList variant='A'><Threshold name='T'><Value val='0' state='LIMIT'/></Threshold>
  </ThresholdList>
  <Device name='D1'><ErrorMatrix id='1' variant='A'/>
    <Parameter id='1' name='p' enumId='E' thresholdId='T' unitMetric='m' unitImperial='ft'/>
    <Parameter id='2' name='q' enumId='EA' variant='!A'/></Device>
  <Device name='D2' variant='A'><Parameter id='3' name='r'/></Device>
</CanAerospaceProfile>)";

std::string described(const Profile& profile)
{
    QStringList words;
    for (const ProfileDevice& device : profile.data().devices) {
        words << device.name + QStringLiteral("(%1)").arg(device.errorMatrices.size());
        for (const auto& [id, p] : device.parameters) {
            const ProfileEnum* labels = profile.enumeration(p);
            words << p.name + (p.thresholdId != 0 ? QStringLiteral("+T") : QString()) +
                         (p.hasConversion ? QStringLiteral("+U") : QString()) +
                         (labels != nullptr && !labels->values.empty()
                              ? QLatin1Char(':') + labels->values.at(1).label
                              : QString());
        }
    }
    return words.join(QLatin1Char(' ')).toStdString();
}

TEST(ProfileVariant, EveryElementCanBeLimitedToVariants)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("p.xml"));
    ASSERT_TRUE(writeFile(path, kXml));
    CapturedDiagnostics output;
    Profile profile;
    ASSERT_NE(profile.loadProfile(path), 0);
    EXPECT_TRUE(profile.isEmpty()) << "only the variants are read";
    const std::pair<const char*, const char*> models[] = {{"A", "D1(1) p+T+U:onlyA D2(0) r"},
                                                          {"B", "D1(0) p:any q"},
                                                          {"", "D1(1) p+T+U:onlyA q D2(0) r"}};
    for (const auto& [variant, model] : models) {
        ASSERT_NE(profile.setCurrentVariant(QString::fromUtf8(variant)), 0);
        EXPECT_EQ(described(profile), model) << variant;
        EXPECT_EQ(profile.currentVariant(), QString::fromUtf8(variant));
    }
    EXPECT_NE(output.text().find("Profile::loadProfil <" + path.toStdString() + "> <B>\n"),
              std::string::npos);
    ASSERT_EQ(profile.variants().size(), 2U) << "loading keeps the list";
    EXPECT_EQ(profile.variants()[0].name, QStringLiteral("A"));
    EXPECT_EQ(profile.variants()[0].id, QStringLiteral("1"));
    EXPECT_EQ(profile.variants()[0].color, QStringLiteral("#ff0000"));
    ASSERT_EQ(profile.loadProfile(QStringLiteral("/no/such")), 0);
    EXPECT_TRUE(profile.variants().empty());
}

} // namespace
} // namespace VELIX::Test
