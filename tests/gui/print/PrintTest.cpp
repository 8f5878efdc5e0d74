#include "core/Property.h"
#include "gui/look/Palette.h"
#include "gui/print/PrintController.h"
#include "gui/print/PrintHeader.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/TestFile.h"
#include "views/events/EventPrint.h"
#include "views/graph/widget/GraphLook.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSvgGenerator>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

using namespace VELIX;
using VELIX::Test::FakeDialogs;
using VELIX::Test::readFile;

namespace {

const QSizeF kRoom(500, 700);

std::vector<RecordLimit> makeEvents(int count, int length)
{
    std::vector<RecordLimit> events(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        events[static_cast<std::size_t>(i)].time = i;
        events[static_cast<std::size_t>(i)].text =
            QStringLiteral("[%1]").arg(i) + QStringLiteral(" word").repeated(length);
    }
    return events;
}

/// A page as text; SVG keeps what was written as it was written.
QString pageText(const PrintLayout& layout, int page)
{
    QBuffer bytes;
    QSvgGenerator paper;
    paper.setOutputDevice(&bytes);
    QPainter painter(&paper);
    layout.paintPage(painter, page);
    painter.end();
    return QString::fromUtf8(bytes.data());
}

TEST(Print, BreaksLongListsOverPagesWithoutLosingRows)
{
    const struct
    {
        const char* name;
        int events;
        int words; ///< in each of them
        int leastPages;
    } rows[] = {
        {"several pages", 200, 1, 4},
        {"wrapped texts", 60, 60, 4},
        {"a text longer than a page", 3, 5000, 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const std::vector<RecordLimit> events = makeEvents(row.events, row.words);
        std::vector<const RecordLimit*> pointers;
        pointers.reserve(events.size());
        for (const RecordLimit& event : events) {
            pointers.push_back(&event);
        }
        QSvgGenerator paper;
        const EventPrint print(pointers, {QStringLiteral("HeadT"), QStringLiteral("HeadE"), {}},
                               paper, kRoom);
        EXPECT_GE(print.pageCount(), row.leastPages);
        QString all;
        for (int page = 0; page < print.pageCount(); ++page) {
            const QString text = pageText(print, page);
            EXPECT_TRUE(text.contains(QStringLiteral("HeadT")));
            EXPECT_TRUE(text.contains(QStringLiteral("HeadE")));
            all += text;
        }
        for (int i = 0; i < row.events; ++i) {
            EXPECT_EQ(all.count(QStringLiteral("[%1]").arg(i)), 1) << i;
        }
    }
}

TEST(Print, SaysSoWhereThereAreNoEvents)
{
    QSvgGenerator paper;
    const EventPrint print({}, {{}, {}, QStringLiteral("Nothing")}, paper, kRoom);
    EXPECT_EQ(print.pageCount(), 1);
    EXPECT_TRUE(pageText(print, 0).contains(QStringLiteral("Nothing")));
}

TEST(Print, DarkensTracesThatWhitePaperWouldSwallow)
{
    GraphLook look;
    look.back = Qt::white;
    const std::array<float, 3> yellow = {1.0F, 1.0F, 0.0F};
    EXPECT_EQ(look.traceColor(yellow), QColor(Qt::yellow));
    look.onPaper = true;
    EXPECT_GE(Palette::contrast(look.traceColor(yellow), Qt::white), 4.5);
    EXPECT_EQ(look.traceColor({0.0F, 0.0F, 1.0F}), QColor(Qt::blue));
}

/// A view of as many pages as a test wants.
struct FakeView : Printable
{
    struct Layout : PrintLayout
    {
        explicit Layout(const FakeView& view) : mView(view) {}
        int pageCount() const override { return mView.pages; }
        void paintPage(QPainter&, int page) const override { mView.painted.append(page + 1); }
        const FakeView& mView;
    };
    QString printTitle() const override { return QStringLiteral("Limits/Warnings"); }
    QString unprintableReason() const override { return {}; }
    std::unique_ptr<PrintLayout> printLayout(QPaintDevice&, const QSizeF&) const override
    {
        return std::make_unique<Layout>(*this);
    }
    int pages = 3;
    mutable QList<int> painted;
};

class PrintControllerTest : public ::testing::Test
{
protected:
    PrintControllerTest()
    {
        settings.setConfigFile(folder.filePath(QStringLiteral("VELIX.ini")).toStdString());
        QObject::connect(&controller, &PrintController::signalNotice, &window,
                         [this](const QString& text) { notices.append(text); });
    }

    QTemporaryDir folder;
    Property settings;
    FakeDialogs dialogs;
    QWidget window;
    PrintController controller{settings, dialogs, &window};
    PrintHeader header{QStringLiteral("CARD"), QStringLiteral("Cycle 1"), {}};
    FakeView view;
    QStringList notices;
};

TEST_F(PrintControllerTest, WritesAllPagesWhetherSavedOrPrintedToAFile)
{
    for (const bool print : {false, true}) {
        dialogs.file = folder.filePath(print ? QStringLiteral("a.pdf") : QStringLiteral("b.pdf"));
        view.painted.clear();
        print ? controller.print(&view, header) : controller.savePdf(&view, header);
        EXPECT_EQ(view.painted, QList<int>({1, 2, 3}));
        EXPECT_TRUE(readFile(dialogs.file).startsWith("%PDF"));
        EXPECT_TRUE(readFile(dialogs.file).contains("/Count 3"));
        EXPECT_TRUE(notices.value(print ? 1 : 0).contains(dialogs.file));
    }
    dialogs.file = folder.filePath(QStringLiteral("missing/d.pdf"));
    controller.savePdf(&view, header);
    EXPECT_TRUE(notices.value(2).startsWith(QStringLiteral("The file ") + dialogs.file));
    EXPECT_FALSE(QFile::exists(dialogs.file));
}

TEST_F(PrintControllerTest, SuggestsAFileNameThatIsOneAndRemembersTheFolder)
{
    controller.print(&view, header); // cancelled, as the next
    EXPECT_EQ(dialogs.lastStart, QStringLiteral("CARD Limits-Warnings"));
    controller.savePdf(&view, header);
    EXPECT_TRUE(dialogs.lastStart.endsWith(QStringLiteral("/CARD Limits-Warnings.pdf")));
    EXPECT_TRUE(notices.isEmpty());
    EXPECT_TRUE(view.painted.isEmpty());

    dialogs.file = folder.filePath(QStringLiteral("c.pdf"));
    controller.savePdf(&view, header);
    controller.savePdf(&view, header);
    EXPECT_EQ(dialogs.lastStart, folder.filePath(QStringLiteral("CARD Limits-Warnings.pdf")));
}

} // namespace
