#include "gui/look/Palette.h"

#include <QApplication>
#include <QPalette>
#include <gtest/gtest.h>

using VELIX::Palette;

namespace {

struct Pair
{
    const char* name;
    QColor Palette::*text;
    QColor Palette::*background;
    double least;
};

constexpr double Readable = 4.5;
constexpr double Visible = 3.0; // for signs and outlines, which are larger than letters

constexpr Pair Pairs[] = {
    {"text on a window", &Palette::text, &Palette::window, Readable},
    {"text on a surface", &Palette::text, &Palette::surface, Readable},
    {"text on a header", &Palette::text, &Palette::header, Readable},
    {"text under the mouse", &Palette::text, &Palette::hover, Readable},
    {"text on a pressed button", &Palette::text, &Palette::pressed, Readable},
    {"text on a checked button", &Palette::text, &Palette::accentSoft, Readable},
    {"text on a progress bar", &Palette::text, &Palette::progress, Readable},
    {"muted text on a window", &Palette::mutedText, &Palette::window, Readable},
    {"muted text on a surface", &Palette::mutedText, &Palette::surface, Readable},
    {"link on a window", &Palette::accent, &Palette::window, Readable},
    {"link on a surface", &Palette::accent, &Palette::surface, Readable},
    {"selected tree row", &Palette::accentText, &Palette::accent, Readable},
    {"selected table row", &Palette::tableSelectionText, &Palette::tableSelection, Readable},
    {"digits of a display", &Palette::lcdDigits, &Palette::lcdPanel, Readable},
    {"cursor on a window", &Palette::accent, &Palette::window, Visible},
    {"limit sign on a surface", &Palette::limit, &Palette::surface, Visible},
    {"healthy sign on a surface", &Palette::healthy, &Palette::surface, Visible},
};

TEST(Palette, KeepsEveryTextReadableInBothLooks)
{
    for (const Palette* palette : {&Palette::light(), &Palette::dark()}) {
        for (const Pair& pair : Pairs) {
            EXPECT_GE(Palette::contrast(palette->*pair.text, palette->*pair.background), pair.least)
                << pair.name << (palette == &Palette::dark() ? ", dark" : ", light");
        }
        EXPECT_LT(Palette::contrast(palette->disabledText, palette->window),
                  Palette::contrast(palette->mutedText, palette->window) / 1.5);
    }
}

TEST(Palette, MeasuresContrastAsWcagDoes)
{
    EXPECT_NEAR(Palette::contrast(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(Palette::contrast(Qt::white, Qt::black), 21.0, 1e-9);
    EXPECT_NEAR(Palette::contrast(Qt::red, Qt::red), 1.0, 1e-9);
    EXPECT_NEAR(Palette::contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Palette, FindsReadableTextForEveryBackgroundThatDataMayBring)
{
    for (int red = 0; red <= 255; red += 15) {
        for (int green = 0; green <= 255; green += 15) {
            for (int blue = 0; blue <= 255; blue += 15) {
                const QColor background(red, green, blue);
                ASSERT_GE(Palette::contrast(Palette::textOn(background), background), Readable)
                    << background.name().toStdString();
            }
        }
    }
    EXPECT_EQ(Palette::textOn(QColor(230, 230, 230)), Palette::light().text);
}

TEST(Palette, FollowsTheDesktop)
{
    QPalette desktop;
    desktop.setColor(QPalette::Window, QColor(40, 40, 40));
    desktop.setColor(QPalette::WindowText, QColor(220, 220, 220));
    EXPECT_EQ(Palette::lookOf(desktop), Palette::Look::Dark);
    desktop.setColor(QPalette::WindowText, Qt::black);
    EXPECT_EQ(Palette::lookOf(desktop), Palette::Look::Light);
}

TEST(Palette, AppliesOneLookToTheWholeProgram)
{
    const QPalette before = QApplication::palette();
    Palette::apply(*qApp, Palette::Look::Dark);
    EXPECT_EQ(&Palette::current(), &Palette::dark());
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), Palette::dark().surface);
    // A second run of the choice sees its own result and must come to the same look.
    Palette::apply(*qApp);
    EXPECT_EQ(&Palette::current(), &Palette::dark());
    Palette::apply(*qApp, Palette::Look::Light);
    EXPECT_EQ(&Palette::current(), &Palette::light());
    QApplication::setPalette(before);
}

} // namespace
