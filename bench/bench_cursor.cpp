// All views with an hour of data: what one move of the common cursor costs.

#include "bench/EngineHour.h"
#include "bench/WidgetBench.h"
#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/Property.h"
#include "gui/dialogs/StandardDialogs.h"
#include "views/events/DialogDataLimit.h"
#include "views/events/DialogDataWarning.h"
#include "views/fault/DialogDataErrorMatrix.h"
#include "views/graph/DialogDataGraph.h"
#include "views/map/DialogDataMap.h"
#include "views/panel/DialogDataView.h"
#include "views/statistic/DialogDataStatistic.h"
#include "views/table/DialogDataTable.h"
#include "views/window/CursorRoutes.h"

#include <QStackedWidget>

#include <random>
#include <vector>

namespace {

using namespace VELIX;

constexpr int kMatrices = 3;
constexpr int kBits = 32;
constexpr int kFirstMatrixId = 0x4F0;

/// Adds fault matrices in which every bit has a type.
void addMatrices(Profile& profile)
{
    for (int i = 0; i < kMatrices; ++i) {
        FaultMatrix matrix;
        matrix.id = kFirstMatrixId + i;
        for (int bit = 0; bit < kBits; ++bit) {
            matrix.bits[bit].name = QStringLiteral("Sensor %1").arg(bit);
            matrix.bits[bit].errorType = 1 + bit % 3;
        }
        profile.data().devices.front().errorMatrices.push_back(matrix);
    }
}

/// Adds their messages, ten a second, with random bits.
void addFaultWords(RecordData& record)
{
    std::mt19937 random(3);
    Test::RecordBuilder words;
    for (int row = 0; row < EngineHour::kRows; ++row) {
        words.at(row / 10.0);
        for (int i = 0; i < kMatrices; ++i) {
            words.id(static_cast<std::uint32_t>(kFirstMatrixId + i));
            words.blongValue(static_cast<std::uint32_t>(random()));
        }
    }
    for (const RecordEntry& entry : words.entries()) {
        record.append(entry);
    }
    record.finish(record.stopTime);
}

/// The pages of the data window, and the order in which it informs them of the cursor.
struct Pages
{
    EngineHour hour;
    CardContainer card{*hour.profile};
    DataHandler paths;
    Property settings;
    DialogService& dialogs = StandardDialogs::instance();
    QStackedWidget stack;
    CursorRoutes routes;

    Pages()
    {
        addMatrices(*hour.profile);
        addFaultWords(*hour.record);
        Profile& profile = *hour.profile;
        add(EView::Table, new DialogDataTable(profile));
        add(EView::Graph, new DialogDataGraph(profile, settings, dialogs));
        add(EView::FaultMatrix, new DialogDataErrorMatrix(profile));
        add(EView::Limit, new DialogDataLimit(profile, dialogs));
        add(EView::Warning, new DialogDataWarning(profile, dialogs));
        add(EView::Statistic, new DialogDataStatistic);
        add(EView::Instrument, new DialogDataView(profile, card, paths));
        add(EView::Map, new DialogDataMap(profile, card, settings, {}));
        stack.resize(1600, 900);
        stack.show();
        routes.updateRecord(hour.record.get());
    }

private:
    template <class View>
    void add(EView kind, View* view)
    {
        stack.addWidget(view);
        routes.setView(kind, *view);
    }
};

/// Moves the cursor to random times, with one page in front.
void moveCursor(benchmark::State& state, bool paint)
{
    static Pages* const pages = new Pages; // the application ends before what is static does
    pages->stack.setCurrentIndex(static_cast<int>(state.range(0)));
    QApplication::processEvents();
    std::mt19937 random(5);
    std::uniform_real_distribution<double> anywhere(0.0, EngineHour::kRows / 10.0);
    std::vector<double> times(4096);
    for (double& time : times) {
        time = anywhere(random);
    }
    std::size_t at = 0;
    for (auto _ : state) {
        pages->routes.setTime(ECursorSource::Replay, times[at++ % times.size()]);
        if (paint) {
            QApplication::processEvents();
        }
    }
}

/// Leaves out what is painted later: of the fault matrix only the time bars count.
void setTime(benchmark::State& state)
{
    moveCursor(state, false);
}

/// Paints everything: this is a tick of the replay.
void setTimeAndPaint(benchmark::State& state)
{
    moveCursor(state, true);
}

// The page in front: table, graph, fault matrix, limits.
BENCHMARK(setTime)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(setTimeAndPaint)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return runWidgetBenchmarks(argc, argv);
}
