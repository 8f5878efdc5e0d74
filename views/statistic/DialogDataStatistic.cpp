#include "views/statistic/DialogDataStatistic.h"

#include "card/RecordData.h"
#include "gui/look/Palette.h"
#include "views/statistic/FlightText.h"
#include "views/statistic/TableTextEdit.h"
#include "views/statistic/TextPrint.h"

#include <QTextDocument>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kMargin = 16;

} // namespace

DialogDataStatistic::DialogDataStatistic(QWidget* parent)
    : QWidget(parent), mTextEdit(new TableTextEdit(this))
{
    mTextEdit->setAccessibleName(tr("Tow Statistic"));
    mTextEdit->document()->setDocumentMargin(kMargin);
    mTextEdit->document()->setDefaultStyleSheet(
        QStringLiteral("td, th { padding: 2px 12px 2px 0px; white-space: nowrap; } "
                       "p { color: %1; margin-bottom: 8px; }")
            .arg(Palette::current().mutedText.name()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTextEdit);
    updateRecord(nullptr);
}

void DialogDataStatistic::updateRecord(RecordData* record)
{
    mRecord = record;
    mText.clear();
    if (record != nullptr && record->flight.statistic.valid) {
        addStatistic();
    } else {
        addOverview();
    }
    mTextEdit->setHtml(mText);
}

void DialogDataStatistic::addLine(const QString& name, const QString& value)
{
    mText += QStringLiteral("<tr><td>%1  :  </td><td><b>%2</b></td></tr>").arg(name, value);
}

QString DialogDataStatistic::printTitle() const
{
    return tr("Tow Statistic");
}

QString DialogDataStatistic::unprintableReason() const
{
    const bool hasFigures =
        mRecord != nullptr && (mRecord->flight.statistic.valid || !mRecord->cycleFlights.empty());
    return hasFigures ? QString() : tr("No flight selected");
}

std::unique_ptr<PrintLayout> DialogDataStatistic::printLayout(QPaintDevice& device,
                                                              const QSizeF& room) const
{
    // The sentence of the overview about choosing a flight makes no sense on paper.
    const bool overview = mRecord != nullptr && !mRecord->flight.statistic.valid;
    return std::make_unique<TextPrint>(
        overview ? FlightText::flights(mRecord->cycleFlights) : mText, device, room);
}

void DialogDataStatistic::addStatistic()
{
    const RecordFlight& flight = mRecord->flight;
    const FlightStatistic& s = flight.statistic;
    const auto addNumber = [this](const QString& name, const QString& unit, double value) {
        addLine(name, unit.arg(value));
    };
    const QString litres = QStringLiteral("%1 l");
    const QString metres = QStringLiteral("%1 m");
    const QString rate = QStringLiteral("%1 m/s");

    mText = QStringLiteral("<table>");
    addLine(tr("Flight Time"), FlightText::timeOfDay(flight.landingTime - flight.takeoffTime));
    addNumber(tr("Total Fuel Lane A"), litres, s.fuelA);
    addNumber(tr("Total Fuel Lane B"), litres, s.fuelB);
    addNumber(tr("Total Fuel"), litres, s.fuel);
    addNumber(tr("Minimum Alt"), metres, s.minAlt);
    addNumber(tr("Maximum Alt"), metres, s.maxAlt);
    addNumber(tr("Total Climb"), metres, s.climb);
    addNumber(tr("Average Climb Rate"), rate, s.climbRate);
    addNumber(tr("Average Descend Rate"), rate, s.descendRate);
    addNumber(tr("Max Ground Speed"), QStringLiteral("%1 km/h"), s.maxSpeed);
    addLine(tr("Time / 100m"), FlightText::timeOfDay(s.timePer100));
    addNumber(tr("Fuel / 100m"), litres, s.fuelPer100);
    addNumber(tr("Take Off Distance"), metres, s.distance);
    addNumber(tr("Take Off Distance 15m"), metres, s.distance15);
    mText += QStringLiteral("</table>");
    const QString note = FlightText::unitNote(s);
    if (!note.isEmpty()) {
        mText += QStringLiteral("<p>%1</p>").arg(note);
    }
}

void DialogDataStatistic::addOverview()
{
    mText = QStringLiteral("<br><br><b>%1</b>").arg(tr("No flight selected"));
    const QString flights =
        mRecord == nullptr ? QString() : FlightText::flights(mRecord->cycleFlights);
    if (!flights.isEmpty()) {
        mText += QStringLiteral("<p>%1</p>")
                     .arg(tr("The flights of this cycle. Choose one in the list of cycles to see "
                             "all of its figures.")) +
                 flights;
    }
}

} // namespace VELIX
