#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace VELIX::Test {
namespace {

QString document(const char* content)
{
    return QStringLiteral("<CanAerospaceProfile version='3' profileId='P1' name='Towplane' "
                          "comment='Zwei Motoren – größer'>%1</CanAerospaceProfile>")
        .arg(QString::fromUtf8(content));
}

/// What was read of a parameter.
std::string described(const Profile& profile, const ProfileParameter& p)
{
    std::ostringstream out;
    for (const QString& text : {p.fullName, p.unitMetric, p.unitImperial, p.viewId}) {
        out << "<" << text.toStdString() << "> ";
    }
    const ProfileEnum* labels = profile.enumeration(p);
    out << "id " << p.id << " byte " << p.startByte << " bits " << p.startBit << "-" << p.endBit
        << " *" << p.factor << " +" << p.offset << " digits " << p.precision << " type "
        << p.dataType << " error " << p.errorType << (p.thresholdId != 0 ? " judged " : " ")
        << (labels != nullptr ? labels->values.at(1).label.toStdString() : "no label");
    return out.str();
}

TEST(ProfileLoader, ReadsEveryAttributeAndFillsInWhatIsLeftOut)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder::loadText(profile, document(R"(
        <EnumList><Enum name='Mode'><Value val='1' label='Off'/><Value val='1' label='On'/></Enum>
        </EnumList>
        <ThresholdList><Threshold name='Hot'><Value val='1'/></Threshold></ThresholdList>
        <Device name='ECU A'>
          <Parameter name='Oil' unitMetric='bar' unitImperial='psi' viewId='oil' id='0x1F4'
            startByte='4' startBit='010' endBit='11' offset='-1.5' factor='2e-3' precision='2'
            dataType='FLOAT' velixDataType='OilPressure' enumId='Mode' thresholdId='Hot'
            errorType='Fault'/>
          <Parameter id='501' errorType='Warning'/><Parameter/>
        </Device>)")));
    const ProfileInfo& info = profile.data();
    EXPECT_EQ(info.version, QStringLiteral("3"));
    EXPECT_EQ(info.profileId, QStringLiteral("P1"));
    EXPECT_EQ(info.name, QStringLiteral("Towplane"));
    EXPECT_EQ(info.comment, QString::fromUtf8("Zwei Motoren – größer"));

    const ProfileDevice& device = info.devices.front();
    const ProfileParameter& oil = device.parameters.at(500);
    EXPECT_EQ(described(profile, oil), "<ECU A/Oil> <bar> <psi> <oil> id 500 byte 4 bits 8-11 "
                                       "*0.002 +-1.5 digits 2 type 2 error 3 judged On");
    EXPECT_EQ(described(profile, device.parameters.at(0)),
              "<ECU A/> <> <> <> id 0 byte 0 bits 0-0 *1 +0 digits 6 type 0 error 0 no label");
    EXPECT_EQ(device.parameters.at(501).errorType, 2);
    EXPECT_EQ(profile.getParameterFromVelixType(QStringLiteral("OilPressure")).id, 500);
    EXPECT_EQ(profile.getParameterFromVelixType(QString()).fullName, QString());
    EXPECT_FALSE(oil.selected);
    const std::set<int> numbers = {device.uid, oil.uid, device.parameters.at(0).uid, oil.enumId,
                                   oil.thresholdId};
    EXPECT_EQ(numbers.size(), 5U) << "every object has its own";
    EXPECT_GT(*numbers.begin(), 0);
}

TEST(ProfileLoader, KnowsEveryTypeNameAndNoOther)
{
    const char* names[] = {"NODATA",  "ERROR",    "FLOAT",    "LONG",    "ULONG",   "BLONG",
                           "SHORT",   "USHORT",   "BSHORT",   "CHAR",    "UCHAR",   "BCHAR",
                           "SHORT_2", "USHORT_2", "BSHORT_2", "CHAR_4",  "UCHAR_4", "BCHAR_4",
                           "CHAR_2",  "UCHAR_2",  "BCHAR_2",  "MEMID",   "CHKSUM",  "ACHAR",
                           "ACHAR_2", "ACHAR_4",  "CHAR_3",   "UCHAR_3", "BCHAR_3", "ACHAR_3"};
    ProfileBuilder builder;
    builder.device("D");
    int id = 0;
    for (const char* name : names) {
        builder.parameter(id++, QString(), name);
    }
    builder.parameter(id, QString(), "float").parameter(id + 1, QString(), "FLOAT_2");
    Profile profile;
    ASSERT_TRUE(builder.load(profile));
    for (const auto& [code, p] : profile.data().devices.front().parameters) {
        EXPECT_EQ(p.dataType, code < 30 ? code : 0);
    }
}

TEST(ProfileLoader, NamesResolveOnlyAgainstWhatComesBefore)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder::loadText(profile, document(R"(
        <Device name='D'><Parameter id='1' enumId='E' thresholdId='T' unitMetric='m'
            unitImperial='ft' dataType='FLOAT' startByte='4'/></Device>
        <EnumList><Enum name='E'/><Enum name='E'><Value val='1' label='later'/></Enum></EnumList>
        <ThresholdList><Threshold name='T'/></ThresholdList>
        <UnitConversions><Unit unitMetric='m' unitImperial='ft' offset='7'/></UnitConversions>
        <Device name='D'><Parameter id='2' enumId='E' thresholdId='T'/></Device>)")));
    const auto& devices = profile.data().devices;
    ASSERT_EQ(devices.size(), 2U) << "devices of one name stay apart, in file order";
    EXPECT_EQ(devices[0].parameters.at(1).enumId, 0);
    EXPECT_EQ(devices[0].parameters.at(1).thresholdId, 0);
    ASSERT_NE(profile.enumeration(devices[1].parameters.at(2)), nullptr);
    EXPECT_EQ(profile.enumeration(devices[1].parameters.at(2))->values.size(), 1U)
        << "of two of one name the later one";
    EXPECT_GT(devices[1].parameters.at(2).thresholdId, 0);

    // Conversions are looked up by their text when a value is shown, wherever they are; one
    // without a factor turns everything into its offset.
    profile.setCurrentUnit(eUnitImperial);
    const RecordEntry entry = RecordBuilder().floatValue(100.0F).last();
    EXPECT_EQ(profile.getDouble(entry, devices[0].parameters.at(1), true), 7.0);
}

TEST(ProfileLoader, LaterParametersTakeTheIdentifierOrTheRole)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder::loadText(profile, document(R"(
        <Device name='A'><Parameter id='5' name='old' velixDataType='R'/>
                         <Parameter id='5' name='new'/><Parameter id='0' name='zero'/></Device>
        <Device name='B'><Parameter id='5' name='other' dataType='UCHAR' startByte='4'/>
                         <Parameter id='6' name='role' velixDataType='R'/></Device>)")));
    const auto& devices = profile.data().devices;
    EXPECT_EQ(devices[0].parameters.size(), 2U);
    EXPECT_EQ(devices[0].parameters.at(5).name, QStringLiteral("new"));
    EXPECT_EQ(devices[1].parameters.at(5).name, QStringLiteral("other"));
    EXPECT_EQ(profile.getParameterFromVelixType(QStringLiteral("R")).name, QStringLiteral("role"));
    EXPECT_EQ(profile.getDouble(RecordBuilder().id(5).ucharValue(9).last(), true), 9.0)
        << "the last device answers for the identifier";
}

TEST(ProfileLoader, MatrixBitsAreKeptBeforeTheirIdentifierIsOverwritten)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder::loadText(profile, document(R"(
        <Device name='A'>
          <Parameter id='9' name='b0' dataType='BLONG' startBit='0' endBit='0' errorType='Info'/>
          <Parameter id='9' name='b31' dataType='BLONG' startBit='31' endBit='31'/>
          <ErrorMatrix id='9' name='Faults'/>
          <Parameter id='9' name='wide' dataType='BLONG' startBit='3' endBit='4'/>
          <Parameter id='9' name='short' dataType='BSHORT' startBit='5' endBit='5'/>
          <Parameter id='9' name='beyond' dataType='BLONG' startBit='32' endBit='32'/>
          <Parameter id='8' name='elsewhere' dataType='BLONG' startBit='6' endBit='6'/>
          <Parameter id='9' name='b0 again' dataType='BLONG' startBit='0' endBit='0'/>
          <ErrorMatrix id='0x7'/>
        </Device>
        <Device name='B'>
          <Parameter id='9' name='other' dataType='BLONG' startBit='1' endBit='1'/></Device>)")));
    const std::vector<FaultMatrix>& matrices = profile.data().devices[0].errorMatrices;
    ASSERT_EQ(matrices.size(), 2U);
    EXPECT_EQ(matrices[0].name, QStringLiteral("Faults"));
    ASSERT_EQ(matrices[0].bits.size(), 2U);
    EXPECT_EQ(matrices[0].bits.at(0).name, QStringLiteral("b0 again"));
    EXPECT_EQ(matrices[0].bits.at(31).name, QStringLiteral("b31"));
    EXPECT_EQ(matrices[1].id, 7);
    EXPECT_TRUE(matrices[1].bits.empty());
    EXPECT_EQ(profile.data().devices[0].parameters.at(9).name, QStringLiteral("b0 again"));
}

TEST(ProfileLoader, ReloadingReplacesEverythingButTheUnitAlsoByWhatIsNoProfile)
{
    Profile profile;
    profile.setCurrentUnit(eUnitImperial);
    for (const char* name : {"A", "B"}) {
        ProfileBuilder builder;
        builder.device(name).parameter(1, QStringLiteral("x"), "LONG");
        ASSERT_TRUE(builder.load(profile));
        EXPECT_EQ(ProfileBuilder::selection(profile), QString());
        ProfileBuilder::selectAll(profile);
        EXPECT_EQ(ProfileBuilder::selection(profile), QLatin1String(name) + QStringLiteral("/x"));
    }
    EXPECT_EQ(profile.currentUnit(), eUnitImperial);

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Profile.xml"));
    CapturedDiagnostics output;
    for (const char* content : {"", "no xml", "<Other/>", "<CanAerospaceProfile>"}) {
        SCOPED_TRACE(content);
        ASSERT_TRUE(ProfileBuilder::loadText(profile, document("<Device name='D'/>")));
        ASSERT_TRUE(writeFile(path, content));
        EXPECT_EQ(profile.loadProfile(path, QString()), 0);
        EXPECT_TRUE(profile.isEmpty());
        EXPECT_EQ(profile.loadVariants(path), 0);
    }
    EXPECT_EQ(profile.loadProfile(folder.path(), QString()), 0) << "a folder is no profile";
    EXPECT_EQ(profile.loadVariants(QStringLiteral("/no/such")), 0);
    EXPECT_NE(output.text().find("Profile::loadVariants Error could not load </no/such>\n"),
              std::string::npos);
}

} // namespace
} // namespace VELIX::Test
