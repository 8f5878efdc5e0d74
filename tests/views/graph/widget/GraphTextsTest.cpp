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

TEST(GraphTextsTest, AnEmptyGraphSaysWhy)
{
    GraphModel model;
    model.setMaxParameters(2);
    EXPECT_EQ(GraphTexts::hint(model),
              QStringLiteral("No parameter selected. Choose parameters in the list on the left and "
                             "confirm."));
    model.setActive(0, true);
    EXPECT_TRUE(GraphTexts::hint(model).contains(QStringLiteral("no samples")));
    model.setTime(1.0);
    model.putValue(0, 1.0, false);
    EXPECT_TRUE(GraphTexts::hint(model).isEmpty());
    model.setVisible(0, false);
    EXPECT_TRUE(GraphTexts::hint(model).contains(QStringLiteral("hidden")));
}

TEST(GraphTextsTest, ARangeBesideAllSamplesSaysSo)
{
    GraphModel model;
    model.setMaxParameters(1);
    model.setActive(0, true);
    EXPECT_TRUE(GraphTexts::rangeHint(model).isEmpty()) << "without samples another hint stands";
    for (const double time : {100.0, 200.0}) {
        model.setTime(time);
        model.putValue(0, 1.0, false);
    }
    const auto silentIn = [&](double xmin, double xmax) {
        model.setRange({xmin, xmax});
        model.calcFrame();
        return GraphTexts::rangeHint(model).isEmpty();
    };
    EXPECT_FALSE(silentIn(0.0, 60.0));
    EXPECT_TRUE(silentIn(0.0, 100.0)) << "the first sample stands at the edge";
    EXPECT_TRUE(silentIn(140.0, 160.0)) << "the line between two samples is to be seen";
    EXPECT_FALSE(silentIn(201.0, 260.0));
}

} // namespace
