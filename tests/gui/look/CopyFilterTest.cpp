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
}

TEST(CopyText, PutsRowTitlesBeforeTheirRows)
{
    const auto model = samples();
    model->setVerticalHeaderLabels(
        {QStringLiteral("N1"), QStringLiteral("N2"), QStringLiteral("N3")});
    const QModelIndexList indexes{model->index(0, 1), model->index(2, 1)};
    EXPECT_EQ(CopyFilter::copyText(*model, indexes, true).toStdString(),
              "\tSpeed [rpm]\nN1\t900\nN3\t");
    EXPECT_EQ(CopyFilter::copyText(*model, indexes, false).toStdString(), "900\n");
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
        mAction =
            mWindow.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Open"));
        mAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+C")));
        QObject::connect(mAction, &QAction::triggered, [this] { ++mOpened; });
        mWindow.setCentralWidget(new QWidget);
        mLayout = new QVBoxLayout(mWindow.centralWidget());
        QApplication::clipboard()->setText(QStringLiteral("before"));
    }

    /// Presses Ctrl+C with the focus on a widget; gives what the clipboard then holds.
    QString press(QWidget* widget)
    {
        mWindow.show();
        QApplication::setActiveWindow(&mWindow);
        widget->setFocus();
        EXPECT_TRUE(QTest::qWaitFor([widget] { return widget->hasFocus(); }));
        QTest::keyClick(mWindow.windowHandle(), Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text();
    }

    QMainWindow mWindow;
    QVBoxLayout* mLayout = nullptr;
    QAction* mAction = nullptr;
    int mOpened = 0;
};

TEST_F(CopyKey, CopiesInATableInsteadOfOpeningACard)
{
    auto* table = new QTableWidget(2, 3);
    table->setHorizontalHeaderLabels(
        {QStringLiteral("Time"), QStringLiteral("Hidden"), QStringLiteral("Value")});
    table->setItem(1, 0, new QTableWidgetItem(QStringLiteral("00:00:01")));
    table->setItem(1, 1, new QTableWidgetItem(QStringLiteral("secret")));
    table->setItem(1, 2, new QTableWidgetItem(QStringLiteral("12.5")));
    table->setColumnHidden(1, true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    CopyFilter::install(table);
    mLayout->addWidget(table);

    EXPECT_EQ(press(table).toStdString(), "before"); // nothing is selected: still not the menu
    table->selectRow(1);
    EXPECT_EQ(press(table).toStdString(), "Time\tValue\n00:00:01\t12.5");
    EXPECT_EQ(mOpened, 0);
}

TEST_F(CopyKey, CopiesInATreeWithoutItsHiddenHeader)
{
    auto* tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    auto* item = new QTreeWidgetItem(tree, {QStringLiteral("Cycle 1")});
    CopyFilter::install(tree);
    mLayout->addWidget(tree);
    tree->setCurrentItem(item);
    EXPECT_EQ(press(tree).toStdString(), "Cycle 1");
    EXPECT_EQ(mOpened, 0);
}

TEST_F(CopyKey, CopiesTheSelectionOfAReadOnlyText)
{
    auto* text = new QTextEdit(QStringLiteral("some text"));
    text->setReadOnly(true);
    CopyFilter::install(text);
    mLayout->addWidget(text);
    text->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    EXPECT_EQ(press(text).toStdString(), "some");
    EXPECT_EQ(mOpened, 0);
}

TEST_F(CopyKey, LeavesTheMenusKeyToTheMenuElsewhere)
{
    auto* pane = new QWidget;
    pane->setFocusPolicy(Qt::StrongFocus);
    mLayout->addWidget(pane);
    EXPECT_EQ(press(pane).toStdString(), "before");
    EXPECT_EQ(mOpened, 1);
}

} // namespace
