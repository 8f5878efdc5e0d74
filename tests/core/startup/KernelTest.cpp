#include "core/startup/Kernel.h"

#include "core/Property.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace VELIX;

namespace {

TEST(Kernel, AppendsTheFontSizeOfTheSettingsToTheStyle)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("style.css")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("QLabel {margin: 2px;} /* 100%2 */"); // a mark that must not be filled in
    file.close();

    Kernel kernel;
    kernel.setApplication(qApp);
    kernel.loadStyleFile(file.fileName());
    const QString style = QStringLiteral("QLabel {margin: 2px;} /* 100%2 */\nQWidget {font-size: ");
    EXPECT_EQ(qApp->styleSheet(), style + QStringLiteral("12px;}"));

    Property::instance().setInt("FontSize", 18);
    kernel.loadStyleFile(file.fileName());
    EXPECT_EQ(qApp->styleSheet(), style + QStringLiteral("18px;}"));
    qApp->setStyleSheet(QString());
}

} // namespace
