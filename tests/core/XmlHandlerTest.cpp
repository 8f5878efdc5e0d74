#include "core/XmlHandler.h"

#include "tests/support/CapturedDiagnostics.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <sys/stat.h>

using VELIX::XmlHandler;
using VELIX::Test::CapturedDiagnostics;

namespace {

const QString kName = QStringLiteral("name");

/// The attributes of an element with name="value".
QDomNamedNodeMap attributes(const char* value)
{
    static QDomDocument doc;
    QDomElement element = doc.createElement(QStringLiteral("e"));
    element.setAttribute(kName, QString::fromUtf8(value));
    return element.attributes();
}

TEST(XmlAttribute, ConvertsOnReading)
{
    struct Row
    {
        const char* text;
        int asInt;
        double asDouble;
        bool asBool;
    };
    const Row rows[] = {
        {"16", 16, 16.0, false}, {"0x10", 16, 0.0, false}, {"010", 8, 10.0, false},
        {"-3", -3, -3.0, false}, {"1.5", 0, 1.5, false},   {"1,5", 0, 0.0, false},
        {"abc", 0, 0.0, false},  {"12abc", 0, 0.0, false}, {"99999999999", 0, 99999999999.0, false},
        {"true", 0, 0.0, true},  {"1", 1, 1.0, true},      {"TRUE", 0, 0.0, false},
        {"yes", 0, 0.0, false},  {"", 77, 7.5, false}, // the default, but for the switch
    };
    XmlHandler xml;
    for (const Row& row : rows) {
        const QDomNamedNodeMap attrs = attributes(row.text);
        EXPECT_EQ(xml.xmlGetIntAttribute(attrs, kName, 77), row.asInt) << row.text;
        EXPECT_EQ(xml.xmlGetDoubleAttribute(attrs, kName, 7.5), row.asDouble) << row.text;
        EXPECT_EQ(xml.xmlGetBoolAttribute(attrs, kName, true), row.asBool) << row.text;
        EXPECT_EQ(xml.xmlGetStdStringAttribute(attrs, kName, "def"), row.text);
        EXPECT_EQ(xml.xmlGetStringAttribute(attrs, kName, kName), QLatin1String(row.text));
    }
}

TEST(XmlAttribute, AbsentOnesYieldTheDefault)
{
    XmlHandler xml;
    const QDomNamedNodeMap attrs = attributes("1");
    const QString other = QStringLiteral("other");
    EXPECT_EQ(xml.xmlGetIntAttribute(attrs, other, 77), 77);
    EXPECT_EQ(xml.xmlGetDoubleAttribute(attrs, other, 7.5), 7.5);
    EXPECT_TRUE(xml.xmlGetBoolAttribute(attrs, other, true));
    EXPECT_EQ(xml.xmlGetStdStringAttribute(attrs, other, "def"), "def");
    EXPECT_EQ(xml.xmlGetStringAttribute(attrs, other, kName), kName);
}

TEST(XmlAttribute, FormatsNumbersOnWriting)
{
    XmlHandler xml;
    QDomDocument doc;
    QDomElement element = xml.xmlCreateElement(doc, doc, QStringLiteral("root"));
    const auto written = [&](auto value) {
        xml.xmlCreateAttribute(doc, element, kName, value);
        return element.attribute(kName).toStdString();
    };
    EXPECT_EQ(written(-12), "-12");
    EXPECT_EQ(written(LONG_MAX), "9223372036854775807");
    EXPECT_EQ(written(ULONG_MAX), "-1");
    EXPECT_EQ(written(0.5), "0.500000000000");
    EXPECT_EQ(written(-1e-13), "-0.000000000000");
    EXPECT_EQ(written(1e22), "10000000000000000000000.000000000000");
    EXPECT_EQ(written(-std::numeric_limits<double>::max()).size(), 1U + 309U + 13U);
    EXPECT_EQ(written(std::string("\xC3\xBC\x02")), "\xC3\xBC");
    xml.xmlCreateParameter(element, kName, "parameter");
    EXPECT_EQ(element.attribute(kName), QStringLiteral("parameter"));
}

class XmlFile : public ::testing::Test
{
protected:
    bool reads(const QByteArray& text)
    {
        QFile file(mPath);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        const bool ok = mXml.xmlReadFile(mDoc, mPath);
        EXPECT_EQ(ok, !mDoc.documentElement().isNull());
        return ok;
    }

    QTemporaryDir mFolder;
    QString mPath = mFolder.filePath(QStringLiteral("file.xml"));
    std::string mBadContent = "could not set content <" + mPath.toStdString() + ">\n";
    XmlHandler mXml;
    QDomDocument mDoc;
};

TEST_F(XmlFile, IsWrittenIndentedAndReadBack)
{
    QDomElement root = mXml.xmlCreateElement(mDoc, mDoc, QStringLiteral("Root"));
    QDomElement child = mXml.xmlCreateElement(mDoc, root, QStringLiteral("Child"));
    mXml.xmlCreateTextElement(mDoc, child, QStringLiteral("5 < 6 \u00B0C"));
    mXml.xmlCreateElement(mDoc, root, QStringLiteral("Empty"));
    ASSERT_TRUE(mXml.xmlWriteFile(mDoc, mFolder.path(), QStringLiteral("file.xml")));

    QFile file(mPath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), "<Root>\n    <Child>5 &lt; 6 \xC2\xB0"
                                            "C</Child>\n    <Empty/>\n</Root>\n");

    QDomDocument again;
    ASSERT_TRUE(mXml.xmlReadFile(again, mFolder.path(), QStringLiteral("file.xml")));
    EXPECT_EQ(again.documentElement().firstChildElement(QStringLiteral("Child")).text(),
              QStringLiteral("5 < 6 \u00B0C"));
}

TEST_F(XmlFile, ContentIsTakenOrRefused)
{
    const QByteArray bomb = "<!DOCTYPE r [<!ENTITY a 'ha'>"
                            "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                            "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                            "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
                            "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'>"
                            "<!ENTITY f '&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;'>]>";
    const QByteArray deepEntity = "<!DOCTYPE r [<!ENTITY a '" + QByteArray("<a>").repeated(1000) +
                                  QByteArray("</a>").repeated(1000) + "'>]><r>&a;</r>";
    struct Row
    {
        const char* name;
        QByteArray text;
        bool ok;
    };
    const Row rows[] = {
        {"plain", "<r a='1'><b/></r>", true},
        {"declaration, comment, doctype and blanks around",
         "<?xml version='1.0' encoding='UTF-8'?>\n<!-- c -->\n<!DOCTYPE r>\n<r/>\n<!-- d -->\n",
         true},
        {"byte order mark", "\xEF\xBB\xBF<r/>", true},
        {"Latin-1 by declaration", "<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xB0'/>",
         true},
        {"undeclared name space prefix", "<x:r><x:b/></x:r>", true},
        {"small entity", "<!DOCTYPE r [<!ENTITY deg 'D'>]><r>&deg;</r>", true},
        {"nested as deep as allowed",
         QByteArray("<a>").repeated(200) + QByteArray("</a>").repeated(200), true},
        {"nested one deeper", QByteArray("<a>").repeated(201) + QByteArray("</a>").repeated(201),
         false},
        {"nested 50,000 deep",
         QByteArray("<a>").repeated(50000) + QByteArray("</a>").repeated(50000), false},
        {"nested by an entity", deepEntity, false},
        {"entity bomb in text", bomb + "<r>&f;</r>", false},
        {"entity bomb in an attribute", bomb + "<r a='&f;'/>", false},
        {"entity of itself", "<!DOCTYPE r [<!ENTITY a '&a;'>]><r>&a;</r>", false},
        {"entities of each other", "<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r x='&a;'/>",
         false},
        {"unknown entity", "<r>&what;</r>", false},
        {"empty", "", false},
        {"blanks only", " \n", false},
        {"no XML", "id=value\n", false},
        {"cut off", "<r><b/>", false},
        {"two roots", "<r/><r/>", false},
        {"zero bytes", QByteArray(64, '\0'), false},
        {"attribute twice", "<r a='1' a='2'/>", false},
    };
    for (const Row& row : rows) {
        CapturedDiagnostics output;
        EXPECT_EQ(reads(row.text), row.ok) << row.name;
        EXPECT_EQ(output.text(), row.ok ? "" : mBadContent) << row.name;
    }
}

TEST_F(XmlFile, OfAbsurdSizeIsRefusedUnread)
{
    QFile file(mPath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(3LL * 1024 * 1024 * 1024)); // sparse
    CapturedDiagnostics output;
    EXPECT_FALSE(mXml.xmlReadFile(mDoc, mPath));
    EXPECT_EQ(output.text(), mBadContent);
}

TEST_F(XmlFile, WhatIsNoFileIsNeitherReadNorReplaced)
{
    const QString pipe = mFolder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(qUtf8Printable(pipe), 0600), 0);
    for (const QString& path : {mFolder.path(), pipe, QStringLiteral("/nowhere/file.xml"),
                                QString(), QStringLiteral("/dev/zero")}) {
        CapturedDiagnostics output;
        const std::string name = path.toStdString();
        EXPECT_FALSE(mXml.xmlReadFile(mDoc, path)) << name;
        EXPECT_FALSE(mXml.xmlWriteFile(mDoc, path)) << name;
        EXPECT_EQ(output.text(), "could not open file <" + name +
                                     ">\ncould not open file for writing !<" + name + ">\n");
    }
}

TEST_F(XmlFile, GivenWithItsFolderFailsInSilence)
{
    CapturedDiagnostics output;
    const QString missing = QStringLiteral("missing/file.xml");
    EXPECT_FALSE(mXml.xmlReadFile(mDoc, mFolder.path(), missing));
    EXPECT_FALSE(mXml.xmlWriteFile(mDoc, mFolder.path(), missing));
    EXPECT_EQ(output.text(), "");
}

} // namespace
