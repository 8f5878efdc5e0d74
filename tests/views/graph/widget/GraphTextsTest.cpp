#include "views/graph/widget/GraphTexts.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace VELIX;

namespace {

/// One active trace "N1" in "%" with the samples 10 and 20 at 100 s and 200 s.
GraphModel sampleModel()
{
    GraphModel model;
    model.setMaxParameters(2);
    model.setActive(0, true);
    model.setParameterName(0, "N1");
    model.setParameterUnit(0, "%");
    model.setTime(100.0);
    model.putValue(0, 10.0, false);
    model.setTime(200.0);
    model.putValue(0, 20.0, false);
    return model;
}

TEST(GraphTextsTest, LegendListsTwoValuesAndTheUnit)
{
    GraphModel model = sampleModel();
    EXPECT_EQ(GraphTexts::legendValues(model, 0, false), QStringLiteral("   10.00    20.00 [%]"));
    model.setPrecision(0, 0);
    EXPECT_EQ(GraphTexts::legendValues(model, 0, false), QStringLiteral("      10       20 [%]"));
    model.setMarker(150.0, 900.0);
    EXPECT_EQ(GraphTexts::legendValues(model, 0, true), QStringLiteral("      10      --- [%]"));
    EXPECT_EQ(GraphTexts::legendValues(model, 1, false), QStringLiteral("     ---      --- [-]"));
}

TEST(GraphTextsTest, ReadoutsSayWhereThereIsNoValue)
{
    GraphModel model = sampleModel();
    EXPECT_EQ(GraphTexts::readout(model, 0, 150.0), QStringLiteral("N1   10.000000"));
    EXPECT_EQ(GraphTexts::readout(model, 0, 50.0), QStringLiteral("N1   ---"));
    EXPECT_EQ(GraphTexts::hover(model, 0, 150.0),
              QStringLiteral("10.00") + QChar(0x2009) + QLatin1Char('%'));
    EXPECT_EQ(GraphTexts::hover(model, 0, 250.0), QStringLiteral("---"));
    EXPECT_EQ(GraphTexts::fixed(-0.04, 1), QStringLiteral("0.0"));
    EXPECT_EQ(GraphTexts::fixed(-0.06, 1), QStringLiteral("-0.1"));
    model.setTime(300.0);
    model.putValue(0, std::nan(""), false);
    model.setTime(310.0);
    model.putValue(0, 5.0, false);
    EXPECT_EQ(GraphTexts::readout(model, 0, 305.0), QStringLiteral("N1   ---")) << "in a gap";
}

TEST(GraphTextsTest, TimesAndDistances)
{
    EXPECT_EQ(GraphTexts::distance(12.5), QStringLiteral("dt = 12.5 s"));
    EXPECT_EQ(GraphTexts::timed(QStringLiteral("N1"), 3.14159), QStringLiteral("N1/3.14"));
    EXPECT_EQ(GraphTexts::cursorTime(3661.24, 2.0), QStringLiteral("1:01:01.2"));
    EXPECT_EQ(GraphTexts::cursorTime(3661.25, 0.0001), QStringLiteral("1:01:01.250"));
}

TEST(GraphTextsTest, WhatCannotBeSeenSaysWhy)
{
    GraphModel model;
    model.setMaxParameters(2);
    const auto expectHint = [&model](const char* part) {
        EXPECT_TRUE(GraphTexts::hint(model).contains(QLatin1String(part))) << part;
    };
    expectHint("No parameter selected.");
    model.setActive(0, true);
    expectHint("no samples");
    EXPECT_TRUE(GraphTexts::rangeHint(model).isEmpty()) << "there is another hint";
    for (const double time : {100.0, 200.0}) {
        model.setTime(time);
        model.putValue(0, 1.0, false);
    }
    EXPECT_TRUE(GraphTexts::hint(model).isEmpty());
    model.setVisible(0, false);
    expectHint("hidden");

    const struct
    {
        double xmin, xmax;
        bool visible;
    } ranges[] = {
        {0, 60, false}, {0, 100, true}, {140, 160, true}, {200, 260, true}, {201, 260, false}};
    for (const auto& range : ranges) { // at the edges, and on the line between two samples
        model.setRange({range.xmin, range.xmax});
        model.calcFrame();
        EXPECT_EQ(GraphTexts::rangeHint(model).isEmpty(), range.visible) << range.xmin;
    }
}

} // namespace
