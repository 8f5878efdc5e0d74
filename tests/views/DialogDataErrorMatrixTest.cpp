#include "views/DialogDataErrorMatrix.h"

#include "card/CardContainer.h"
#include "gui/Resources.h"
#include "gui/WidgetHint.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/DialogData.h"
#include "views/WidgetErrorItem.h"
#include "views/WidgetErrorTime.h"
#include "views/WidgetFaultMatrix.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include <map>

namespace VELIX {
namespace {

using Test::ProfileBuilder;
using Test::RecordBuilder;

constexpr int kLaneA = 0x4F0;
constexpr int kLaneB = 0x5F0;

const QColor kGreen(220, 255, 220);
const QColor kFault(255, 150, 150);
const QColor kWarning(255, 200, 150);
const QColor kInfo(150, 150, 255);

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
    void show(const ProfileBuilder& builder, int width = 1000)
    {
        ASSERT_TRUE(builder.load(profile));
        view = std::make_unique<DialogDataErrorMatrix>(profile);
        view->resize(width, 600);
        view->show();
        QApplication::setActiveWindow(view.get());
        QApplication::processEvents();
    }
    void showLaneA(int width = 1000)
    {
        ProfileBuilder builder;
        builder.device("Lane A");
        addMatrix(builder, kLaneA, "Lane A");
        show(builder, width);
    }
    /// Words of lane A in a record from 0 to 100 s.
    void load(std::initializer_list<std::pair<double, std::uint32_t>> words)
    {
        RecordBuilder builder;
        builder.at(0).id(1).ulongValue(0).at(100).ulongValue(0).id(kLaneA);
        for (const auto& [time, word] : words) {
            builder.at(time).blongValue(word);
        }
        record = builder.data();
        view->updateRecord(record.get());
        QApplication::processEvents();
    }
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
    /// The ground of a cell on screen.
    QColor ground(int bit)
    {
        const QImage picture = cell(bit)->grab().toImage();
        return picture.pixelColor(picture.width() / 2, 0);
    }
    QString hint()
    {
        auto* widget = view->findChild<WidgetHint*>();
        return widget->isVisible() ? widget->hint() : QString();
    }

    Profile profile;
    std::shared_ptr<RecordData> record;
    std::unique_ptr<DialogDataErrorMatrix> view;
};

TEST_F(DialogDataErrorMatrixTest, CellsFollowTheCursor)
{
    showLaneA();
    load({{10, 0x80000001U}, {20, 0}, {30, 0x00000010U}, {40, 0xFFFFFFFFU}});
    const struct
    {
        double time;
        std::uint32_t lit;
    } rows[] = {{15, 0x80000001U}, {20, 0}, {35, 0x10U}, {40, 0}, {std::nan(""), 0}, {30, 0x10U}};
    for (const auto& row : rows) {
        view->setTime(row.time);
        EXPECT_EQ(litBits(*panel()), row.lit) << row.time;
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
    } rows[] = {{0, kInfo, kGreen},
                {4, kWarning, kGreen},
                {31, kFault, kGreen},
                {12, Qt::white, Qt::white},
                {5, Qt::white, Qt::white}};
    for (const auto& row : rows) {
        view->setTime(15);
        EXPECT_EQ(ground(row.bit), row.lit) << row.bit;
        view->setTime(25);
        EXPECT_EQ(ground(row.bit), row.unlit) << row.bit;
    }
    EXPECT_EQ(table()->horizontalHeaderItem(0)->text(), QStringLiteral("31"));
    EXPECT_EQ(table()->horizontalHeaderItem(31)->text(), QStringLiteral("0"));
    EXPECT_EQ(cell(4)->toolTip(), QStringLiteral("Oil Hot"));
    EXPECT_EQ(cell(5)->text(), QStringLiteral("para.name"));
    EXPECT_TRUE(cell(5)->toolTip().isEmpty());
}

TEST_F(DialogDataErrorMatrixTest, AssignedCellsNameTheirBitFromTheBottomUp)
{
    for (const int width : {400, 1400}) {
        showLaneA(width);
        load({{10, 0}, {20, 0}});
        const auto inkedRows = [this](int bit) {
            const QImage picture = cell(bit)->grab().toImage();
            int first = -1;
            int last = -1;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixelColor(x, y).lightness() < 100) {
                        first = first < 0 ? y : first;
                        last = y;
                    }
                }
            }
            return std::make_pair(first, last);
        };
        const int height = cell(4)->height();
        const auto [top, bottom] = inkedRows(4); // "Oil Hot"
        EXPECT_NEAR(bottom, height - 5, 2) << width;
        EXPECT_GT(bottom - top, 25) << width;
        EXPECT_LT(bottom - top, 60) << width;
        EXPECT_EQ(inkedRows(5).first, -1) << "the placeholder is never seen";
    }
}

TEST_F(DialogDataErrorMatrixTest, LongNamesStayInTheirCell)
{
    for (const int width : {20, 44}) {
        WidgetErrorItem item;
        item.setType(eErrorFault);
        item.setText(QStringLiteral("Exhaust gas temperature sensor of cylinder three shorted"));
        item.resize(width, 149);
        const QImage picture = item.grab().toImage();
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < width; ++x) {
                ASSERT_EQ(picture.pixelColor(x, y), kGreen) << x << " " << y;
            }
        }
    }
    WidgetErrorItem tiny;
    tiny.setType(eErrorInfo);
    tiny.setText(QStringLiteral("Name"));
    tiny.resize(3, 2);
    tiny.grab();
}

TEST_F(DialogDataErrorMatrixTest, ALitCellOfAnUnknownTypeIsNotFilled)
{
    WidgetErrorItem item;
    item.setType(4);
    item.resize(20, 100);
    EXPECT_EQ(item.grab().toImage().pixelColor(10, 0), kGreen);
    item.setErrorState(true);
    QImage under(20, 100, QImage::Format_RGB32);
    under.fill(Qt::magenta);
    item.render(&under, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(under.pixelColor(10, 0), QColor(Qt::magenta));
}

TEST_F(DialogDataErrorMatrixTest, TheBarHasABandForEachType)
{
    showLaneA();
    load({{20, 0x80000000U}, {40, 0x10U}, {60, 0x1U}, {80, 0x20U}, {90, 0}});
    view->setTime(50);
    const int width = bar()->width();
    ASSERT_EQ(bar()->height(), 30);
    const QColor white(Qt::white);
    const QColor grey(200, 200, 200);
    const struct
    {
        double at; ///< s of 100
        int y;
        QColor color;
    } rows[] = {{10, 5, white},  {30, 5, kFault},    {30, 15, white},     {30, 25, white},
                {45, 5, white},  {45, 15, kWarning}, {45, 25, white},     {70, 5, white},
                {70, 15, white}, {70, 25, kInfo},    {85, 5, white},      {85, 15, white},
                {85, 25, white}, {30, 10, grey},     {70, 20, grey},      {30, 0, grey},
                {30, 29, grey},  {50, 0, Qt::black}, {50, 29, Qt::black}, {0, 14, grey}};
    const QImage picture = bar()->grab().toImage();
    for (const auto& row : rows) {
        const int x = static_cast<int>(row.at / 100 * width);
        EXPECT_EQ(picture.pixelColor(x, row.y), row.color) << row.at << " " << row.y;
    }
    EXPECT_EQ(picture.pixelColor(width - 1, 14), grey);
    EXPECT_EQ(picture.pixelColor(width / 5 - 1, 5), white);
    EXPECT_EQ(picture.pixelColor(width / 5, 5), kFault);
}

TEST_F(DialogDataErrorMatrixTest, TheBarDrawsTheCursorInTheRecordOnly)
{
    showLaneA();
    load({{20, 0}, {90, 0}});
    const auto blackColumns = [this] {
        const QImage picture = bar()->grab().toImage();
        QList<int> columns;
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, 14) == QColor(Qt::black)) {
                columns.append(x);
            }
        }
        return columns;
    };
    const int width = bar()->width();
    view->setTime(25);
    EXPECT_EQ(blackColumns(), QList<int>{width / 4});
    view->setTime(75);
    EXPECT_EQ(blackColumns(), QList<int>{width * 3 / 4});
    for (const double outside : {-10.0, 1000.0, 1e300}) {
        view->setTime(outside);
        EXPECT_EQ(blackColumns(), QList<int>{}) << outside;
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
    ProfileBuilder builder;
    builder.device("Lane A");
    addMatrix(builder, kLaneA, "Lane A");
    addMatrix(builder, kLaneB, "Lane B");
    show(builder);
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
    EXPECT_TRUE(log.painted.count(cell(31)) == 1) << "the cells follow";
}

TEST_F(DialogDataErrorMatrixTest, TheBarTellsTimeAndNames)
{
    showLaneA();
    load({{20, 0xFFFFFFFFU}, {40, 0}, {60, 0x00000001U}, {90, 0}});
    const int width = bar()->width();
    const auto tip = [&](double part) {
        const int x = static_cast<int>(part * width);
        QHelpEvent help(QEvent::ToolTip, {x, 5}, bar()->mapToGlobal({x, 5}));
        QApplication::sendEvent(bar(), &help);
        return QToolTip::text();
    };
    const QString all = tip(0.3);
    EXPECT_TRUE(all.startsWith(QStringLiteral("00:00:29.9")) ||
                all.startsWith(QStringLiteral("00:00:30.0")))
        << all.toStdString();
    EXPECT_EQ(all.section(QLatin1Char('\n'), 1),
              QStringLiteral("Fault: Over\nspeed <b>\nWarning: Oil Hot\nInfo: Self Test\nSpare"));
    EXPECT_FALSE(Qt::mightBeRichText(all));
    EXPECT_TRUE(tip(0.7).endsWith(QStringLiteral("\nInfo: Self Test")));
    EXPECT_TRUE(tip(0.5).endsWith(QStringLiteral("\nNo error set")));

    record = RecordBuilder().at(1).id(7).ulongValue(0).at(2).ulongValue(0).data();
    view->updateRecord(record.get());
    EXPECT_EQ(tip(0.5), QStringLiteral("The record has no messages of this matrix."));
    view->setTime(1.5);
    EXPECT_EQ(litBits(*panel()), 0U);
}

TEST_F(DialogDataErrorMatrixTest, ColumnsShareAWideTableAndScrollInANarrowOne)
{
    QApplication* app = qApp;
    for (const QString& style :
         {QString(), QStringLiteral("QWidget { font-size: 18pt; } QAbstractItemView { border: 1px "
                                    "solid red; } QHeaderView::section { padding: 2px 6px; }")}) {
        app->setStyleSheet(style);
        showLaneA(1000);
        load({});
        const auto widthsAt = [this](int tableWidth) {
            view->resize(view->width() + tableWidth - table()->width(), 600);
            QApplication::processEvents();
            EXPECT_EQ(table()->width(), tableWidth);
            int least = 1000;
            int greatest = 0;
            for (int column = 0; column < 32; ++column) {
                least = std::min(least, table()->columnWidth(column));
                greatest = std::max(greatest, table()->columnWidth(column));
            }
            EXPECT_EQ(least, greatest);
            EXPECT_EQ(table()->horizontalHeader()->minimumSectionSize(), least);
            EXPECT_EQ(table()->verticalScrollBar()->maximum(), 0);
            EXPECT_EQ(cell(4)->mapTo(table(), {0, 0}).y(), table()->horizontalHeader()->height());
            EXPECT_EQ(cell(4)->visibleRegion().boundingRect().height(), cell(4)->height());
            EXPECT_EQ(table()->horizontalScrollBar()->isVisible(), tableWidth < 639);
            return least;
        };
        EXPECT_EQ(widthsAt(400), 20);
        EXPECT_EQ(widthsAt(638), 20);
        EXPECT_EQ(widthsAt(639), 20);
        EXPECT_EQ(widthsAt(670), 20);
        EXPECT_EQ(widthsAt(671), 21);
        EXPECT_EQ(widthsAt(1400), 43);
        EXPECT_EQ(widthsAt(300), 20);
        EXPECT_EQ(widthsAt(700), 21);
        EXPECT_EQ(table()->rowHeight(0), 150);
        EXPECT_GE(table()->viewport()->height(), 150);
        EXPECT_EQ(panel()->findChild<QLabel*>()->fontInfo().pixelSize(), 16);
        EXPECT_TRUE(panel()->findChild<QLabel*>()->font().bold());
        EXPECT_EQ(QFontInfo(table()->horizontalHeader()->font()).pixelSize(), 8);
    }
    app->setStyleSheet(QString());
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
    ProfileBuilder builder;
    builder.device("Lane B");
    addMatrix(builder, kLaneB, "Second in order");
    addMatrix(builder, kLaneA, "Shown only");
    builder.device("Lane A");
    addMatrix(builder, kLaneA, "Follows");
    show(builder);
    load({{10, 1}, {20, 1}, {30, 0}});
    view->setTime(15);
    ASSERT_EQ(panels().size(), 3);
    const char* titles[] = {"Second in order", "Shown only", "Follows"};
    const std::uint32_t lit[] = {0, 0, 1};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(panels()[i]->findChild<QLabel*>()->text().toStdString(), titles[i]);
        EXPECT_EQ(litBits(*panels()[i]), lit[i]) << titles[i];
    }
    EXPECT_TRUE(panels()[1]->findChild<WidgetErrorTime*>()->tipText(5).isEmpty());
}

TEST_F(DialogDataErrorMatrixTest, WhatIsMissingIsSaid)
{
    view = std::make_unique<DialogDataErrorMatrix>(profile);
    view->show();
    QSignalSpy install(view.get(), &DialogDataErrorMatrix::signalInstallProfile);
    EXPECT_TRUE(hint().contains(QStringLiteral("No parameter profile")));
    emit view->findChild<WidgetHint*>()->signalLink();
    EXPECT_EQ(install.count(), 1);

    ProfileBuilder plain;
    plain.device("Lane A").parameter(500, QStringLiteral("Oil"), "FLOAT");
    ASSERT_TRUE(plain.load(profile));
    view->loadProfile();
    EXPECT_TRUE(hint().contains(QStringLiteral("no fault matrix")));
    view->setTime(3);

    plain.matrix(kLaneA, "Without parameters");
    ASSERT_TRUE(plain.load(profile));
    view->loadProfile();
    EXPECT_TRUE(hint().contains(QStringLiteral("No record loaded")));
    load({{10, ~0U}, {20, 0}});
    EXPECT_EQ(hint(), QString());
    view->setTime(15);
    EXPECT_EQ(litBits(*panel()), ~0U); // white all the same
    EXPECT_EQ(ground(31), QColor(Qt::white));

    view->updateRecord(nullptr);
    EXPECT_EQ(litBits(*panel()), 0U);
    EXPECT_TRUE(hint().contains(QStringLiteral("No record loaded")));
    view->setVelixMode(1);
    EXPECT_EQ(hint(), QString()) << "messages may come";
}

TEST_F(DialogDataErrorMatrixTest, LiveCellsFollowTheNewestMessage)
{
    showLaneA();
    load({{10, 0x80000000U}, {20, 0x1U}});
    view->setTime(15);
    view->setVelixMode(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return litBits(*panel()) == 1U; }, 1000));
    view->setTime(15);
    EXPECT_EQ(litBits(*panel()), 0x80000000U); // until the next refresh
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
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    ASSERT_GE(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("31\t30\t")));
    EXPECT_EQ(lines[1].section(QLatin1Char('\t'), 0, 0), QStringLiteral("Over speed <b>: 1"));
    EXPECT_EQ(lines[1].section(QLatin1Char('\t'), 31, 31), QStringLiteral("Self Test: 0"));
}

TEST_F(DialogDataErrorMatrixTest, InTheDataWindowANewProfileMeetsTheOpenRecordAtItsCursor)
{
    initResources();
    const QTemporaryDir folder;
    CardContainer card(profile);
    DialogData window(profile, card, false);
    window.resize(900, 700);
    window.show();
    RecordBuilder words;
    words.at(10).id(kLaneA).blongValue(0x10U).at(20).blongValue(1).at(30).blongValue(0);
    ASSERT_TRUE(words.write(folder.filePath(QStringLiteral("1.CAN"))));
    ASSERT_TRUE(card.readContainer(folder.path()));
    window.releaseRecord();
    ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
    window.updateRecord();
    ASSERT_TRUE(QMetaObject::invokeMethod(&window, "slotLimitTime", Q_ARG(double, 25.0)));

    ProfileBuilder builder;
    builder.device("Lane A");
    addMatrix(builder, kLaneA, "Lane A");
    ASSERT_TRUE(builder.load(profile));
    window.loadProfile();
    const auto lit = [&window] { return litBits(*window.findChild<WidgetFaultMatrix*>()); };
    EXPECT_EQ(lit(), 1U);
    ASSERT_TRUE(QMetaObject::invokeMethod(&window, "slotWarningTime", Q_ARG(double, 15.0)));
    EXPECT_EQ(lit(), 0x10U);
    window.releaseRecord();
    EXPECT_EQ(lit(), 0U);
}

} // namespace
} // namespace VELIX
