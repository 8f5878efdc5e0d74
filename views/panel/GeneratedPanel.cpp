#include "views/panel/GeneratedPanel.h"

#include "profile/DataType.h"
#include "profile/Profile.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

// View units.
constexpr int kMargin = 16;
constexpr int kFieldWidth = 216;
constexpr int kFieldHeight = 44;
constexpr int kGap = 16;
// More fields than this could not be read on any screen.
constexpr int kMostFields = 150;
// Characters, and labels of all fields together: far below what a view description may have.
constexpr int kLongestId = 100;
constexpr int kLongestName = 60;
constexpr int kLongestUnit = 12;
constexpr int kLongestLabel = 40;
constexpr int kMostLabels = 2000;
// Width divided by height: without the map, with the map beside the panel, and below it.
constexpr double kWideRoom = 1.4;
constexpr double kTallRoom = 0.55;
constexpr double kLowRoom = 2.5;

/// Returns a text as a view description writes it.
QString quoted(const QString& text)
{
    QString out = QStringLiteral("\"");
    for (const QChar c : text) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
            out += QLatin1Char('\\');
        }
        out += c.isPrint() ? c : QLatin1Char(' ');
    }
    return out + QLatin1Char('"');
}

QString quoted(const QString& text, int most)
{
    return quoted(text.size() <= most ? text : text.left(most - 1) + QChar(0x2026));
}

/// Whether a view description can name the variable.
bool canName(const QString& id)
{
    return id.size() <= kLongestId &&
           std::all_of(id.begin(), id.end(), [](QChar c) { return c.isPrint(); });
}

void writeScales(QTextStream& out, const ProfileParameter& p)
{
    for (const bool isImperial : {false, true}) {
        const NumberFormat format(p, isImperial ? eUnitImperial : eUnitMetric);
        out << "    scale if=\"UNIT " << (isImperial ? "=" : "!=")
            << " 1\" decimals=" << format.decimals(NumberFormat::EDecimals::Step)
            << " unit=" << quoted(format.unit(NumberFormat::EUnitOf::Number), kLongestUnit) << "\n";
    }
}

/// \param left labels that may still be written; a value without one is shown as a number
void writeCases(QTextStream& out, const ProfileEnum* labels, const QString& variable, int& left)
{
    static const QRegularExpression plainName(QStringLiteral("^\\w+$"));
    if (labels == nullptr || !plainName.match(variable).hasMatch()) {
        return; // a condition could not name it
    }
    for (const auto& [value, label] : labels->values) {
        if (left == 0) {
            return;
        }
        --left;
        out << "    case if=\"" << variable << " = " << value
            << "\" text=" << quoted(label.label, kLongestLabel) << "\n";
    }
}

/// Fields in columns, the first one filled first.
struct Grid
{
    int columns = 1;
    int rows = 1;

    /// Returns the grid nearest to the proportions of a window: width divided by height.
    static Grid of(int fields, double proportion)
    {
        Grid best;
        double least = 1e9;
        for (int columns = 1; columns <= fields; ++columns) {
            const int rows = (fields + columns - 1) / columns;
            const double ratio = double(columns * (kFieldWidth + kGap)) / (rows * kFieldHeight);
            const double distance = std::fabs(std::log(ratio / proportion));
            if (distance < least) {
                least = distance;
                best = {columns, rows};
            }
        }
        return best;
    }
    [[nodiscard]] QString size() const
    {
        return pair(2 * kMargin + columns * (kFieldWidth + kGap) - kGap,
                    2 * kMargin + rows * kFieldHeight);
    }
    [[nodiscard]] QString position(int field) const
    {
        return pair(kMargin + field / rows * (kFieldWidth + kGap),
                    kMargin + field % rows * kFieldHeight);
    }
    static QString pair(int a, int b) { return QStringLiteral("%1,%2").arg(a).arg(b); }
};

void writeField(QTextStream& out, const Profile& profile, const ViewParameter& field,
                int& labelsLeft)
{
    const ProfileParameter& p = field.parameter;
    const QString variable = QString::fromStdString(field.viewId);
    out << "label at=0,17 size=11 color=muted width=" << kFieldWidth
        << " text=" << quoted(p.fullName, kLongestName) << "\n"
        << "value var=" << quoted(variable)
        << " at=150,38 size=18 align=right bold=yes width=150 {\n"
        << "    unit at=156,38 size=11 width=60\n";
    writeScales(out, p);
    writeCases(out, profile.enumeration(p), variable, labelsLeft);
    out << "}\n"
        << "line from=0," << kFieldHeight << " to=" << kFieldWidth << "," << kFieldHeight << "\n";
}

void writeRest(QTextStream& out, int count)
{
    out << "label at=0,38 size=14 color=muted width=" << kFieldWidth << " text="
        << quoted(
               QCoreApplication::translate("VELIX::DialogDataView", "%n more ...", nullptr, count))
        << "\n";
}

std::string panelWithoutFields()
{
    QString text;
    QTextStream out(&text);
    out << "view size=480,160\n"
        << "label at=240,48 size=14 align=center width=460 text="
        << quoted(QCoreApplication::translate("VELIX::DialogDataView",
                                              "The profile binds no parameter to the panel."))
        << "\n"
        << "label at=200,92 size=11 align=right color=muted text=VARIANT\n"
        << "value var=VARIANT at=216,92 size=18 bold=yes\n"
        << "label at=200,124 size=11 align=right color=muted text=UNIT\n"
        << "value var=UNIT at=216,124 size=18 bold=yes\n";
    out.flush();
    return text.toStdString();
}

} // namespace

std::vector<ViewParameter> viewParameters(const Profile& profile)
{
    std::vector<ViewParameter> parameters;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            if (!p.viewId.isEmpty()) {
                const std::string view = p.viewId.toStdString();
                parameters.push_back({p, view, view + "_STATE", view + "_MISSING"});
            }
        }
    }
    return parameters;
}

std::string generatedPanel(const Profile& profile, const std::vector<ViewParameter>& parameters)
{
    if (parameters.empty()) {
        return panelWithoutFields();
    }
    std::vector<const ViewParameter*> fields;
    for (const ViewParameter& p : parameters) {
        if (fields.size() < kMostFields && canName(p.parameter.viewId)) {
            fields.push_back(&p);
        }
    }
    const int rest = static_cast<int>(parameters.size() - fields.size());
    const int cells = static_cast<int>(fields.size()) + (rest > 0 ? 1 : 0);
    const Grid wide = Grid::of(cells, kWideRoom);
    const Grid tall = Grid::of(cells, kTallRoom);
    const Grid low = Grid::of(cells, kLowRoom);
    int labelsLeft = kMostLabels;
    QString text;
    QTextStream out(&text);
    out << "view size=" << wide.size() << " tall=" << tall.size() << " low=" << low.size() << "\n";
    for (int i = 0; i < cells; ++i) {
        out << "group at=" << wide.position(i) << " tall=" << tall.position(i)
            << " low=" << low.position(i) << " {\n";
        if (const auto field = static_cast<std::size_t>(i); field < fields.size()) {
            writeField(out, profile, *fields[field], labelsLeft);
        } else {
            writeRest(out, rest);
        }
        out << "}\n";
    }
    out.flush();
    return text.toStdString();
}

} // namespace VELIX
