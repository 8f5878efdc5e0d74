#include "core/Property.h"

#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using VELIX::Property;
using namespace VELIX::Test;

namespace {

class PropertyFile : public ::testing::Test
{
protected:
    void fill(const QByteArray& text) const
    {
        ASSERT_TRUE(writeFile(QString::fromStdString(mPath), text));
    }
    /// Empty if there is no such file.
    QByteArray content(const std::string& suffix = "") const
    {
        return readFile(QString::fromStdString(mPath + suffix));
    }
    std::string report(int result) const
    {
        return "readXmlFile <" + mPath + "> " + std::to_string(result) + "\n";
    }

    QTemporaryDir mFolder;
    std::string mPath = mFolder.path().toStdString() + "//VELIX.ini";
    CapturedDiagnostics mOutput;
    Property mStore;
};

TEST(Property, ConvertsTextOnReading)
{
    struct Row
    {
        const char* text;
        int asInt;
        double asDouble;
        bool asSwitch;
    };
    const Row rows[] = {
        {"12abc", 12, 12.0, false}, {"", 0, 0.0, false},
        {"  -7", -7, -7.0, false},  {"0x10", 0, 16.0, false},
        {"010", 10, 10.0, false},   {"2.75", 2, 2.75, false},
        {"1e3", 1, 1000.0, false},  {"true", 0, 0.0, true},
        {"TRUE", 0, 0.0, true},     {"True", 0, 0.0, true},
        {"tRUE", 0, 0.0, false},    {"true ", 0, 0.0, false},
        {"1", 1, 1.0, false},       {"4294967297", 1, 4294967297.0, false}, // the low half
    };
    for (const Row& row : rows) {
        Property store;
        store.setString("key", row.text);
        EXPECT_EQ(store.getInt("key", 5), row.asInt) << row.text;
        EXPECT_EQ(store.getDouble("key", 5.0), row.asDouble) << row.text;
        EXPECT_EQ(store.getSwitch("key", true), row.asSwitch) << row.text;
    }
}

TEST(Property, KeepsValuesAsText)
{
    Property store;
    store.setInt("int", -2147483647);
    EXPECT_EQ(store.getString("int", ""), "-2147483647");
    store.setSwitch("switch", true);
    EXPECT_EQ(store.getString("switch", ""), "true");
    const std::pair<double, const char*> doubles[] = {
        {1.0, "1"},      {1.0 / 3, "0.333333"}, {1234567.0, "1.23457e+06"},
        {1e-5, "1e-05"}, {-0.0, "-0"},
    };
    for (const auto& [value, text] : doubles) {
        store.setDouble("double", value);
        EXPECT_EQ(store.getString("double", ""), text);
    }
}

TEST_F(PropertyFile, GivesBackEveryTextThatXmlCanHold)
{
    const std::pair<const char*, const char*> texts[] = {
        {" blanks ", " blanks "},
        {"line\nbreak\ttab\rreturn", "line\nbreak\ttab\rreturn"},
        {"<\"&'>]]>", "<\"&'>]]>"},
        {"\xF0\x9F\x9B\xA9 \xC3\xA4\xE2\x82\xAC", "\xF0\x9F\x9B\xA9 \xC3\xA4\xE2\x82\xAC"},
        {"/cards/\x01\x1B[31m\xEF\xBF\xBE\xEF\xBF\xBF", "/cards/[31m"}, // the rest spoils files
        {"caf\xE9", "caf\xEF\xBF\xBD"},
    };
    for (const auto& [written, read] : texts) {
        mStore.setString(std::string("key ") + read, written);
    }
    mStore.setString("empty", "");
    EXPECT_EQ(mStore.writeXmlFile(mPath), 1);
    EXPECT_FALSE(content().contains("empty"));
    Property again;
    EXPECT_EQ(again.readXmlFile(mPath), 1);
    EXPECT_EQ(mOutput.text(), report(1));
    for (const auto& [written, read] : texts) {
        EXPECT_EQ(again.getString(std::string("key ") + read, "absent"), read);
    }
    again.writeXmlFile(mPath);
    EXPECT_EQ(content(".broken"), "");
}

TEST_F(PropertyFile, IsMergedFromTheDirectChildrenOfAnyRoot)
{
    fill("<Other><Property id='a' value='1'/><property id='b' value='2'/>"
         "<Group><Property id='c' value='3'/></Group><Property id='a' value='4'/>"
         "<Property id='d'/><Property value='5'/></Other>");
    mStore.setConfigFile(mPath);
    mStore.setString("kept", "old");
    mStore.setString("a", "old");
    EXPECT_EQ(mStore.readXmlFile(), 1);
    const std::pair<const char*, const char*> values[] = {
        {"kept", "old"}, {"a", "4"}, {"b", "absent"}, {"c", "absent"}, {"d", ""}, {"", "5"}};
    for (const auto& [key, value] : values) {
        EXPECT_EQ(mStore.getString(key, "absent"), value) << key;
    }
}

TEST_F(PropertyFile, YieldsDefaultsWhenItIsMissingOrAFolder)
{
    const std::string failure = "could not open file <" + mPath + ">\n" + report(0);
    EXPECT_EQ(mStore.readXmlFile(mPath), 1);
    EXPECT_EQ(mOutput.text(), failure);
    EXPECT_EQ(mStore.getInt("Unit", 3), 3);
    EXPECT_EQ(mStore.getDouble("Unit", 0.5), 0.5);
    EXPECT_TRUE(mStore.getSwitch("Unit", true));

    QDir().mkdir(QString::fromStdString(mPath));
    EXPECT_EQ(mStore.readXmlFile(mPath), 1);
    EXPECT_EQ(mStore.writeXmlFile(mPath), 1);
    EXPECT_EQ(mOutput.text(),
              failure + failure + "could not open file for writing !<" + mPath + ">\n");
}

TEST_F(PropertyFile, IsKeptAsideWhenItIsBroken)
{
    const QByteArray broken = "<VELIX><Property id='Unit' value='1'/><Property";
    fill(broken);
    mStore.setConfigFile(mPath);
    mStore.readXmlFile();
    EXPECT_EQ(mOutput.text(), "could not set content <" + mPath + ">\n" + report(0));
    EXPECT_EQ(mStore.getInt("Unit", 0), 0);
    EXPECT_EQ(content(), broken);

    mStore.setInt("Unit", 0);
    mStore.writeXmlFile();
    mStore.writeXmlFile();
    EXPECT_EQ(content(".broken"), broken);
    EXPECT_TRUE(content().contains("Unit"));
}

TEST_F(PropertyFile, StaysAsItWasWhenTheDiskIsFull)
{
    fill("<VELIX/>");
    for (const std::size_t length : {10U, 5000U, 100000U}) { // below and above write buffers
        mStore.setString("key", std::string(length, 'x'));
        CapturedDiagnostics output;
        const FullDisk disk(length / 2);
        EXPECT_EQ(mStore.writeXmlFile(mPath), 1);
        EXPECT_EQ(output.text(), "could not write file <" + mPath + ">\n") << length;
        EXPECT_EQ(content(), "<VELIX/>") << length;
        EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files).size(), 1) << "left a temporary";
    }
}

} // namespace
