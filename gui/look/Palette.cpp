#include "gui/look/Palette.h"

#include <QApplication>
#include <QPalette>
#include <cmath>

namespace VELIX {

namespace {

constexpr double ReadableContrast = 4.5;

const Palette* gCurrent = nullptr;

Palette makeLight()
{
    Palette p;
    p.look = Palette::Look::Light;
    p.window = QColor(0xf3, 0xf5, 0xf8);
    p.surface = QColor(0xff, 0xff, 0xff);
    p.header = QColor(0xe9, 0xed, 0xf2);
    p.line = QColor(0xd3, 0xd9, 0xe0);
    p.controlLine = QColor(0xb0, 0xba, 0xc6);
    p.text = QColor(0x1c, 0x27, 0x33);
    p.mutedText = QColor(0x5b, 0x68, 0x77);
    p.disabledText = QColor(0x9c, 0xa7, 0xb3);
    p.accent = QColor(0x17, 0x69, 0xd2);
    p.accentText = QColor(0xff, 0xff, 0xff);
    p.accentSoft = QColor(0xd9, 0xe6, 0xf8);
    p.hover = QColor(0xe4, 0xe9, 0xef);
    p.pressed = QColor(0xd3, 0xdb, 0xe4);
    p.handle = QColor(0x8b, 0x97, 0xa5);
    p.progress = QColor(0x9a, 0xc2, 0xf3);
    p.healthy = QColor(0x2e, 0x9e, 0x5b);
    p.warning = QColor(0xe3, 0x9a, 0x0f);
    p.limit = QColor(0xd4, 0x38, 0x2c);
    p.lcdPanel = QColor(0x10, 0x16, 0x1d);
    p.lcdDigits = QColor(0x8f, 0xe3, 0xb0);
    p.tableSelection = QColor(100, 100, 255);
    p.tableSelectionText = QColor(0, 0, 0);
    return p;
}

Palette makeDark()
{
    Palette p = makeLight(); // the displays and the table selection are common to both
    p.look = Palette::Look::Dark;
    p.window = QColor(0x1b, 0x20, 0x27);
    p.surface = QColor(0x23, 0x2a, 0x33);
    p.header = QColor(0x2a, 0x32, 0x3c);
    p.line = QColor(0x37, 0x41, 0x4d);
    p.controlLine = QColor(0x50, 0x5d, 0x6b);
    p.text = QColor(0xe6, 0xeb, 0xf1);
    p.mutedText = QColor(0x9a, 0xa7, 0xb5);
    p.disabledText = QColor(0x63, 0x6f, 0x7c);
    p.accent = QColor(0x5a, 0xa2, 0xff);
    p.accentText = QColor(0x10, 0x16, 0x1d);
    p.accentSoft = QColor(0x2a, 0x43, 0x63);
    p.hover = QColor(0x2f, 0x38, 0x43);
    p.pressed = QColor(0x3b, 0x46, 0x53);
    p.handle = QColor(0x6d, 0x7a, 0x88);
    p.progress = QColor(0x2f, 0x5c, 0x96);
    p.healthy = QColor(0x4c, 0xc3, 0x8a);
    p.warning = QColor(0xf2, 0xb8, 0x4b);
    p.limit = QColor(0xff, 0x6b, 0x5e);
    return p;
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

const Palette& Palette::light()
{
    static const Palette palette = makeLight();
    return palette;
}

const Palette& Palette::dark()
{
    static const Palette palette = makeDark();
    return palette;
}

const Palette& Palette::of(Look look)
{
    return look == Look::Dark ? dark() : light();
}

Palette::Look Palette::lookOf(const QPalette& desktop)
{
    const double text = luminance(desktop.color(QPalette::Active, QPalette::WindowText));
    const double background = luminance(desktop.color(QPalette::Active, QPalette::Window));
    return text > background ? Look::Dark : Look::Light;
}

const Palette& Palette::current()
{
    return gCurrent != nullptr ? *gCurrent : light();
}

void Palette::apply(QApplication& application)
{
    apply(application, lookOf(application.palette()));
}

void Palette::apply(QApplication& application, Look look)
{
    gCurrent = &of(look);
    // Without it widgets ask icons for images of ratio 1 and blow them up on fine displays.
    application.setAttribute(Qt::AA_UseHighDpiPixmaps);
    application.setPalette(gCurrent->toQPalette());
}

QPalette Palette::toQPalette() const
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, surface);
    palette.setColor(QPalette::AlternateBase, header);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, look == Look::Dark ? hover : header);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, limit);
    palette.setColor(QPalette::PlaceholderText, mutedText);
    palette.setColor(QPalette::ToolTipBase, surface);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, accentText);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::LinkVisited, accent);
    palette.setColor(QPalette::Light, surface.lighter(look == Look::Dark ? 150 : 100));
    palette.setColor(QPalette::Midlight, hover);
    palette.setColor(QPalette::Mid, line);
    palette.setColor(QPalette::Dark, controlLine);
    palette.setColor(QPalette::Shadow, look == Look::Dark ? lcdPanel : mutedText);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, line);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    return palette;
}

QPalette Palette::toDisplayPalette() const
{
    QPalette palette = toQPalette();
    palette.setColor(QPalette::Window, lcdPanel);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Light, QPalette::Dark}) {
        palette.setColor(role, lcdDigits);
    }
    return palette;
}

double Palette::contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor Palette::textOn(const QColor& background)
{
    const QColor& dark = light().text;
    if (contrast(dark, background) >= ReadableContrast) {
        return dark;
    }
    const QColor white(Qt::white);
    return contrast(white, background) >= ReadableContrast ? white : QColor(Qt::black);
}

} // namespace VELIX
