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
    QTest::qWait(1000); // then most of the window is left to the data
    EXPECT_GE(find<DialogData>().width(), 1000 - 345);
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

TEST_F(DialogMainTest, SaysWhatFailedAndKeepsWhatIsLoaded)
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
    program.dialogs.file = program.home.filePath(QStringLiteral("none/list.csv"));
    find<DialogDataLimit>("viewLimit").saveCsv();
    EXPECT_TRUE(notice().contains(program.dialogs.file));
}

TEST_F(DialogMainTest, OnlyClearForgetsWhatAnotherVariantHas)
{
    program.settings.setString("Profile", "Gamma"); // the profile lacks it
    startWithCard();
    EXPECT_EQ(program.profile.currentVariant(), QString());
    int mostShown = 0;
    QObject::connect(&find<QProgressBar>(), &QProgressBar::valueChanged,
                     [&mostShown](int percent) { mostShown = std::max(mostShown, percent % 100); });
    ASSERT_TRUE(loadCycle(0));
    EXPECT_GT(mostShown, 90) << "the bar followed the reading";
    select(0, 0); // "Ground Speed"
    select(0, 1); // "Flaps", which only Alpha has
    chooseIn("selectorVariant", "Beta");
    EXPECT_EQ(headings(), "Time | Ground Speed");
    chooseIn("selectorVariant", "Alpha");
    EXPECT_EQ(program.selection(), QStringLiteral("Airframe/Ground Speed, Airframe/Flaps"));
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
    const int before = program.control.styles.size();
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.control.styles.size() > before; }, 5000));
    EXPECT_EQ(lines.text(), "Slot Load Style <my.css>\n");
    EXPECT_EQ(program.control.styles.removeAll(QStringLiteral("my.css")), before + 1);
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
