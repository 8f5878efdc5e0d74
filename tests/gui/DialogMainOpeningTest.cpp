// What the main window opens, by which ways, and what it remembers of it.

#include "gui/preferences/DialogPreferences.h"
#include "tests/gui/MainWindowFixture.h"

#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class DialogMainOpeningTest : public DialogMainTest
{
protected:
    QString path(const char* name) const { return program.home.filePath(QLatin1String(name)); }
    /// A menu of recent files, filled as when it opens.
    QMenu& recent(const char* name)
    {
        auto& menu = find<QMenu>(name);
        emit menu.aboutToShow();
        return menu;
    }
    QStringList recentPaths(const char* name)
    {
        QStringList paths;
        for (const QAction* action : recent(name).actions()) {
            paths.append(action->data().toString());
        }
        return paths;
    }
    /// True if the widget, or a window around it, takes the drop.
    static bool drop(QWidget& target, const QString& file)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        data.setText(file);
        QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent event({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
        return event.isAccepted();
    }
};

constexpr const char* kProject = "<VelixProject><Parameters><Parameter name='Lane A/Oil Temp'/>"
                                 "</Parameters></VelixProject>";

} // namespace

TEST_F(DialogMainOpeningTest, TakesCardsAndProjectsThatAreDroppedOnAnyPane)
{
    ASSERT_TRUE(program.installProfile());
    ASSERT_TRUE(writeCard(program.cardFolder()));
    ASSERT_TRUE(writeFile(path("mine.xml"), kProject));
    ASSERT_TRUE(writeFile(path("notes.txt"), "text"));
    start();
    QWidget* const panes[] = {window.get(), find<QTreeWidget>("treeParameters").viewport(),
                              &find<QLineEdit>("searchParameters"), table().viewport()};
    for (QWidget* pane : panes) {
        program.card.clear();
        program.project.clear();
        EXPECT_TRUE(drop(*pane, program.cardFolder()));
        EXPECT_EQ(program.card.recordFiles().size(), 3U);
        EXPECT_TRUE(drop(*pane, path("mine.xml")));
        EXPECT_EQ(program.selection(), QStringLiteral("Lane A/Oil Temp"));
        EXPECT_FALSE(drop(*pane, path("notes.txt")));
        EXPECT_FALSE(drop(*pane, path("gone")));
    }
    EXPECT_EQ(program.storedSetting("LastPath"), program.cardFolder());
    EXPECT_EQ(find<QLineEdit>("searchParameters").text(), QString());

    program.card.clear();
    EXPECT_TRUE(drop(*window, program.cardFolder() + QStringLiteral("/0001.CAN")));
    EXPECT_EQ(program.card.recordFiles().size(), 3U);
}

TEST_F(DialogMainOpeningTest, ListsTheLastEightCardsAndOpensThemAgain)
{
    start();
    EXPECT_EQ(recentPaths("menuRecentCards"), QStringList(QString())); // a line that says so
    action(eActionOpenCard).trigger();                                 // cancelled
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Open SD Card")));
    EXPECT_EQ(program.setting("LastPath"), QString());
    QStringList opened;
    for (int i = 0; i < 10; ++i) {
        const QString folder = path("card") + QString::number(i);
        ASSERT_TRUE(writeCard(folder));
        program.dialogs.file = folder;
        action(eActionOpenCard).trigger();
        opened.prepend(folder);
    }
    EXPECT_EQ(recentPaths("menuRecentCards"), QStringList(opened.mid(0, 8)));

    recent("menuRecentCards").actions().at(3)->trigger();
    opened.move(3, 0);
    EXPECT_EQ(program.card.name(), opened.front());
    EXPECT_EQ(recentPaths("menuRecentCards"), QStringList(opened.mid(0, 8)));
    EXPECT_EQ(program.storedSetting("RecentCard1"), opened.front());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("VELIX ") + opened.front());

    // A card that is out of its reader stays in the list, for it may come back.
    ASSERT_TRUE(QDir(opened.at(1)).removeRecursively());
    recent("menuRecentCards").actions().at(1)->trigger();
    EXPECT_TRUE(notice().contains(opened.at(1)));
    EXPECT_EQ(program.storedSetting("LastPath"), opened.front());
    EXPECT_EQ(recentPaths("menuRecentCards").size(), 8);
}

TEST_F(DialogMainOpeningTest, ListsProjectsOfTheUserAndDropsDeletedOnes)
{
    ASSERT_TRUE(program.installProfile());
    start();
    for (const char* name : {"one.xml", "two.xml"}) {
        ASSERT_TRUE(writeFile(path(name), kProject));
        program.dialogs.file = path(name);
        action(eActionOpenProject).trigger();
    }
    program.dialogs.file = path("three.xml");
    action(eActionSaveProjectAs).trigger();
    action(eActionNewProject).trigger(); // the run's own file is not listed
    QAction& save = action(eActionSaveProject);
    EXPECT_FALSE(save.isEnabled());
    EXPECT_FALSE(save.toolTip().contains(QStringLiteral("Ctrl"))); // but the reason
    select(1, 0);
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(save.isEnabled());
    EXPECT_TRUE(readFile(program.data("CurrentProject.xml")).contains("Oil Temp"));
    EXPECT_EQ(recentPaths("menuRecentProjects"),
              QStringList({path("three.xml"), path("two.xml"), path("one.xml")}));

    ASSERT_TRUE(QFile::remove(path("two.xml")));
    EXPECT_EQ(recentPaths("menuRecentProjects"), QStringList({path("three.xml"), path("one.xml")}));
    recent("menuRecentProjects").actions().at(1)->trigger();
    EXPECT_EQ(program.setting("LastProjectPath"), path("one.xml"));
    EXPECT_EQ(program.selection(), QStringLiteral("Lane A/Oil Temp"));
}

TEST_F(DialogMainOpeningTest, AChosenProfileAndItsVariantComeBackInTheNextRun)
{
    ASSERT_TRUE(program.installProfile());
    ProfileBuilder own;
    own.variant("Solo").variant("Twin");
    own.device("Own").parameter(kOilId, QStringLiteral("Oil"), "FLOAT");
    ASSERT_TRUE(own.write(path("own.xml")));
    start();
    select(1, 0);
    find<DialogPreferences>().slotProfilePath(QDir::current().relativeFilePath(path("own.xml")));
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItemCount(), 1);
    EXPECT_EQ(program.profile.currentVariant(), QString());
    chooseIn("selectorVariant", "Twin");
    window->close();
    window.reset();

    start();
    EXPECT_EQ(program.profile.data().devices.front().name, QStringLiteral("Own"));
    EXPECT_EQ(program.profile.currentVariant(), QStringLiteral("Twin"));
    EXPECT_EQ(find<QwtComboBox>("selectorVariant").currentText(), QStringLiteral("Twin"));
    // What only the other profile knows is still selected there.
    EXPECT_TRUE(readFile(program.data("CurrentProject.xml")).contains("Lane A/Oil Temp"));

    // A chosen file that is broken later on is reported.
    ASSERT_TRUE(writeFile(path("own.xml"), "<Other/>"));
    window.reset();
    start();
    EXPECT_TRUE(notice().contains(path("own.xml")));
}
