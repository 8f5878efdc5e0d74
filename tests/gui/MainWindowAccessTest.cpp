// Whether every function of the main window can be reached and named without a mouse.

#include "gui/help/DialogHelp.h"
#include "gui/help/HelpBrowser.h"
#include "tests/gui/MainWindowFixture.h"
#include "views/map/WidgetMap.h"
#include "views/window/PageTabBar.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>
#include <QTranslator>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

/// Letters that more than one entry of a menu answers to.
QString doubledMnemonics(const QList<QAction*>& entries)
{
    QString seen;
    QString doubled;
    for (const QAction* action : entries) {
        const QString text = action->text().replace(QStringLiteral("&&"), QString());
        const int mark = text.indexOf(QLatin1Char('&'));
        if (mark >= 0) {
            const QChar letter = text.at(mark + 1).toUpper();
            (seen.contains(letter) ? doubled : seen) += letter;
        }
    }
    return doubled;
}

/// The toolkit makes these itself, with names or keys of its own.
bool isPartOfAnotherWidget(const QWidget& widget)
{
    return widget.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QTabBar*>(widget.parent()) != nullptr ||
           widget.parent()->inherits("QLineEdit") || widget.inherits("QTableCornerButton");
}

std::string nameOf(const QWidget& widget)
{
    return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString() +
           " " + widget.toolTip().toStdString();
}

} // namespace

TEST_F(DialogMainTest, EveryButtonHasANameAndCanBeReachedByKey)
{
    startWithCard();
    int buttons = 0;
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (isPartOfAnotherWidget(*button)) {
            continue;
        }
        ++buttons;
        EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty())
            << nameOf(*button);
        EXPECT_FALSE(button->text().isEmpty() && button->toolTip().isEmpty()) << nameOf(*button);
        EXPECT_FALSE(button->text().isEmpty() && button->icon().isNull()) << nameOf(*button);
        // The tool bar's actions are in the menus, too.
        const bool ofToolBar = qobject_cast<const QToolBar*>(button->parent()) != nullptr;
        EXPECT_TRUE(ofToolBar || (button->focusPolicy() & Qt::TabFocus)) << nameOf(*button);
    }
    EXPECT_GT(buttons, 20);
    for (const QAction* action : find<MainActions>().group()->actions()) {
        EXPECT_FALSE(action->icon().isNull()) << action->text().toStdString();
    }
}

TEST_F(DialogMainTest, EveryMenuAnswersToDifferentLetters)
{
    initResources();
    const struct
    {
        const char* language;
        QString doubledInFile; ///< by texts that are fixed
    } rows[] = {{"us", QStringLiteral("SO")}, {"de", QString()}};
    for (const auto& row : rows) {
        QTranslator texts;
        if (texts.load(QStringLiteral("velix_") + QLatin1String(row.language),
                       QStringLiteral(":/trl"))) {
            QCoreApplication::installTranslator(&texts);
        }
        start();
        const QList<QAction*> bar = window->menuBar()->actions();
        EXPECT_EQ(doubledMnemonics(bar), QString()) << row.language;
        EXPECT_EQ(doubledMnemonics(bar.at(0)->menu()->actions()), row.doubledInFile)
            << row.language;
        for (int i = 1; i < bar.size(); ++i) {
            EXPECT_EQ(doubledMnemonics(bar.at(i)->menu()->actions()), QString()) << row.language;
        }
        window.reset();
    }
}

TEST_F(DialogMainTest, HelpOpensAtWhatTheUserHasAtHand)
{
    startWithCard();
    auto& help = find<DialogHelp>();
    const auto topicAtKey = [&](QWidget& focused) {
        QApplication::setActiveWindow(window.get());
        focused.setFocus();
        QTest::keyClick(&focused, Qt::Key_F1);
        const QString page = help.findChild<HelpBrowser*>()->source().fileName();
        help.hide();
        return page.section(QLatin1Char('.'), 0, 0).toStdString();
    };
    auto& tabs = find<PageTabBar>("tabBar");
    tabs.setCurrentIndex(1);
    EXPECT_EQ(topicAtKey(tabs), "graph");
    EXPECT_EQ(topicAtKey(*window->findChild<WidgetMap*>()), "map");
    EXPECT_EQ(topicAtKey(cycles()), "cards");
    EXPECT_EQ(topicAtKey(find<QLineEdit>("searchParameters")), "parameters");
}
