#include "views/fault/DialogDataErrorMatrix.h"

#include "card/RecordData.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/ViewTexts.h"
#include "tests/views/fault/FaultWords.h"
#include "views/fault/WidgetErrorItem.h"
#include "views/fault/WidgetErrorTime.h"
#include "views/fault/WidgetFaultMatrix.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <map>

namespace VELIX {
namespace {

using Test::hintOf;
using Test::ProfileBuilder;

constexpr int kLaneA = 0x4F0;
constexpr int kLaneB = 0x5F0;

const QColor kGreen(220, 255, 220);

/// A matrix with an info at bit 0, a warning at 4, a fault at 31 and an unknown type at 12.
void addMatrix(ProfileBuilder& builder, int id, const char* name)
{
    builder.matrix(id, name);
    const auto bit = [&](const char* index, const char* parameter, const char* type) {
        builder.parameter(id, QString::fromUtf8(parameter), "BLONG")
            .set("startBit", index)
            .set("endBit", index)
            .set("errorType", type);
    };
    bit("0", "Self Test", "Info");
    bit("4", "Oil Hot", "Warning");
    bit("12", "Spare", "Curious");
    bit("31", "Over\nspeed <b>", "Fault");
}

/// The bits that are lit, from 0 on.
std::uint32_t litBits(const WidgetFaultMatrix& panel)
{
    std::uint32_t word = 0;
    for (int bit = 0; bit < 32; ++bit) {
        word |= panel.item(bit)->errorState() ? 1U << bit : 0U;
    }
    return word;
}

struct DialogDataErrorMatrixTest : ::testing::Test
{
    /// The matrices of a profile in a window that shows all columns.
    void show(std::initializer_list<std::pair<int, const char*>> matrices, int width = 1000)
    {
        ProfileBuilder builder;
        builder.device("Lane A");
        for (const auto& [id, name] : matrices) {
            addMatrix(builder, id, name);
        }
        ASSERT_TRUE(builder.load(profile));
        view = std::make_unique<DialogDataErrorMatrix>(profile);
        view->resize(width, 600);
        view->show();
        QApplication::setActiveWindow(view.get());
        QApplication::processEvents();
    }
    void showLaneA(int width = 1000) { show({{kLaneA, "Lane A"}}, width); }
    /// Words of lane A in a record from 0 to 100 s.
    void load(std::initializer_list<std::pair<double, std::uint32_t>> words)
    {
        record = VELIX::Test::faultWords(kLaneA, words).data();
        view->updateRecord(record.get());
        QApplication::processEvents();
    }
    std::uint32_t litAt(double time)
    {
        view->setTime(time);
        return litBits(*panel());
    }
    /// From top to bottom.
    QList<WidgetFaultMatrix*> panels()
    {
        QList<WidgetFaultMatrix*> found = view->findChildren<WidgetFaultMatrix*>();
        std::sort(found.begin(), found.end(),
                  [](QWidget* a, QWidget* b) { return a->y() < b->y(); });
        return found;
    }
    WidgetFaultMatrix* panel() { return panels().value(0); }
    QTableWidget* table() { return panel()->findChild<QTableWidget*>(); }
    WidgetErrorTime* bar() { return panel()->findChild<WidgetErrorTime*>(); }
    WidgetErrorItem* cell(int bit)
    {
        return static_cast<WidgetErrorItem*>(table()->cellWidget(0, 31 - bit));
    }
    /// The background of a cell on screen.
    QColor background(int bit)
    {
        const QImage image = cell(bit)->grab().toImage();
        return image.pixelColor(image.width() / 2, 0);
    }
    /// First and last line of a cell with letters on it; -1 where there are none.
    static std::pair<int, int> inkedLines(QWidget& cell)
    {
        const QImage image = cell.grab().toImage();
        QImage blank(image.width(), 1, image.format());
        blank.fill(image.pixelColor(0, 0));
        std::pair<int, int> lines(-1, -1);
        for (int y = 0; y < image.height(); ++y) {
            if (image.copy(0, y, image.width(), 1) != blank) {
                lines = {lines.first < 0 ? y : lines.first, y};
            }
        }
        return lines;
    }

    Profile profile;
    std::shared_ptr<RecordData> record;
    std::unique_ptr<DialogDataErrorMatrix> view;
};

TEST_F(DialogDataErrorMatrixTest, CellsFollowTheCursor)
{
    showLaneA();
    load({{10, 0x80000001U}, {20, 0}, {30, 0x00000010U}, {40, 0xFFFFFFFFU}});
    const std::pair<double, std::uint32_t> rows[] = {
        {15, 0x80000001U}, {20, 0}, {35, 0x10U}, {40, 0}, {std::nan(""), 0}, {30, 0x10U}};
    for (const auto& [time, lit] : rows) {
        EXPECT_EQ(litAt(time), lit) << time;
    }
}

TEST_F(DialogDataErrorMatrixTest, CellsAreColouredByTypeAndState)
{
    showLaneA();
    load({{10, 0xFFFFFFFFU}, {20, 0}, {30, 0}});
    const struct
    {
        int bit;
        QColor lit;
        QColor unlit;
    } rows[] = {{0, {150, 150, 255}, kGreen},
                {4, {255, 200, 150}, kGreen},
                {31, {255, 150, 150}, kGreen},
                {12, Qt::white, Qt::white},
                {5, Qt::white, Qt::white}};
    for (const auto& row : rows) {
        view->setTime(15);
        EXPECT_EQ(background(row.bit), row.lit) << row.bit;
        view->setTime(25);
        EXPECT_EQ(background(row.bit), row.unlit) << row.bit;
    }
}

TEST_F(DialogDataErrorMatrixTest, AssignedCellsNameTheirBitFromTheBottomUp)
{
    showLaneA();
    const auto [top, bottom] = inkedLines(*cell(4)); // "Oil Hot"
    EXPECT_NEAR(bottom, cell(4)->height() - 5, 2);
    EXPECT_NEAR(bottom - top, 42, 17);
    EXPECT_EQ(inkedLines(*cell(5)).first, -1) << "the placeholder is never seen";
    EXPECT_EQ(cell(4)->toolTip(), QStringLiteral("Oil Hot"));
    EXPECT_TRUE(cell(5)->toolTip().isEmpty());

    for (const int width : {20, 44}) {
        WidgetErrorItem item;
        item.setType(eErrorFault);
        item.setText(QStringLiteral("Exhaust gas temperature sensor of cylinder three shorted"));
        item.resize(width, 149);
        EXPECT_GT(inkedLines(item).first, 1) << "a long name stays in its cell";
    }
}

/// Notes which widgets are painted, and where.
struct PaintLog : QObject
{
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted[watched] |= static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
    std::map<QObject*, QRegion> painted;
};

TEST_F(DialogDataErrorMatrixTest, OnlyTheBarsArePaintedAtOnce)
{
    show({{kLaneA, "Lane A"}, {kLaneB, "Lane B"}});
    load({{10, 0}, {20, 0xFFFFFFFFU}, {90, 0}});
    view->setTime(15);
    QApplication::processEvents();
    PaintLog log;
    for (QWidget* widget : view->findChildren<QWidget*>()) {
        widget->installEventFilter(&log);
    }
    view->setTime(25);
    EXPECT_EQ(log.painted.size(), 2U);
    const int width = bar()->width();
    EXPECT_EQ(log.painted[bar()].boundingRect(),
              QRect(QPoint(width * 15 / 100, 0), QPoint(width / 4, 29)));
    log.painted.clear();
    view->setTime(-1); // the cursor leaves the bar
    EXPECT_TRUE(log.painted[bar()].contains(QPoint(width / 4, 0)));
    QApplication::processEvents();
    EXPECT_EQ(log.painted.count(cell(31)), 1U) << "the cells follow";
}

TEST_F(DialogDataErrorMatrixTest, ColumnsShareAWideTableAndScrollInANarrowOne)
{
    const std::pair<int, int> columnWidths[] = {{638, 20}, {639, 20}, {670, 20}, {671, 21}};
    for (const QString& style :
         {QString(), QStringLiteral("QWidget { font-size: 18pt; } QAbstractItemView { border: 1px "
                                    "solid red; } QHeaderView::section { padding: 2px 6px; }")}) {
        qApp->setStyleSheet(style);
        showLaneA();
        for (const auto& [tableWidth, columnWidth] : columnWidths) {
            SCOPED_TRACE(tableWidth);
            load({});
            view->resize(view->width() + tableWidth - table()->width(), 600);
            QApplication::processEvents();
            EXPECT_EQ(table()->columnWidth(0), columnWidth);
            EXPECT_EQ(table()->horizontalHeader()->length(), 32 * columnWidth);
            EXPECT_EQ(table()->verticalScrollBar()->maximum(), 0);
            EXPECT_EQ(cell(4)->mapTo(table(), {0, 0}).y(), table()->horizontalHeader()->height());
            EXPECT_EQ(cell(4)->visibleRegion().boundingRect().height(), cell(4)->height());
            EXPECT_EQ(table()->horizontalScrollBar()->isVisible(), tableWidth < 639);
        }
        EXPECT_EQ(panel()->findChild<QLabel*>()->fontInfo().pixelSize(), 16);
        EXPECT_EQ(QFontInfo(table()->horizontalHeader()->font()).pixelSize(), 8);
    }
    qApp->setStyleSheet(QString());
}

TEST_F(DialogDataErrorMatrixTest, ANarrowTableBeginsWithTheBitsThatAreUsed)
{
    showLaneA(300); // bits 31, 4 and 0 have a type
    load({});
    const auto isInSight = [this](int bit) {
        return cell(bit)->visibleRegion().boundingRect().width() == cell(bit)->width();
    };
    EXPECT_TRUE(isInSight(4) && isInSight(0));
    table()->setFocus();
    EXPECT_TRUE(isInSight(0)) << "the focus moves nothing";
    table()->horizontalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
    view->resize(320, 600);
    QApplication::processEvents();
    EXPECT_TRUE(isInSight(31)) << "where the user scrolled to stays";
}

TEST_F(DialogDataErrorMatrixTest, OfMatricesWithOneIdentifierTheLastOneFollows)
{
    show({{kLaneB, "Second in order"}, {kLaneA, "Shown only"}, {kLaneA, "Follows"}});
    load({{10, 1}, {20, 1}, {30, 0}});
    view->setTime(15);
    std::string found;
    for (WidgetFaultMatrix* shown : panels()) {
        found += shown->findChild<QLabel*>()->text().toStdString() +
                 (litBits(*shown) != 0 ? ": lit\n" : "\n");
    }
    EXPECT_EQ(found, "Second in order\nShown only\nFollows: lit\n");
}

TEST_F(DialogDataErrorMatrixTest, WhatIsMissingIsSaid)
{
    view = std::make_unique<DialogDataErrorMatrix>(profile);
    view->show();
    const QSignalSpy install(view.get(), &DialogDataErrorMatrix::signalInstallProfile);
    const auto says = [this](const char* words) {
        return hintOf(*view).contains(QLatin1String(words));
    };
    EXPECT_TRUE(says("No parameter profile"));
    emit view->findChild<WidgetHint*>()->signalLink();
    EXPECT_EQ(install.count(), 1);

    ProfileBuilder plain;
    plain.device("Lane A").parameter(500, QStringLiteral("Oil"), "FLOAT");
    ASSERT_TRUE(plain.load(profile));
    view->loadProfile();
    EXPECT_TRUE(says("no fault matrix"));
    view->setTime(3);

    ASSERT_TRUE(plain.matrix(kLaneA, "Without parameters").load(profile));
    view->loadProfile();
    load({{10, ~0U}, {20, 0}});
    EXPECT_EQ(hintOf(*view), QString());
    EXPECT_EQ(litAt(15), ~0U); // white all the same
    EXPECT_EQ(background(31), QColor(Qt::white));

    view->updateRecord(nullptr);
    EXPECT_EQ(litBits(*panel()), 0U);
    EXPECT_TRUE(says("No record loaded"));
    view->setVelixMode(1);
    EXPECT_EQ(hintOf(*view), QString()) << "messages may come";
}

TEST_F(DialogDataErrorMatrixTest, LiveCellsFollowTheNewestMessage)
{
    showLaneA();
    load({{10, 0x80000000U}, {20, 0x1U}});
    view->setVelixMode(1);
    EXPECT_EQ(litAt(15), 0x80000000U) << "until the next refresh";
    EXPECT_TRUE(QTest::qWaitFor([this] { return litBits(*panel()) == 1U; }, 1000));
    view->setVelixMode(0);
    view->setTime(15);
    QTest::qWait(120);
    EXPECT_EQ(litBits(*panel()), 0x80000000U);
}

TEST_F(DialogDataErrorMatrixTest, CopyingNamesTheBitsWithTheirState)
{
    showLaneA();
    load({{10, 0x80000000U}, {20, 0}});
    view->setTime(15);
    table()->setFocus();
    table()->selectRow(0);
    QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
    const std::string copied = QApplication::clipboard()->text().toStdString();
    EXPECT_EQ(copied.substr(0, 6), "31\t30\t");
    EXPECT_NE(copied.find("\t0\nOver speed <b>: 1\t\t"), std::string::npos) << copied;
    EXPECT_EQ(copied.substr(copied.rfind('\t')), "\tSelf Test: 0");
}

} // namespace
} // namespace VELIX
