#include "gui/card/DialogCard.h"
#include "gui/profile/DialogProfile.h"
#include "tests/gui/MainWindowFixture.h"
#include "tests/support/CapturedDiagnostics.h"
#include "views/events/DialogDataLimit.h"
#include "views/window/DialogData.h"

#include <QMenuBar>
#include <QProgressBar>
#include <QToolBar>

using namespace VELIX;
using namespace VELIX::Test;

TEST_F(DialogMainTest, OpensTheLastCardAndProjectAfterItIsShown)
{
    ASSERT_TRUE(writeFile(program.data("CurrentProject.xml"),
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
    program.settings.setString("LastPath", "/gone");
    start();
    EXPECT_TRUE(notice().contains(QStringLiteral("/gone")));
    EXPECT_FALSE(action(eActionExportCsv).isEnabled());
    EXPECT_FALSE(action(eActionExportCsv).toolTip().isEmpty());
    EXPECT_FALSE(find<QwtComboBox>("selectorVariant").isEnabled());
    EXPECT_TRUE(program.dialogs.takeAsked().isEmpty());
}

TEST_F(DialogMainTest, LoadsACycleAndThenAFlightOfIt)
{
    startWithCard();
    select(1, 0);
    int mostShown = 0;
    QObject::connect(&find<QProgressBar>(), &QProgressBar::valueChanged,
                     [&mostShown](int percent) { mostShown = std::max(mostShown, percent % 100); });
    ASSERT_TRUE(loadCycle(0));
    EXPECT_GT(mostShown, 90) << "the bar followed the reading";
    EXPECT_EQ(loaded(), QStringLiteral("Cycle 1: 540 samples of 2 identifiers"));
    EXPECT_EQ(headings(), "Time | Oil Temp [C]");
    EXPECT_EQ(table().rowCount(), 270);
    EXPECT_TRUE(action(eActionExportCsv).isEnabled());
    EXPECT_FALSE(find<QProgressBar>().isVisible());

    ASSERT_TRUE(load(cycles().topLevelItem(0)->child(1), "Cycle 1, flight 2"));
    EXPECT_LT(table().rowCount(), 270);
    EXPECT_EQ(cycles().topLevelItem(0)->childCount(), 2);
}

TEST_F(DialogMainTest, SaysWhyALoadWasRefusedAndKeepsWhatIsLoaded)
{
    startWithCard();
    for (const char* before : {"", "Cycle 2: 180 samples of 2 identifiers"}) {
        program.card.setMemoryLimit(1000);
        cycles().setCurrentItem(cycles().topLevelItem(0));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !notice().isEmpty(); }, kLoadMs));
        EXPECT_EQ(loaded(), QLatin1String(before));
        EXPECT_EQ(action(eActionExportCsv).isEnabled(), !loaded().isEmpty());
        program.card.setMemoryLimit(0);
        cycles().setCurrentItem(cycles().topLevelItem(1));
        ASSERT_TRUE(QTest::qWaitFor([this] { return notice().isEmpty(); }, kLoadMs));
    }
}

TEST_F(DialogMainTest, SaysWhyAListOfEventsWasNotSaved)
{
    start();
    program.dialogs.file = program.home.filePath(QStringLiteral("none/list.csv"));
    find<DialogDataLimit>("viewLimit").saveCsv();
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Save List")));
    EXPECT_TRUE(notice().contains(program.dialogs.file));
}

TEST_F(DialogMainTest, AVariantCarriesTheSelectionOverAndRefillsTheViews)
{
    startWithCard();
    select(0, 0); // "Ground Speed"
    select(0, 1); // "Flaps", which only Alpha has
    ASSERT_TRUE(loadCycle(0));

    chooseIn("selectorVariant", "Beta");
    EXPECT_EQ(program.storedSetting("Profile"), QStringLiteral("Beta"));
    EXPECT_EQ(program.profile.currentVariant(), QStringLiteral("Beta"));
    EXPECT_EQ(headings(), "Time | Ground Speed");

    chooseIn("selectorVariant", "Alpha");
    EXPECT_EQ(program.selection(), QStringLiteral("Airframe/Ground Speed, Airframe/Flaps"));
}

TEST_F(DialogMainTest, OnlyClearForgetsWhatAnotherVariantHas)
{
    startWithCard();
    select(0, 0); // "Ground Speed"
    select(0, 1); // "Flaps", which only Alpha has
    const std::pair<const char*, const char*> rows[] = {{"buttonConfirm", "Airframe/Flaps"},
                                                        {"buttonClear", ""}};
    for (const auto& [button, left] : rows) {
        chooseIn("selectorVariant", "Beta");
        find<QTreeWidget>("treeParameters").topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        find<QPushButton>(button).click();
        chooseIn("selectorVariant", "Alpha");
        EXPECT_EQ(program.selection(), QLatin1String(left)) << button;
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
    EXPECT_EQ(find<QwtComboBox>("selectorUnit").currentText(), QStringLiteral("Metric"));
    chooseIn("selectorUnit", "Imperial");
    EXPECT_EQ(program.storedSetting("Unit"), QStringLiteral("1"));
    EXPECT_EQ(headings(), "Time | Oil Temp [F]");
    EXPECT_EQ(find<QTreeWidget>("treeParameters").topLevelItem(1)->child(0)->text(0),
              QStringLiteral("Oil Temp [F]"));
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

TEST_F(DialogMainTest, ActionsHaveTheKeysOfTheManual)
{
    start();
    const std::pair<int, const char*> rows[] = {{eActionNewProject, "Ctrl+N"},
                                                {eActionOpenProject, "Ctrl+O"},
                                                {eActionOpenCard, "Ctrl+C"},
                                                {eActionSaveProject, "Ctrl+S"},
                                                {eActionPrint, "Ctrl+P"},
                                                {eActionQuit, "Ctrl+Q"},
                                                {eActionHelp, "F1"}};
    for (const auto& [id, keys] : rows) {
        EXPECT_EQ(action(id).shortcut().toString(), QLatin1String(keys));
    }
}
