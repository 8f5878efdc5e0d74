#include "views/graph/widget/GraphLook.h"

#include "gui/look/Palette.h"

namespace VELIX {

namespace {

constexpr double kReadable = 4.5;

} // namespace

QColor GraphLook::plotText() const
{
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    return Palette::contrast(white, back) >= Palette::contrast(black, back) ? white : black;
}

QColor GraphLook::traceColor(const std::array<float, 3>& own) const
{
    const QColor color = QColor::fromRgbF(static_cast<double>(own[0]), static_cast<double>(own[1]),
                                          static_cast<double>(own[2]));
    return onPaper ? readable(color, back) : color;
}

QColor GraphLook::accentOn(const QColor& background)
{
    const QColor& dark = Palette::dark().accent;
    const QColor& light = Palette::light().accent;
    return Palette::contrast(dark, background) >= Palette::contrast(light, background) ? dark
                                                                                       : light;
}

QColor GraphLook::mix(const QColor& from, const QColor& to, double part)
{
    const auto between = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return {between(from.red(), to.red()), between(from.green(), to.green()),
            between(from.blue(), to.blue())};
}

QColor GraphLook::readable(const QColor& color, const QColor& background)
{
    GraphLook on;
    on.back = background;
    QColor end = on.plotText();
    constexpr int kSteps = 16;
    for (int step = 0; step < kSteps; ++step) {
        QColor tried = mix(color, end, static_cast<double>(step) / kSteps);
        if (Palette::contrast(tried, background) >= kReadable) {
            return tried;
        }
    }
    return end;
}

} // namespace VELIX
