#include "core/startup/Kernel.h"

#include "core/Property.h"
#include "tests/support/TestFile.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace VELIX;

namespace {

TEST(Kernel, AppendsTheFontSizeOfTheSettingsToTheStyle)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("style.css"));
    ASSERT_TRUE(
        VELIX::Test::writeFile(file, "QLabel {margin: 2px;} /* 100%2 */")); // not to be filled in

    Kernel kernel;
    kernel.setApplication(qApp);
    kernel.loadStyleFile(file);
    const QString style = QStringLiteral("QLabel {margin: 2px;} /* 100%2 */\nQWidget {font-size: ");
    EXPECT_EQ(qApp->styleSheet(), style + QStringLiteral("12px;}"));

    Property::instance().setInt("FontSize", 18);
    kernel.loadStyleFile(file);
    EXPECT_EQ(qApp->styleSheet(), style + QStringLiteral("18px;}"));
    qApp->setStyleSheet(QString());
}

} // namespace
