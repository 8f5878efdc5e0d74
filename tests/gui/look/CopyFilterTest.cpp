#include "gui/look/CopyFilter.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using VELIX::CopyFilter;

namespace {

QStandardItem* cell(const char* text)
{
    return new QStandardItem(QString::fromUtf8(text));
}

/// Time and value of three samples.
std::unique_ptr<QStandardItemModel> samples()
{
    auto model = std::make_unique<QStandardItemModel>();
    model->setHorizontalHeaderLabels({QStringLiteral("Time"), QStringLiteral("Speed [rpm]")});
    model->appendRow({cell("00:00:01"), cell("900")});
    model->appendRow({cell("00:00:02"), cell("a\tb\r\nc")});
    model->appendRow({cell("00:00:03"), cell("")});
    return model;
}

struct CopyCase
{
    const char* name;
    std::vector<std::pair<int, int>> cells;
    bool headers;
    const char* text;
};

TEST(CopyText, GivesCellsAsTabSeparatedLines)
{
    const auto model = samples();
    const CopyCase cases[] = {
        {"nothing", {}, true, ""},
        {"one cell", {{0, 1}}, false, "900"},
        {"a row with headers", {{0, 0}, {0, 1}}, true, "Time\tSpeed [rpm]\n00:00:01\t900"},
        {"order of selection does not matter",
         {{2, 0}, {0, 1}, {0, 0}, {2, 1}},
         false,
         "00:00:01\t900\n00:00:03\t"},
        {"a gap is an empty cell", {{0, 1}, {1, 0}}, false, "\t900\n00:00:02\t"},
        {"separators inside a cell are blanks", {{1, 1}}, false, "a b  c"},
    };
    for (const CopyCase& c : cases) {
        QModelIndexList indexes;
        for (const auto& [row, column] : c.cells) {
            indexes.append(model->index(row, column));
        }
        EXPECT_EQ(CopyFilter::copyText(*model, indexes, c.headers).toStdString(), c.text) << c.name;
    }
    model->setVerticalHeaderLabels({QStringLiteral("N1"), QStringLiteral("N2")}); // row titles
    const QModelIndexList first{model->index(0, 1)};
    EXPECT_EQ(CopyFilter::copyText(*model, first, true).toStdString(), "\tSpeed [rpm]\nN1\t900");
    EXPECT_EQ(CopyFilter::copyText(*model, first, false).toStdString(), "900");
}

TEST(CopyText, IndentsTheRowsOfATreeBelowTheirParents)
{
    QStandardItemModel model;
    model.setHorizontalHeaderLabels({QStringLiteral("Cycle"), QStringLiteral("Length")});
    for (const char* name : {"Cycle 1", "Cycle 2"}) {
        QStandardItem* cycle = cell(name);
        cycle->appendRow({cell("Flight 1"), cell("0:20")});
        model.appendRow({cycle, cell("1:00")});
    }
    const QModelIndex first = model.index(0, 0);
    const QModelIndex flight = model.index(0, 0, first);
    const QModelIndex second = model.index(1, 0);
    EXPECT_EQ(CopyFilter::copyText(model, {second, flight, flight.siblingAtColumn(1), first}, true)
                  .toStdString(),
              "Cycle\tLength\nCycle 1\t\n  Flight 1\t0:20\nCycle 2\t");
    // The shallowest copied row starts at the margin.
    EXPECT_EQ(CopyFilter::copyText(model, {flight}, false).toStdString(), "Flight 1");
}

/// A window whose menu uses Ctrl+C, as the main window's does.
class CopyKey : public ::testing::Test
{
protected:
    CopyKey()
    {
        QAction* open =
            mWindow.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Open"));
        open->setShortcut(QKeySequence(QStringLiteral("Ctrl+C")));
        QObject::connect(open, &QAction::triggered, [this] { ++mOpened; });
        mWindow.setCentralWidget(new QWidget);
        mLayout = new QVBoxLayout(mWindow.centralWidget());
        QApplication::clipboard()->setText(QStringLiteral("before"));
    }

    /// Presses Ctrl+C with the focus on a widget; returns what is on the clipboard then.
    std::string press(QWidget& widget)
    {
        mWindow.show();
        QApplication::setActiveWindow(&mWindow);
        widget.show();
        widget.setFocus();
        EXPECT_TRUE(QTest::qWaitFor([&widget] { return widget.hasFocus(); }));
        QTest::keyClick(mWindow.windowHandle(), Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().toStdString();
    }

    QMainWindow mWindow;
    QVBoxLayout* mLayout = nullptr;
    int mOpened = 0;
};

TEST_F(CopyKey, CopiesInATableInsteadOfOpeningACard)
{
    QTableWidget table(2, 3);
    mLayout->addWidget(&table);
    table.setHorizontalHeaderLabels(
        {QStringLiteral("Time"), QStringLiteral("Hidden"), QStringLiteral("Value")});
    table.setColumnHidden(1, true);
    for (int column = 0; column < 3; ++column) {
        table.setItem(1, column, new QTableWidgetItem(QString::number(column)));
    }
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    CopyFilter::install(&table);
    EXPECT_EQ(press(table), "before"); // nothing is selected: still not the menu
    table.selectRow(1);
    EXPECT_EQ(press(table), "Time\tValue\n0\t2");
    EXPECT_EQ(mOpened, 0);
}

TEST_F(CopyKey, CopiesATreeWithoutItsHiddenHeaderAndTheSelectionOfAText)
{
    QTreeWidget tree;
    mLayout->addWidget(&tree);
    tree.setHeaderHidden(true);
    tree.setCurrentItem(new QTreeWidgetItem(&tree, {QStringLiteral("Cycle 1")}));
    CopyFilter::install(&tree);
    EXPECT_EQ(press(tree), "Cycle 1");

    QTextEdit text(QStringLiteral("some text"));
    mLayout->addWidget(&text);
    text.setReadOnly(true);
    CopyFilter::install(&text);
    text.moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    EXPECT_EQ(press(text), "some");
    EXPECT_EQ(mOpened, 0);
}

TEST_F(CopyKey, LeavesTheMenusKeyToTheMenuElsewhere)
{
    QWidget pane;
    mLayout->addWidget(&pane);
    pane.setFocusPolicy(Qt::StrongFocus);
    EXPECT_EQ(press(pane), "before");
    EXPECT_EQ(mOpened, 1);
}

} // namespace
