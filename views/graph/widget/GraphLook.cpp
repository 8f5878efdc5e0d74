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

QColor GraphLook::accentOn(const QColor& ground)
{
    const QColor& dark = Palette::dark().accent;
    const QColor& light = Palette::light().accent;
    return Palette::contrast(dark, ground) >= Palette::contrast(light, ground) ? dark : light;
}

QColor GraphLook::mix(const QColor& from, const QColor& to, double part)
{
    const auto between = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return {between(from.red(), to.red()), between(from.green(), to.green()),
            between(from.blue(), to.blue())};
}

QColor GraphLook::readable(const QColor& color, const QColor& ground)
{
    GraphLook on;
    on.back = ground;
    QColor end = on.plotText();
    constexpr int kSteps = 16;
    for (int step = 0; step < kSteps; ++step) {
        QColor tried = mix(color, end, static_cast<double>(step) / kSteps);
        if (Palette::contrast(tried, ground) >= kReadable) {
            return tried;
        }
    }
    return end;
}

} // namespace VELIX
