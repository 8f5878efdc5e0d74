#include "gui/look/StyleHandler.h"

#include "gui/look/Palette.h"
#include "gui/look/Resources.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/TestFile.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using VELIX::Palette;
using VELIX::Test::CapturedDiagnostics;
using VELIX::Test::readFile;
using VELIX::Test::writeFile;

namespace {

const QString BuiltIn = QStringLiteral(":/styles/style.VELIX.css");

TEST(StyleHandler, ReplacesNamesByColoursAndSizes)
{
    const Palette& dark = Palette::dark();
    EXPECT_EQ(StyleHandler::replaceNames(QStringLiteral("a{color:@text;margin:@gap}"), dark),
              QStringLiteral("a{color:#e6ebf1;margin:4px}"));
    // A longer name that starts with a shorter one is its own name.
    EXPECT_EQ(StyleHandler::replaceNames(QStringLiteral("@accentText@accent"), dark),
              QStringLiteral("#10161d#5aa2ff"));
    EXPECT_EQ(StyleHandler::replaceNames(QStringLiteral("url(x-@look.svg)"), dark),
              QStringLiteral("url(x-dark.svg)"));
}

TEST(StyleHandler, KeepsAndReportsAnUnknownName)
{
    CapturedDiagnostics printed;
    EXPECT_EQ(StyleHandler::replaceNames(QStringLiteral("@nosuch @line"), Palette::light()),
              QStringLiteral("@nosuch #d3d9e0"));
    EXPECT_EQ(printed.text(), "StyleHandler: unknown name <@nosuch>\n");
}

TEST(StyleHandler, ReadsAFileAndReportsOneThatItCannotRead)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("my.css"));
    ASSERT_TRUE(writeFile(path, "QLabel {color: @accent; qproperty-text: \"\xC2\xB0\"}"));
    EXPECT_EQ(StyleHandler::readStyle(path),
              QStringLiteral("QLabel {color: #1769d2; qproperty-text: \"\u00B0\"}"));

    CapturedDiagnostics printed;
    EXPECT_EQ(StyleHandler::readStyle(folder.filePath(QStringLiteral("none.css"))), QString());
    EXPECT_EQ(printed.text().rfind("StyleHandler: cannot read <", 0), 0U);
}

TEST(StyleHandler, BuiltInStyleHasOnlyKnownNamesAndImages)
{
    VELIX::initResources();
    const QString source = QString::fromUtf8(readFile(BuiltIn));
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    int images = 0;
    CapturedDiagnostics printed;
    for (const Palette* palette : {&Palette::light(), &Palette::dark()}) {
        const QString style = StyleHandler::replaceNames(source, *palette);
        EXPECT_FALSE(style.contains(QLatin1Char('@')));
        auto matches = url.globalMatch(style);
        while (matches.hasNext()) {
            const QString path = matches.next().captured(1);
            EXPECT_TRUE(QFile::exists(path)) << qUtf8Printable(path);
            ++images;
        }
    }
    EXPECT_EQ(printed.text(), "");
    EXPECT_GT(images, 20);
}

TEST(StyleHandler, BuiltInStyleObeysTheAppendedFontSize)
{
    VELIX::initResources();
    const QString style = StyleHandler::readStyle(BuiltIn);
    EXPECT_FALSE(style.contains(QStringLiteral("font-size")));
    QLabel label(QStringLiteral("text"));
    for (const int size : {10, 18}) {
        qApp->setStyleSheet(style + QStringLiteral("\nQWidget {font-size: %1px;}").arg(size));
        label.ensurePolished();
        EXPECT_EQ(label.font().pixelSize(), size);
    }
    qApp->setStyleSheet(QString());
}

} // namespace
