#include "core/Property.h"

#include "tests/support/CapturedDiagnostics.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <csignal>
#include <sys/resource.h>

using VELIX::Property;
using VELIX::Test::CapturedDiagnostics;

namespace {

class PropertyFile : public ::testing::Test
{
protected:
    void fill(const QByteArray& text) const
    {
        QFile file(QString::fromStdString(mPath));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray content(const std::string& suffix = "") const
    {
        QFile file(QString::fromStdString(mPath + suffix));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    std::string report(int result) const
    {
        return "readXmlFile <" + mPath + "> " + std::to_string(result) + "\n";
    }

    QTemporaryDir mFolder;
    std::string mPath = mFolder.path().toStdString() + "//VELIX.ini";
    CapturedDiagnostics mOutput;
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
        {"12abc", 12, 12.0, false},
        {"abc", 0, 0.0, false},
        {"", 0, 0.0, false},
        {"  -7", -7, -7.0, false},
        {"0x10", 0, 16.0, false},
        {"010", 10, 10.0, false},
        {"2.75", 2, 2.75, false},
        {"1e3", 1, 1000.0, false},
        {"4294967297", 1, 4294967297.0, false}, // the low half of the long
        {"true", 0, 0.0, true},
        {"TRUE", 0, 0.0, true},
        {"True", 0, 0.0, true},
        {"tRUE", 0, 0.0, false},
        {"true ", 0, 0.0, false},
        {"yes", 0, 0.0, false},
        {"1", 1, 1.0, false},
    };
    for (const Row& row : rows) {
        Property store;
        store.setString("key", row.text);
        EXPECT_EQ(store.getString("key", "def"), row.text);
        EXPECT_EQ(store.getInt("key", 5), row.asInt) << row.text;
        EXPECT_EQ(store.getDouble("key", 5.0), row.asDouble) << row.text;
        EXPECT_EQ(store.getSwitch("key", true), row.asSwitch) << row.text;
    }
}

TEST(Property, AbsentKeysYieldTheReadersDefault)
{
    const Property store;
    EXPECT_EQ(store.getString("key", "def"), "def");
    EXPECT_EQ(store.getInt("key", 5), 5);
    EXPECT_EQ(store.getDouble("key", 0.5), 0.5);
    EXPECT_TRUE(store.getSwitch("key", true));
    EXPECT_FALSE(store.getSwitch("key", false));
}

TEST(Property, KeepsValuesAsText)
{
    Property store;
    store.setInt("int", INT_MIN);
    EXPECT_EQ(store.getString("int", ""), "-2147483648");
    store.setSwitch("switch", true);
    EXPECT_EQ(store.getString("switch", ""), "true");

    const std::pair<double, const char*> doubles[] = {
        {1.0, "1"},        {0.5, "0.5"},       {1.0 / 3, "0.333333"}, {1234567.0, "1.23457e+06"},
        {1e-5, "1e-05"},   {0.0001, "0.0001"}, {-0.0, "-0"},          {123456.0, "123456"},
        {1e300, "1e+300"},
    };
    for (const auto& [value, text] : doubles) {
        store.setDouble("double", value);
        EXPECT_EQ(store.getString("double", ""), text);
    }
}

TEST_F(PropertyFile, WritesKeysInOrderWithoutEmptyValues)
{
    Property store;
    store.setConfigFile(mPath);
    store.setString("b", "<\"&'>");
    store.setString("a", "M\xC3\xBCnchen");
    store.setString("gone", "");
    store.setString("B", "upper case first");
    EXPECT_EQ(store.writeXmlFile(), 1);

    QByteArray text = content();
    EXPECT_EQ(text.count('\n'), 5);
    EXPECT_TRUE(text.startsWith("<VELIX>\n    <Property ")) << text.constData();
    EXPECT_FALSE(text.contains("gone"));
    EXPECT_TRUE(text.contains("\"M\xC3\xBCnchen\"")) << text.constData();
    EXPECT_LT(text.indexOf("id=\"B\""), text.indexOf("id=\"a\""));
    EXPECT_LT(text.indexOf("id=\"a\""), text.indexOf("id=\"b\""));
}

TEST_F(PropertyFile, ValuesComeBackAsTheyWere)
{
    const std::string texts[] = {"plain",     " blanks ",         "line\nbreak\ttab\rreturn",
                                 "<\"&'>]]>", "\xF0\x9F\x9B\xA9", "\xC3\xA4\xE2\x82\xAC"};
    Property written;
    for (const std::string& text : texts) {
        written.setString("key " + text, text);
    }
    written.writeXmlFile(mPath);

    Property read;
    EXPECT_EQ(read.readXmlFile(mPath), 1);
    EXPECT_EQ(mOutput.text(), report(1));
    for (const std::string& text : texts) {
        EXPECT_EQ(read.getString("key " + text, "absent"), text);
    }
}

TEST_F(PropertyFile, CharactersThatXmlForbidsDoNotSpoilTheFile)
{
    Property written;
    written.setString("LastPath", "/cards/\x01\x1B[31m\xEF\xBF\xBF");
    written.setString("bytes", "caf\xE9");
    written.setString("Unit", "1");
    written.writeXmlFile(mPath);

    Property read;
    read.readXmlFile(mPath);
    EXPECT_EQ(mOutput.text(), report(1));
    EXPECT_EQ(read.getString("LastPath", ""), "/cards/[31m");
    EXPECT_EQ(read.getInt("Unit", 0), 1);
}

TEST_F(PropertyFile, ReadingMergesTheDirectChildrenOfAnyRoot)
{
    fill("<Other><Property id='a' value='1'/><property id='b' value='2'/>"
         "<Group><Property id='c' value='3'/></Group><Property id='a' value='4'/>"
         "<Property id='d'/><Property value='5'/></Other>");
    Property store;
    store.setConfigFile(mPath);
    store.setString("kept", "old");
    store.setString("a", "old");
    EXPECT_EQ(store.readXmlFile(), 1);
    EXPECT_EQ(store.getString("kept", ""), "old");
    EXPECT_EQ(store.getString("a", ""), "4");
    EXPECT_EQ(store.getString("b", "absent"), "absent");
    EXPECT_EQ(store.getString("c", "absent"), "absent");
    EXPECT_EQ(store.getString("d", "absent"), "");
    EXPECT_EQ(store.getString("", "absent"), "5");
}

TEST_F(PropertyFile, AMissingFileYieldsDefaults)
{
    Property store;
    EXPECT_EQ(store.readXmlFile(mPath), 1);
    EXPECT_EQ(mOutput.text(), "could not open file <" + mPath + ">\n" + report(0));
    EXPECT_EQ(store.getInt("Unit", 3), 3);
}

TEST_F(PropertyFile, ABrokenFileYieldsNothingAndIsKeptAside)
{
    const QByteArray broken = "<VELIX><Property id='Unit' value='1'/><Property";
    fill(broken);
    Property store;
    store.setConfigFile(mPath);
    store.readXmlFile();
    EXPECT_EQ(mOutput.text(), "could not set content <" + mPath + ">\n" + report(0));
    EXPECT_EQ(store.getInt("Unit", 0), 0);
    EXPECT_EQ(content(), broken);

    store.setInt("Unit", 0);
    store.writeXmlFile();
    store.writeXmlFile();
    EXPECT_EQ(content(".broken"), broken);
    EXPECT_TRUE(content().contains("Unit"));
}

TEST_F(PropertyFile, AFolderInTheFilesPlaceIsNeitherReadNorReplaced)
{
    QDir().mkdir(QString::fromStdString(mPath));
    Property store;
    store.setConfigFile(mPath);
    store.setInt("Unit", 1);
    EXPECT_EQ(store.readXmlFile(), 1);
    EXPECT_EQ(store.writeXmlFile(), 1);
    EXPECT_EQ(mOutput.text(), "could not open file <" + mPath + ">\n" + report(0) +
                                  "could not open file for writing !<" + mPath + ">\n");
    EXPECT_EQ(store.getInt("Unit", 0), 1);
}

TEST_F(PropertyFile, AFailedWriteLeavesTheOldFile)
{
    fill("<VELIX/>");
    std::signal(SIGXFSZ, SIG_IGN);
    for (const std::size_t length : {10U, 5000U, 100000U}) { // below and above write buffers
        Property store;
        store.setString("key", std::string(length, 'x'));
        CapturedDiagnostics output;

        // A limit on the size of files stands for the full disk.
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small{length / 2, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        EXPECT_EQ(store.writeXmlFile(mPath), 1);
        setrlimit(RLIMIT_FSIZE, &before);

        EXPECT_EQ(output.text(), "could not write file <" + mPath + ">\n") << length;
        EXPECT_EQ(content(), "<VELIX/>") << length;
        EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files).size(), 1) << "left a temporary";
    }
}

} // namespace
