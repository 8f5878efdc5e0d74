#pragma once

#include "platform/viewlib/ViewCondition.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <algorithm>
#include <memory>
#include <set>
#include <type_traits>
#include <variant>
#include <vector>

namespace Vista2D {

/// The conditions that must all hold, by their index in ViewModel::conditions.
using ConditionList = std::vector<int>;

/// Whether each condition of a view holds, by index. They are found once for a frame: what they
/// decide on is far more than they are, since groups and named scales hand theirs to many elements.
using ConditionResults = std::vector<bool>;

[[nodiscard]] inline bool hold(const ConditionList& list, const ConditionResults& results)
{
    return std::all_of(list.begin(), list.end(),
                       [&](int condition) { return results[static_cast<std::size_t>(condition)]; });
}

/// A coloured stretch of a scale.
struct ViewBand
{
    double from = 0.0;
    double to = 0.0;
    QColor color;
};

/// How the numbers of a variable become positions and texts, as long as its condition holds.
struct ViewScale
{
    static constexpr int kMostTicks = 200; ///< short ones included

    ConditionList conditions;
    double from = 0.0;
    double to = 0.0;     ///< equal to `from`: no range was given, so only texts can be shown
    double step = 0.0;   ///< between long ticks, which have a number; 0: no ticks
    int minor = 1;       ///< parts into which short ticks divide a step
    double divide = 1.0; ///< a tick's number is its value divided by this
    int tickDecimals = 0;
    double factor = 1.0; ///< shown = value * factor + offset; all else counts in what is shown
    double offset = 0.0;
    double round = 0.0; ///< texts show whole multiples of this; 0: every value
    int decimals = 0;   ///< of texts
    QString unit;
    std::vector<ViewBand> bands;
    std::vector<ViewBand> marks; ///< `from` is the position

    [[nodiscard]] bool hasRange() const { return from != to; }
};

/// Instruments share the scales that have a name, of which thousands may take the same.
using ViewScales = std::vector<std::shared_ptr<const ViewScale>>;

struct ViewText
{
    enum class Align { Left, Center, Right };

    QPointF at; ///< on the base line
    double size = 12.0;
    Align align = Align::Left;
    QColor color;
    bool bold = false;
    double width = 0.0; ///< longer texts are cut; 0: those that are longer than the panel
};

/// A text that is shown instead of the number, or lights a lamp.
struct ViewCase
{
    ConditionList conditions;
    QString text;
    QColor color;
};

/// A text of an instrument: its number, or the unit in force.
struct ViewCaption
{
    enum class Shows { Number, Unit };

    Shows shows = Shows::Number;
    ViewText style;
};

/// What instruments have in common: a variable, its scales of which the first that holds counts,
/// and texts.
struct ViewBinding
{
    int slot = -1; ///< -1: none
    int stateSlot = -1;
    int missingSlot = -1;
    ViewScales scales;
    std::vector<ViewCaption> captions;
    std::vector<ViewCase> cases;

    /// The scale in force; null if none is.
    [[nodiscard]] const ViewScale* scaleOf(const ConditionResults& results) const
    {
        const auto first = std::find_if(scales.begin(), scales.end(), [&](const auto& scale) {
            return hold(scale->conditions, results);
        });
        return first == scales.end() ? nullptr : first->get();
    }
};

/// Angles in degrees, clockwise from twelve o'clock.
struct ViewGauge
{
    ViewBinding binding;
    QPointF center;
    double radius = 0.0; ///< outer edge of the scale
    double start = -135.0;
    double end = 135.0;
    double width = 5.0; ///< of the scale's band
    double fill = 0.0; ///< width of an arc from the start to the value, inside of the band; 0: none
    double tick = 8.0; ///< length of a long tick
    double tickText = 11.0;  ///< size of the ticks' numbers; 0: none
    double needleFrom = 0.0; ///< radius; equal to needleTo: no needle
    double needleTo = 0.0;
    double needleWidth = 6.0;
    QColor color; ///< of the fill in the normal state
};

struct ViewBar
{
    enum class Direction { Right, Up };
    enum class Side { None, Before, After }; ///< before: above or left of the bar
    enum class Style { Fill, Pointer };

    ViewBinding binding;
    QRectF box;
    Direction direction = Direction::Right;
    Side ticks = Side::After;
    Style style = Style::Fill;
    double tickText = 9.0; ///< size of the ticks' numbers; 0: none
    QColor color;
};

struct ViewValue
{
    ViewBinding binding;
};

struct ViewLamp
{
    ViewBinding binding;
    QRectF box;
    double corner = 3.0;
    double textSize = 11.0;
    QString text; ///< while it is dark
};

struct ViewLabel
{
    ViewText style;
    QString text;
};

struct ViewRectangle
{
    QRectF box;
    double corner = 0.0;
    QColor fill; ///< invalid: none
    QColor line; ///< invalid: none
    double width = 1.0;
};

struct ViewLine
{
    QPointF from;
    QPointF to;
    QColor color;
    double width = 1.0;
};

/// Angles as for a gauge.
struct ViewArc
{
    QPointF center;
    double radius = 0.0;
    double start = 0.0;
    double end = 360.0;
    QColor color;
    double width = 1.0;
};

using ViewShape = std::variant<ViewGauge, ViewBar, ViewValue, ViewLamp, ViewLabel, ViewRectangle,
                               ViewLine, ViewArc>;

struct ViewElement
{
    ConditionList conditions;
    ViewShape shape;
};

/// The binding of an instrument; null for what is none.
template <class Element>
[[nodiscard]] auto* bindingOf(Element& element)
{
    using Binding = std::conditional_t<std::is_const_v<Element>, const ViewBinding, ViewBinding>;
    return std::visit(
        [](auto& shape) -> Binding* {
            if constexpr (requires { shape.binding; }) {
                return &shape.binding;
            } else {
                return nullptr;
            }
        },
        element.shape);
}

/// The colours that the look of all elements rests on; a description can set its own.
struct ViewColors
{
    QColor background = QColor(0x0b, 0x0f, 0x14);
    QColor text = QColor(0xe9, 0xee, 0xf3);
    QColor muted = QColor(0x93, 0xa1, 0xb0);
    QColor line = QColor(0x2a, 0x34, 0x3f);
    QColor track = QColor(0x1d, 0x25, 0x2e);
    QColor normal = QColor(0xf2, 0xf6, 0xfa);
    QColor healthy = QColor(0x3f, 0xb9, 0x7a);
    QColor warning = QColor(0xff, 0xb4, 0x2e);
    QColor limit = QColor(0xff, 0x4f, 0x44);
};

/// A view description, read.
struct ViewModel
{
    QSizeF size;
    ViewColors colors;
    std::vector<ViewCondition> conditions;
    std::vector<ViewElement> elements; ///< in the order of drawing
    std::set<int> slotsUsed;           ///< of the variables that something depends on

    /// Returns whether each condition holds with the values of the variables.
    [[nodiscard]] ConditionResults results(const ViewVariables& variables) const
    {
        ConditionResults all;
        all.reserve(conditions.size());
        for (const ViewCondition& condition : conditions) {
            all.push_back(condition.holds(variables));
        }
        return all;
    }
};

} // namespace Vista2D
