#include "views/graph/widget/GraphTexts.h"

#include "views/graph/model/GraphTicks.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace VELIX::GraphTexts {

QString fixed(double value, int decimals)
{
    const QString text = QString::asprintf("%.*f", decimals, value);
    const bool negativeZero = text.startsWith(QLatin1Char('-')) && text.toDouble() == 0.0;
    return negativeZero ? text.mid(1) : text;
}

namespace {

constexpr int kColumn = 8; ///< characters of a value in the legend

QString number(double value, int precision, int width)
{
    if (!std::isfinite(value)) {
        return QStringLiteral("---").rightJustified(width);
    }
    return QString::asprintf("%*.*f", width, precision, value);
}

bool valueAt(const GraphModel& model, unsigned int trace, double time, double& value)
{
    return model.getValue(trace, time, value) && std::isfinite(value);
}

} // namespace

QString values(const GraphModel::ParStruct& trace, double first, double second)
{
    return number(first, trace.precision, kColumn) + QLatin1Char(' ') +
           number(second, trace.precision, kColumn) + QStringLiteral(" [") + trace.unit +
           QLatin1Char(']');
}

QString legendValues(const GraphModel& model, unsigned int trace, bool markersOn)
{
    double first = std::nan("");
    double second = std::nan("");
    if (markersOn) {
        if (!valueAt(model, trace, model.marker1(), first)) {
            first = std::nan("");
        }
        if (!valueAt(model, trace, model.marker2(), second)) {
            second = std::nan("");
        }
    } else if (double low = 0.0, high = 0.0; model.getParameterRangeY(trace, low, high)) {
        first = low;
        second = high;
    }
    return values(model.parameter(trace), first, second);
}

QString legendHeader(bool markersOn)
{
    const QString first = markersOn ? QCoreApplication::translate("VELIX::GraphTexts", "Mark 1")
                                    : QCoreApplication::translate("VELIX::GraphTexts", "Min");
    const QString second = markersOn ? QCoreApplication::translate("VELIX::GraphTexts", "Mark 2")
                                     : QCoreApplication::translate("VELIX::GraphTexts", "Max");
    return first.rightJustified(kColumn) + QLatin1Char(' ') + second.rightJustified(kColumn);
}

QString readout(const GraphModel& model, unsigned int trace, double time)
{
    const QString& name = model.parameter(trace).name;
    double value = 0.0;
    if (!valueAt(model, trace, time, value)) {
        return name + QStringLiteral("   ---");
    }
    return name + QString::asprintf("   %f", value);
}

QString hover(const GraphModel& model, unsigned int trace, double time)
{
    double value = 0.0;
    if (!valueAt(model, trace, time, value)) {
        return QStringLiteral("---");
    }
    const GraphModel::ParStruct& parameter = model.parameter(trace);
    const QString text = fixed(value, parameter.precision);
    const bool hasUnit = !parameter.unit.isEmpty() && parameter.unit != QLatin1String("-");
    // A thin space belongs between a number and its unit.
    return hasUnit ? text + QChar(0x2009) + parameter.unit : text;
}

QString distance(double seconds)
{
    return QStringLiteral("dt = %1 s").arg(seconds);
}

QString timed(const QString& name, double time)
{
    return name + QString::asprintf("/%.2f", time);
}

QString cursorTime(double time, double secondsPerPixel)
{
    constexpr int kMost = 3;
    const double digits = std::ceil(-std::log10(std::max(secondsPerPixel, 1e-9)));
    return GraphTicks::timeLabel(std::max(time, 0.0),
                                 std::clamp(static_cast<int>(digits), 1, kMost));
}

QString hint(const GraphModel& model)
{
    if (model.nrActive() == 0) {
        return QCoreApplication::translate(
            "VELIX::GraphTexts",
            "No parameter selected. Choose parameters in the list on the left and confirm.");
    }
    if (model.hasShownSamples()) {
        return {};
    }
    bool shown = false;
    for (const unsigned int trace : model.displayOrder()) {
        shown = shown || model.isShown(trace);
    }
    if (!shown) {
        return QCoreApplication::translate(
            "VELIX::GraphTexts",
            "All parameters are hidden. Double-click a name in the legend to show it.");
    }
    return QCoreApplication::translate("VELIX::GraphTexts",
                                       "The selected parameters have no samples in this record.");
}

QString rangeHint(const GraphModel& model)
{
    double first = 0.0;
    double last = 0.0;
    if (!model.dataExtent(first, last) || (first <= model.xmax() && last >= model.xmin())) {
        return {};
    }
    return QCoreApplication::translate(
        "VELIX::GraphTexts",
        "The samples lie outside the visible range. \"Zoom 1:1\" shows all of them.");
}

} // namespace VELIX::GraphTexts
