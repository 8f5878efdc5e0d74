#pragma once

#include "gui/DialogMain.h"
#include "gui/DialogStatusBar.h"
#include "gui/MainActions.h"
#include "gui/QwtComboBox.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTableWidget>
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
    void start()
    {
        window = std::make_unique<DialogMain>(program.context, program.dialogs);
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
    bool loadCycle(int index)
    {
        cycles().setCurrentItem(cycles().topLevelItem(index));
        return QTest::qWaitFor([this] { return !loaded().isEmpty(); }, kLoadMs);
    }
    void select(int device, int parameter)
    {
        find<QTreeWidget>("treeParameters")
            .topLevelItem(device)
            ->child(parameter)
            ->setCheckState(0, Qt::Checked);
        find<QPushButton>("buttonConfirm").click();
    }
    void chooseVariant(const char* name)
    {
        auto& box = find<QwtComboBox>("selectorVariant");
        const int index = box.findText(QLatin1String(name));
        box.setCurrentIndex(index);
        emit box.activated(index);
    }
    /// The value table, among those of all views.
    QTableWidget& table() { return *find<QWidget>("viewTable").findChild<QTableWidget*>(); }
    QString headings()
    {
        QStringList texts;
        for (int i = 0; i < table().columnCount(); ++i) {
            texts.append(table().horizontalHeaderItem(i)->text());
        }
        return texts.join(QLatin1Char('|'));
    }

    TestProgram program;
    std::unique_ptr<DialogMain> window;
};

} // namespace VELIX::Test
