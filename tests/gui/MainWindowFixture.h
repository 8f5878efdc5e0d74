#pragma once

#include "gui/DialogMain.h"
#include "gui/DialogStatusBar.h"
#include "gui/MainActions.h"
#include "gui/look/QwtComboBox.h"
#include "tests/gui/TestProgram.h"
#include "tests/support/ViewTexts.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace VELIX::Test {

constexpr int kLoadMs = 3000;

/// The main window of a program of its own.
class DialogMainTest : public ::testing::Test
{
protected:
    /// Starts the program, up to and with its deferred start-up.
    void start() { start(program.dialogs); }
    void start(DialogService& dialogs)
    {
        window = std::make_unique<DialogMain>(program.context, dialogs);
        QApplication::setActiveWindow(window.get());
        QTest::qWait(60);
    }
    void startWithCard()
    {
        ASSERT_TRUE(program.installProfile());
        ASSERT_TRUE(writeCard(program.cardFolder()));
        program.settings.setString("LastPath", program.cardFolder().toStdString());
        start();
    }
    template <typename T>
    T& find(const char* name = "")
    {
        return *window->findChild<T*>(QLatin1String(name));
    }
    QAction& action(int id) { return *find<MainActions>().action(id); }
    QTreeWidget& cycles() { return find<QTreeWidget>("treeCycles"); }
    QString loaded() { return find<DialogStatusBar>().loaded(); }
    QString notice() { return find<DialogStatusBar>().notice(); }
    /// Loads a cycle or flight by its line; true once the status bar names it.
    bool load(QTreeWidgetItem* line, const char* name)
    {
        cycles().setCurrentItem(line);
        return QTest::qWaitFor([&] { return loaded().startsWith(QLatin1String(name)); }, kLoadMs);
    }
    bool loadCycle(int index) { return load(cycles().topLevelItem(index), "Cycle"); }
    void select(int device, int parameter)
    {
        find<QTreeWidget>("treeParameters")
            .topLevelItem(device)
            ->child(parameter)
            ->setCheckState(0, Qt::Checked);
        find<QPushButton>("buttonConfirm").click();
    }
    void chooseIn(const char* selector, const char* text)
    {
        auto& box = find<QwtComboBox>(selector);
        const int index = box.findText(QLatin1String(text));
        ASSERT_GE(index, 0) << text;
        box.setCurrentIndex(index);
        emit box.activated(index); // as a click on the item does
    }
    /// The value table, among those of all views.
    QTableWidget& table() { return *find<QWidget>("viewTable").findChild<QTableWidget*>(); }
    std::string headings() { return headingsOf(table()); }

    TestProgram program;
    std::unique_ptr<DialogMain> window;
};

} // namespace VELIX::Test
