#include "core/XmlHandler.h"

#include "tests/support/CapturedDiagnostics.h"

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
        {"16", 16, 16.0, false},
        {"0x10", 16, 0.0, false},
        {"010", 8, 10.0, false},
        {"-3", -3, -3.0, false},
        {"1.5", 0, 1.5, false},
        {"1,5", 0, 0.0, false},
        {"true", 0, 0.0, true},
        {"12abc", 0, 0.0, false},
        {"99999999999", 0, 99999999999.0, false},
        {"1", 1, 1.0, true},
        {"TRUE", 0, 0.0, false},
        {"", 77, 7.5, false},
        {nullptr, 77, 7.5, true}, // no such attribute
    };
    XmlHandler xml;
    QDomDocument doc;
    for (const Row& row : rows) {
        QDomElement element = doc.createElement(QStringLiteral("e"));
        if (row.text != nullptr) {
            element.setAttribute(kName, QString::fromUtf8(row.text));
        }
        const std::string text = row.text != nullptr ? row.text : "default";
        SCOPED_TRACE(text);
        const QDomNamedNodeMap attrs = element.attributes();
        EXPECT_EQ(xml.xmlGetIntAttribute(attrs, kName, 77), row.asInt);
        EXPECT_EQ(xml.xmlGetDoubleAttribute(attrs, kName, 7.5), row.asDouble);
        EXPECT_EQ(xml.xmlGetBoolAttribute(attrs, kName, true), row.asBool);
        EXPECT_EQ(xml.xmlGetStdStringAttribute(attrs, kName, "default"), text);
        const QString byDefault = QStringLiteral("default");
        EXPECT_EQ(xml.xmlGetStringAttribute(attrs, kName, byDefault).toStdString(), text);
    }
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
    EXPECT_EQ(written(-std::numeric_limits<double>::max()).size(), 1U + 309U + 13U);
    xml.xmlCreateParameter(element, kName, "\xC3\xBC\x02");
    EXPECT_EQ(element.attribute(kName).toStdString(), "\xC3\xBC");
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
    ASSERT_TRUE(mXml.xmlWriteFile(mDoc, mFolder.path(), QStringLiteral("file.xml")));

    QFile file(mPath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(),
              "<Root>\n    <Child>5 &lt; 6 \xC2\xB0\x43</Child>\n</Root>\n");

    QDomDocument again;
    ASSERT_TRUE(mXml.xmlReadFile(again, mFolder.path(), QStringLiteral("file.xml")));
    EXPECT_EQ(again.documentElement().text(), QStringLiteral("5 < 6 \u00B0C"));

    // Given with its folder, a file that is not there fails in silence.
    CapturedDiagnostics output;
    const QString missing = QStringLiteral("missing/file.xml");
    EXPECT_FALSE(mXml.xmlReadFile(mDoc, mFolder.path(), missing));
    EXPECT_FALSE(mXml.xmlWriteFile(mDoc, mFolder.path(), missing));
    EXPECT_EQ(output.text(), "");
}

/// So many elements inside of each other.
QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

TEST_F(XmlFile, IsTakenOrRefusedByItsContent)
{
    QByteArray bomb = "<!DOCTYPE r [<!ENTITY a 'ha'>";
    for (const char* entity : {"ba", "cb", "dc", "ed", "fe"}) { // each sixteen of the one before
        const QByteArray name(1, entity[0]);
        const QByteArray before(1, entity[1]);
        bomb += "<!ENTITY " + name + " '" + ('&' + before + ';').repeated(16) + "'>";
    }
    bomb += "]>";
    const struct
    {
        const char* name;
        QByteArray text;
        bool ok;
    } rows[] = {
        {"declaration, comment, doctype and blanks around",
         "<?xml version='1.0' encoding='UTF-8'?>\n<!-- c -->\n<!DOCTYPE r>\n<r/>\n<!-- d -->\n",
         true},
        {"byte order mark", "\xEF\xBB\xBF<r/>", true},
        {"Latin-1 by declaration", "<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xB0'/>",
         true},
        {"undeclared name space prefix", "<x:r><x:b/></x:r>", true},
        {"small entity", "<!DOCTYPE r [<!ENTITY deg 'D'>]><r>&deg;</r>", true},
        {"nested as deep as allowed", nested(200), true},
        {"nested one deeper", nested(201), false},
        {"nested 50,000 deep", nested(50000), false},
        {"nested by an entity", "<!DOCTYPE r [<!ENTITY a '" + nested(1000) + "'>]><r>&a;</r>",
         false},
        {"entity bomb in text", bomb + "<r>&f;</r>", false},
        {"entity bomb in an attribute", bomb + "<r a='&f;'/>", false},
        {"entities of each other", "<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r x='&a;'/>",
         false},
        {"unknown entity", "<r>&what;</r>", false},
        {"empty", "", false},
        {"cut off", "<r><b/>", false},
        {"two roots", "<r/><r/>", false},
        {"zero bytes", QByteArray(64, '\0'), false},
        {"attribute twice", "<r a='1' a='2'/>", false},
    };
    for (const auto& row : rows) {
        CapturedDiagnostics output;
        EXPECT_EQ(reads(row.text), row.ok) << row.name;
        EXPECT_EQ(output.text(), row.ok ? "" : mBadContent) << row.name;
    }
}

TEST_F(XmlFile, WhatIsNoFileIsNeitherReadNorReplaced)
{
    const QString pipe = mFolder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(qUtf8Printable(pipe), 0600), 0);
    for (const QString& path :
         {mFolder.path(), pipe, QStringLiteral("/nowhere/file.xml"), QString()}) {
        CapturedDiagnostics output;
        const std::string name = path.toStdString();
        EXPECT_FALSE(mXml.xmlReadFile(mDoc, path)) << name;
        EXPECT_FALSE(mXml.xmlWriteFile(mDoc, path)) << name;
        EXPECT_EQ(output.text(), "could not open file <" + name +
                                     ">\ncould not open file for writing !<" + name + ">\n");
    }
}

} // namespace
