#include "gui/help/DialogHelp.h"

#include "core/Property.h"
#include "gui/help/HelpBrowser.h"
#include "gui/look/Resources.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace VELIX {

namespace {

class DialogHelpTest : public ::testing::Test
{
protected:
    DialogHelpTest()
    {
        initResources();
        settings.setConfigFile(file());
    }

    std::string file() const { return home.filePath(QStringLiteral("VELIX.ini")).toStdString(); }
    void show(DialogHelp& help, const QString& topic) const
    {
        help.showPage(topic);
        QApplication::setActiveWindow(&help); // no window manager does it
    }
    HelpBrowser& browser(const DialogHelp& help) const { return *help.findChild<HelpBrowser*>(); }
    template <typename T>
    T& child(const DialogHelp& help, const char* name) const
    {
        return *help.findChild<T*>(QLatin1String(name));
    }
    QString page(const DialogHelp& help) const { return browser(help).source().fileName(); }

    QTemporaryDir home;
    Property settings;
};

TEST_F(DialogHelpTest, OpensAtTheTopicAndFollowsItInTheContents)
{
    DialogHelp help(settings);
    auto& contents = child<QTreeWidget>(help, "helpContents");
    show(help, QStringLiteral("fault"));
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(page(help), QStringLiteral("fault.html"));
    ASSERT_NE(contents.currentItem(), nullptr);
    EXPECT_EQ(contents.currentItem()->text(0), QStringLiteral("Fault matrix"));

    show(help, QStringLiteral("no such topic"));
    EXPECT_EQ(page(help), QStringLiteral("start.html"));
    EXPECT_EQ(contents.currentItem()->text(0), QStringLiteral("First steps"));

    contents.setCurrentItem(contents.currentItem()->child(1));
    EXPECT_EQ(browser(help).source().fragment(), QStringLiteral("card"));
    QTest::keyClick(&help, Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(browser(help).source().fragment().isEmpty());
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST_F(DialogHelpTest, SearchMarksTheWordsAndStepsFromPageToPage)
{
    DialogHelp help(settings);
    show(help, QStringLiteral("start"));
    auto& search = child<QLineEdit>(help, "helpSearch");
    auto& results = child<QListWidget>(help, "helpResults");
    QTest::keyClick(&help, Qt::Key_F, Qt::ControlModifier);
    search.setText(QStringLiteral("relief"));
    ASSERT_EQ(results.count(), 1);
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(page(help), QStringLiteral("map.html"));
    EXPECT_EQ(browser(help).markCount(), 1);
    EXPECT_EQ(browser(help).textCursor().block().text().count(QStringLiteral("relief")), 1);

    search.setText(QStringLiteral("snapshot"));
    QTest::keyClick(&search, Qt::Key_Return);
    QSet<QString> visited;
    for (int i = 0; i < 20; ++i) {
        visited.insert(page(help));
        EXPECT_GE(browser(help).currentMark(), 0);
        QTest::keyClick(&help, Qt::Key_F3);
    }
    EXPECT_EQ(visited, (QSet<QString>{QStringLiteral("graph.html"), QStringLiteral("print.html")}));

    search.setText(QStringLiteral("zeppelin"));
    EXPECT_EQ(results.count(), 0);
    EXPECT_EQ(browser(help).markCount(), 0);
    QTest::keyClick(&search, Qt::Key_Return); // nowhere to go
    search.clear();
    EXPECT_TRUE(child<QTreeWidget>(help, "helpContents").isVisible());
}

TEST_F(DialogHelpTest, KeepsItsSizeAndThatOfItsTextInTheLanguageOfTheSettings)
{
    int textSize = 0;
    {
        DialogHelp help(settings);
        show(help, QStringLiteral("start"));
        help.resize(700, 500);
        QTest::keyClick(&help, Qt::Key_Plus, Qt::ControlModifier);
        textSize = browser(help).textSize();
        help.close();
    }
    Property stored;
    stored.readXmlFile(file());
    stored.setString("Locale", "de");
    DialogHelp again(stored);
    show(again, QStringLiteral("trouble"));
    EXPECT_EQ(browser(again).documentTitle(), QStringLiteral("Wenn etwas nicht geht"));
    EXPECT_EQ(again.size(), QSize(700, 500));
    EXPECT_EQ(browser(again).textSize(), textSize);
    EXPECT_EQ(textSize, 15); // two more than the font's 12, and one by the key
}

TEST_F(DialogHelpTest, ImagesNeverNeedScrollingAside)
{
    DialogHelp help(settings);
    show(help, QStringLiteral("graph"));
    for (const int width : {1000, 620, 900}) {
        help.resize(width, 600);
        QTest::qWait(20);
        EXPECT_LE(browser(help).document()->size().width(), browser(help).viewport()->width())
            << width;
    }
}

} // namespace

} // namespace VELIX
