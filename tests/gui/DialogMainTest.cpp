#include "core/Progress.h"
#include "export/DialogExportCsv.h"
#include "gui/DialogCard.h"
#include "gui/DialogProfile.h"
#include "tests/gui/MainWindowFixture.h"
#include "tests/support/CapturedDiagnostics.h"
#include "views/DialogData.h"
#include "views/DialogDataLimit.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QTimer>
#include <QToolBar>

using namespace VELIX;
using namespace VELIX::Test;

TEST_F(DialogMainTest, OpensTheLastCardAndProjectAfterItIsShown)
{
    ASSERT_TRUE(TestProgram::write(program.data("CurrentProject.xml"),
                                   "<VelixProject><Parameters><Parameter name='Lane A/Oil Temp'/>"
                                   "</Parameters></VelixProject>"));
    program.settings.setString("LastProjectPath", "/some/other.xml");
    startWithCard();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("VELIX ") + program.cardFolder());
    EXPECT_EQ(cycles().topLevelItemCount(), 2);
    EXPECT_EQ(program.selection(), QStringLiteral("Lane A/Oil Temp"));
    EXPECT_TRUE(QString(program.storedSetting("LastProjectPath"))
                    .endsWith(QStringLiteral("/CurrentProject.xml")));
    EXPECT_EQ(program.control.styles, QStringList(QStringLiteral(":/styles/style.VELIX.css")));
    EXPECT_EQ(window->size(), QSize(1000, 800));
}

TEST_F(DialogMainTest, ComesUpWithNothingAtAll)
{
    start();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("VELIX "));
    EXPECT_FALSE(action(eActionExportCsv).isEnabled());
    EXPECT_FALSE(action(eActionExportCsv).toolTip().isEmpty());
    EXPECT_FALSE(find<QwtComboBox>("selectorVariant").isEnabled());
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
}

TEST_F(DialogMainTest, SaysThatTheLastCardIsGone)
{
    program.settings.setString("LastPath",
                               program.home.filePath(QStringLiteral("gone")).toStdString());
    start();
    EXPECT_TRUE(notice().contains(QStringLiteral("gone")));
}

TEST_F(DialogMainTest, OpensACardAndRemembersIt)
{
    start();
    ASSERT_TRUE(writeCard(program.cardFolder()));
    action(eActionOpenCard).trigger(); // cancelled
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Open SD Card")));
    EXPECT_EQ(program.setting("LastPath"), QString());

    program.dialogs.file = program.cardFolder();
    action(eActionOpenCard).trigger();
    EXPECT_EQ(cycles().topLevelItemCount(), 2);
    EXPECT_EQ(program.storedSetting("LastPath"), program.cardFolder());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("VELIX ") + program.cardFolder());

    program.dialogs.file = program.home.filePath(QStringLiteral("none"));
    action(eActionOpenCard).trigger();
    EXPECT_EQ(program.storedSetting("LastPath"), program.cardFolder());
    EXPECT_EQ(cycles().topLevelItemCount(), 2);
    EXPECT_FALSE(notice().isEmpty());
}

TEST_F(DialogMainTest, LoadsACycleAndThenAFlightOfIt)
{
    startWithCard();
    select(1, 0);
    ASSERT_TRUE(loadCycle(0));
    EXPECT_EQ(loaded(), QStringLiteral("Cycle 1: 540 samples of 2 identifiers"));
    EXPECT_EQ(headings(), QStringLiteral("Time|Oil Temp [C]"));
    EXPECT_EQ(table().rowCount(), 270);
    EXPECT_TRUE(action(eActionExportCsv).isEnabled());
    EXPECT_FALSE(find<QProgressBar>().isVisible());

    cycles().setCurrentItem(cycles().topLevelItem(0)->child(1));
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return loaded().startsWith(QStringLiteral("Cycle 1, flight 2")); }, kLoadMs));
    EXPECT_LT(table().rowCount(), 270);
    EXPECT_EQ(cycles().topLevelItem(0)->childCount(), 2);
}

TEST_F(DialogMainTest, SaysWhyALoadWasRefusedAndGoesOn)
{
    startWithCard();
    program.card.setMemoryLimit(1000);
    cycles().setCurrentItem(cycles().topLevelItem(0));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !notice().isEmpty(); }, kLoadMs));
    EXPECT_EQ(loaded(), QString());
    program.card.setMemoryLimit(0);
    ASSERT_TRUE(loadCycle(1));
    EXPECT_EQ(notice(), QString());

    // A record that is loaded stays, and so does its name.
    const QString name = loaded();
    program.card.setMemoryLimit(1000);
    cycles().setCurrentItem(cycles().topLevelItem(0));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !notice().isEmpty(); }, kLoadMs));
    EXPECT_EQ(loaded(), name);
    EXPECT_TRUE(action(eActionExportCsv).isEnabled());
}

TEST_F(DialogMainTest, SaysWhyAListOfEventsWasNotSaved)
{
    start();
    program.dialogs.file = program.home.filePath(QStringLiteral("none/list.csv"));
    find<DialogDataLimit>("viewLimit").saveCsv();
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Save List")));
    EXPECT_TRUE(notice().contains(program.dialogs.file));
}

TEST_F(DialogMainTest, ShowsProgressThatOthersReport)
{
    start();
    Progress::report(30);
    EXPECT_EQ(find<QProgressBar>().value(), 30);
    window.reset();
    Progress::report(60); // nobody listens any more
}

TEST_F(DialogMainTest, AVariantCarriesTheSelectionOverAndRefillsTheViews)
{
    startWithCard();
    select(0, 0); // "Ground Speed"
    select(0, 1); // "Flaps", which only Alpha has
    ASSERT_TRUE(loadCycle(0));

    chooseVariant("Beta");
    EXPECT_EQ(program.storedSetting("Profile"), QStringLiteral("Beta"));
    EXPECT_EQ(program.profile.currentVariant(), QStringLiteral("Beta"));
    EXPECT_EQ(program.selection(), QStringLiteral("Airframe/Ground Speed"));
    EXPECT_EQ(headings(), QStringLiteral("Time|Ground Speed"));
    EXPECT_EQ(find<QwtComboBox>("selectorVariant").currentText(), QStringLiteral("Beta"));

    chooseVariant("Alpha");
    EXPECT_EQ(program.selection(), QStringLiteral("Airframe/Ground Speed, Airframe/Flaps"));
}

TEST_F(DialogMainTest, OnlyClearForgetsWhatAnotherVariantHas)
{
    startWithCard();
    select(0, 0); // "Ground Speed"
    select(0, 1); // "Flaps", which only Alpha has
    const struct
    {
        const char* button;
        const char* left;
    } rows[] = {{"buttonConfirm", "Airframe/Flaps"}, {"buttonClear", ""}};
    for (const auto& row : rows) {
        chooseVariant("Beta");
        find<QTreeWidget>("treeParameters").topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        find<QPushButton>(row.button).click();
        chooseVariant("Alpha");
        EXPECT_EQ(program.selection(), QLatin1String(row.left)) << row.button;
    }
}

TEST_F(DialogMainTest, AVariantThatTheProfileLacksCountsAsNone)
{
    program.settings.setString("Profile", "Gamma");
    startWithCard();
    EXPECT_EQ(program.profile.currentVariant(), QString());
    EXPECT_EQ(find<QwtComboBox>("selectorVariant").currentIndex(), -1);
}

TEST_F(DialogMainTest, AUnitSystemIsKeptAndShownEverywhere)
{
    startWithCard();
    select(1, 0);
    ASSERT_TRUE(loadCycle(0));
    auto& box = find<QwtComboBox>("selectorUnit");
    EXPECT_EQ(box.currentText(), QStringLiteral("Metric"));
    emit box.signalActivated(int{eUnitImperial});
    EXPECT_EQ(program.storedSetting("Unit"), QStringLiteral("1"));
    EXPECT_EQ(box.currentText(), QStringLiteral("Imperial"));
    EXPECT_EQ(headings(), QStringLiteral("Time|Oil Temp [F]"));
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItem(1)->child(0)->text(0),
              QStringLiteral("Oil Temp [F]"));
}

TEST_F(DialogMainTest, ClosingKeepsTheSelectionForTheNextRun)
{
    startWithCard();
    select(1, 0);
    EXPECT_FALSE(QFile::exists(program.data("CurrentProject.xml")));
    window->close();
    window.reset();
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());

    program.project.clear();
    start();
    EXPECT_EQ(program.selection(), QStringLiteral("Lane A/Oil Temp"));
}

TEST_F(DialogMainTest, QuitLeavesAnOpenedProjectFileAlone)
{
    startWithCard();
    program.dialogs.file = program.home.filePath(QStringLiteral("mine.xml"));
    action(eActionSaveProjectAs).trigger();
    const QByteArray mine = TestProgram::read(program.dialogs.file);
    ASSERT_FALSE(mine.isEmpty());
    select(1, 0);
    action(eActionQuit).trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(TestProgram::read(program.dialogs.file), mine);
    EXPECT_TRUE(TestProgram::read(program.data("CurrentProject.xml")).contains("Oil Temp"));
}

TEST_F(DialogMainTest, ANewProjectEmptiesTicksAndTable)
{
    startWithCard();
    select(1, 0);
    ASSERT_TRUE(loadCycle(0));
    program.dialogs.answer = DialogService::Answer::No;
    action(eActionNewProject).trigger();
    EXPECT_EQ(program.selection(), QString());
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItem(1)->child(0)->checkState(0),
              Qt::Unchecked);
    EXPECT_FALSE(headings().contains(QStringLiteral("Oil Temp")));
}

TEST_F(DialogMainTest, InstallsAProfileFromTheEmptyPanel)
{
    start();
    const QString file = program.home.filePath(QStringLiteral("new.xml"));
    ASSERT_TRUE(demoProfile().write(file));
    program.dialogs.file = file;
    emit find<DialogProfile>().signalInstallProfile();
    EXPECT_EQ(program.dialogs.takeAsked().last(),
              QStringLiteral("VELIX Info: New profile installed !"));
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItemCount(), 2);
    EXPECT_EQ(find<QwtComboBox>("selectorVariant").count(), 2);
}

TEST_F(DialogMainTest, ExportsWhatIsLoaded)
{
    startWithCard();
    ASSERT_TRUE(loadCycle(0));
    auto& wizard = find<DialogExportCsv>();
    const auto answer = [&](const QString& folder) {
        QTimer::singleShot(0, &wizard, [&wizard, folder] {
            wizard.findChild<QLineEdit*>(QStringLiteral("exportPath"))->setText(folder);
            wizard.next();
            wizard.accept();
        });
        action(eActionExportCsv).trigger();
    };
    const QString folder = program.home.filePath(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkpath(folder));
    answer(folder);
    const QString file = folder + QStringLiteral("/ExportVelix.csv");
    EXPECT_TRUE(TestProgram::read(file).startsWith("Time;Ground Speed;"));
    EXPECT_TRUE(notice().contains(file));
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());

    // The folder goes away between the wizard's check and the writing.
    QObject::connect(&wizard, &QDialog::accepted, &wizard,
                     [folder] { QDir(folder).removeRecursively(); });
    program.dialogs.agrees = true;
    answer(folder);
    EXPECT_EQ(program.dialogs.takeAsked().last(),
              QStringLiteral("VELIX Viewer Warning: Exporting CSV file failed !"));
}

TEST_F(DialogMainTest, FollowsAStyleFileThatIsBeingEdited)
{
    program.context.styleFile = QStringLiteral("my.css");
    start();
    CapturedDiagnostics lines;
    EXPECT_TRUE(QTest::qWaitFor([this] { return program.control.styles.size() == 3; }, 2000));
    EXPECT_EQ(program.control.styles.removeAll(QStringLiteral("my.css")), 3);
    EXPECT_EQ(lines.text(), "Slot Load Style <my.css>\nSlot Load Style <my.css>\n");
}

TEST_F(DialogMainTest, ADisplayOnlyWindowHasNoMenusAndPanels)
{
    program.context.emuOnly = true;
    startWithCard();
    EXPECT_EQ(window->findChild<QMenuBar*>(), nullptr);
    EXPECT_EQ(window->findChild<QToolBar*>({}, Qt::FindDirectChildrenOnly), nullptr);
    EXPECT_FALSE(find<DialogCard>().isVisible());
    EXPECT_FALSE(find<DialogProfile>().isVisible());
    EXPECT_TRUE(find<DialogData>().isVisible());
    EXPECT_EQ(cycles().topLevelItemCount(), 2); // the card is read nevertheless
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(DialogMainTest, LeavesMostOfTheWindowToTheData)
{
    startWithCard();
    QTest::qWait(1100);
    const int left = find<DialogCard>().width();
    EXPECT_GE(left, 260);
    EXPECT_LE(left, 330);
    EXPECT_GE(find<DialogData>().width(), 1000 - 345);
}

TEST_F(DialogMainTest, CtrlCOpensACardUnlessAListHasTheFocus)
{
    startWithCard();
    find<QTreeWidget>("treeParameters").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
    find<QPushButton>("buttonClear").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Open SD Card")));
}

TEST_F(DialogMainTest, ActionsCarryTheirNumbersTextsAndKeys)
{
    start();
    const struct
    {
        int id;
        const char* text;
        const char* keys;
        const char* tip;
    } rows[] = {{0, "&New Project", "Ctrl+N", "Create new Project"},
                {1, "&Open Project", "Ctrl+O", "Open Project"},
                {2, "&Open Data Folder", "Ctrl+C", "Open Data Folder"},
                {4, "&Save Project", "Ctrl+S", "Save Project"},
                {5, "&Save Project as", "", "Save Project as"},
                {6, "&Quit", "Ctrl+Q", "Quit Application"},
                {8, "About", "", "Show License Information"},
                {9, "Profile", "", "Show Profile Information"},
                {10, "Help", "F1", "Help Window"},
                {15, "Preferences", "", "Open Preferences Dialog"},
                {17, "Export Google KML File", "", "Export Google Earth KML File"},
                {18, "Export CSV File", "", "Export CSV File"}};
    for (const auto& row : rows) {
        const QAction& a = action(row.id);
        EXPECT_EQ(a.data().toInt(), row.id);
        EXPECT_EQ(a.text(), QLatin1String(row.text));
        EXPECT_EQ(a.shortcut().toString(), QLatin1String(row.keys));
        EXPECT_EQ(a.statusTip(), QLatin1String(row.tip));
        EXPECT_FALSE(a.icon().isNull()) << row.text;
    }
}
