#include "platform/viewlib/ViewReader.h"

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewPlacement.h"
#include "platform/viewlib/ViewVariables.h"
#include "platform/viewlib/VistaView.h"

#include <QFile>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace Vista2D {
namespace {

/// "line element: message", one mistake a line, and the number of elements that are drawn.
std::string mistakes(const QByteArray& text)
{
    ViewVariables variables;
    ViewReader reader(variables);
    reader.read(text);
    std::string out;
    for (const ViewError& error : reader.errors()) {
        out += std::to_string(error.line) + " " + error.element + ": " + error.message + "\n";
    }
    return out + std::to_string(reader.model().elements.size());
}

TEST(ViewReader, MistakesAreReportedWithLineAndElementAndTheRestIsDrawn)
{
    const struct
    {
        const char* name;
        QByteArray text; ///< behind a first line with the view's size
        const char* result;
    } rows[] = {
        {"nothing wrong",
         "# a comment\n\n"
         "group at=10,10 if=\"UNIT = 1 and VARIANT != 2 or TEST >= 0.5\" {\n"
         "  gauge var=N at=0,0 radius=50 {\n scale from=0 to=10 step=5\n }\n"
         "}\nlabel at=1,2 text=\"a \\\"b\\\" {\"",
         "2"},
        {"unknown word", "dial at=1,1\nlabel at=1,1 text=a", "2 dial: unknown\n1"},
        {"what is in an unknown block is skipped",
         "dial {\n scale x=1 {\n }\n}\nline from=1,1 to=2,2", "2 dial: unknown\n1"},
        {"a scale outside of an instrument", "scale from=0 to=1", "2 scale: unknown\n0"},
        {"missing place", "label text=a", "2 label: \"at\" is missing\n0"},
        {"half a place", "label at=1 text=a", "2 label: \"at\" is no pair of numbers: \"1\"\n0"},
        {"not a number", "label at=nan,1 text=a",
         "2 label: \"at\" is no pair of numbers: \"nan,1\"\n0"},
        {"far away", "label at=1e9,1 text=a",
         "2 label: \"at\" must lie between -100000 and 100000\n0"},
        {"text of no size", "label at=1,1 size=0 text=a",
         "2 label: \"size\" must lie between 1 and 1000\n1"},
        {"unknown attribute", "label at=1,1 text=a colour=red",
         "2 label: attribute \"colour\" is unknown or given twice\n1"},
        {"unknown colour and choice", "label at=1,1 text=a color=sky align=up",
         "2 label: \"color\" is no colour: \"sky\"\n2 label: \"align\" knows no \"up\"\n1"},
        {"a value without name", "label at=1,1 text=a =b",
         "2 label: expected NAME=VALUE, found \"=b\"\n1"},
        {"quotation mark not closed", "label at=1,1 text=\"a", // reported, and the text is missing
         "2 label: expected NAME=VALUE, found \"text=\"a\"\n2 label: \"text\" is missing\n0"},
        {"a dial without range", "gauge var=N at=1,1 radius=9\nbar var=N at=1,1 size=9,9 {\n}",
         "2 gauge: needs a scale with \"from\" and \"to\"\n"
         "3 bar: needs a scale with \"from\" and \"to\"\n2"},
        {"a range of no length", "value var=N at=1,1 {\n scale from=5 to=5\n}",
         "3 scale: needs a \"from\" and another \"to\"\n1"},
        {"ticks without end", "value var=N at=1,1 {\n scale from=0 to=1e9 step=1\n}",
         "3 scale: \"step\" makes more than 200 ticks\n1"},
        {"no variable", "value at=1,1", "2 value: \"var\" is missing\n1"},
        {"unknown scales", "value var=N at=1,1 scales=X", "2 value: \"scales\" knows no \"X\"\n1"},
        {"a scale, or scales, of a lamp",
         "scales name=X {\n}\nlamp at=1,1 size=9,9 scales=X {\n scale from=0 to=1\n}",
         "4 lamp: attribute \"scales\" is unknown or given twice\n5 scale: unknown in a lamp\n1"},
        {"a band before its scale", "bar var=N at=1,1 size=9,9 {\n band from=0 to=1 color=limit\n}",
         "3 band: no scale before it\n2 bar: needs a scale with \"from\" and \"to\"\n1"},
        {"a condition cut short", "label at=1,1 text=a if=\"UNIT =\"",
         "2 label: \"if\" expected NAME = NUMBER in \"UNIT =\"\n1"},
        {"a condition without word between", "label at=1,1 text=a if=\"A = 1 B = 2\"",
         "2 label: \"if\" expected \"and\" or \"or\" in \"A = 1 B = 2\"\n1"},
        {"a block not closed", "group {\nlabel at=1,1 text=a",
         "2 group: its block is never closed\n1"},
        {"a block too many", "}\nlabel at=1,1 text=a", "2 : \"}\" without a block to close\n1"},
        {"nested beyond reason",
         QByteArray("group {\n").repeated(60) + QByteArray("}\n").repeated(60),
         "34 group: nested more than 32 deep\n0"},
        {"a size that no screen has", "view size=1e300,5",
         "2 view: \"size\" must lie between 1 and 10000\n0"},
        {"a line without end", QByteArray(5000, 'x'), "2 : longer than 4096 characters\n0"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(mistakes("view size=100,100\n" + row.text), row.result) << row.name;
    }
}

TEST(ViewReader, HostileFilesEndInFewErrors)
{
    EXPECT_EQ(mistakes(""), "0 view: no size is given\n0");
    EXPECT_EQ(mistakes("label at=1,1 text=a"), "0 view: no size is given\n0");
    EXPECT_EQ(mistakes(QByteArray(ViewReader::kLargestFile + 1, '\n')),
              "0 : larger than 1048576 bytes\n0");
    const std::string many =
        mistakes("view size=9,9\n" + QByteArray("line from=1,1 to=2,2\n").repeated(6000));
    EXPECT_EQ(many, "5002 line: more than 5000 elements\n5000");

    // Few lines that many elements take over.
    const QByteArray scale = "scale from=0 to=1 step=1 unit=" + QByteArray(300, 'x') + "\n";
    const QByteArray named =
        "view size=9,9\nscales name=A {\n" + scale +
        QByteArray("band from=0 to=1 color=limit\nmark at=0 color=limit\n").repeated(99) + "}\n";
    const std::string scales = mistakes(named + QByteArray("value var=N at=1,1 scales=A\n"));
    EXPECT_EQ(scales.substr(0, scales.find('\n')),
              "3 scale: \"unit\" is longer than 200 characters");
    EXPECT_NE(scales.find("132 band: more than 64 of them at a scale\n"
                          "133 mark: more than 64 of them at a scale\n"),
              std::string::npos);
    const std::string crowded = mistakes(
        "view size=9,9\nscales name=A {\nscale from=0 to=200 step=1\n}\n" +
        QByteArray("bar var=N at=1,1 size=9,9 scales=A\n").repeated(99) + "line from=1,1 to=2,2");
    EXPECT_EQ(crowded, "55 bar: more than 10000 ticks, bands, marks and texts in the view\n51");

    ViewVariables variables;
    ViewReader taken(variables);
    taken.read("view size=9,9\nscales name=A {\nscale from=0 to=1\n}\n"
               "value var=N at=1,1 scales=A\nvalue var=N at=1,1 scales=A {\n"
               "band from=0 to=1 color=limit\n}");
    const auto scaleOf = [&](std::size_t i) {
        return bindingOf(taken.model().elements.at(i))->scales.front();
    };
    const auto named0 = scaleOf(0);
    EXPECT_EQ(named0.use_count(), 3); // the name, the element and here
    EXPECT_TRUE(named0->bands.empty());
    EXPECT_EQ(scaleOf(1)->bands.size(), 1U);

    ViewReader reader(variables);
    reader.read(QByteArray("?\n").repeated(100000));
    EXPECT_EQ(reader.errors().back().message, "further mistakes are not listed");
    EXPECT_LE(reader.errors().size(), 101U);
}

TEST(ViewReader, TheExampleOfTheDocumentIsRight)
{
    QFile document(QStringLiteral(VIEW_FILE_DOCUMENT));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    QByteArray example;
    while (!document.readLine().startsWith("## A worked example")) {
        ASSERT_FALSE(document.atEnd());
    }
    for (QByteArray line = document.readLine(); !line.startsWith('#'); line = document.readLine()) {
        ASSERT_FALSE(document.atEnd());
        example += line.startsWith("    ") ? line : QByteArray();
    }
    ViewVariables variables;
    ViewReader reader(variables);
    reader.read(example);
    for (const ViewError& error : reader.errors()) {
        ADD_FAILURE() << error.line << " " << error.element << ": " << error.message;
    }
    // What its explanation says: two scales, the second without bands, and a shifted lamp.
    const std::vector<ViewElement>& elements = reader.model().elements;
    ASSERT_EQ(elements.size(), 4U);
    const ViewScales& scales = bindingOf(elements[0])->scales;
    ASSERT_EQ(scales.size(), 2U);
    EXPECT_EQ(scales[0]->step, 20.0);
    EXPECT_EQ(scales[0]->bands.size(), 3U);
    EXPECT_TRUE(scales[1]->bands.empty());
    EXPECT_EQ(std::get<ViewLamp>(elements[3].shape).box.topLeft(), QPointF(200.0, 68.0));
}

TEST(ViewReader, ConditionsChooseScaleAndUnit)
{
    ViewVariables variables;
    ViewReader reader(variables);
    reader.read(
        "view size=9,9\n"
        "scales name=T {\n scale if=\"UNIT = 0 and VARIANT >= 2\" from=0 to=9 unit=a\n"
        " scale if=\"UNIT=1 or VARIANT = 7\" from=0 to=9 unit=b\n scale from=0 to=9 unit=c\n}\n"
        "value var=OIL at=1,1 scales=T");
    ASSERT_TRUE(reader.errors().empty());
    const auto& value = std::get<ViewValue>(reader.model().elements[0].shape);
    const struct
    {
        double unit;
        double variant;
        const char* result;
    } rows[] = {{NAN, NAN, "c"}, {0, 1, "c"}, {0, 2, "a"}, {1, 2, "b"}, {1, 0, "b"}, {2, 7, "b"}};
    for (const auto& row : rows) {
        variables.set(variables.slot("UNIT"), row.unit);
        variables.set(variables.slot("VARIANT"), row.variant);
        EXPECT_EQ(value.binding.scaleOf(reader.model().results(variables))->unit.toStdString(),
                  row.result)
            << row.unit << " " << row.variant;
    }
}

TEST(VistaView, KnowsTheVariablesThatItsDescriptionUses)
{
    VistaView view;
    view.setVar("OTHER", 1.0);
    view.loadText("view size=9,5\nvalue var=OIL at=1,1\nlabel at=1,1 text=a if=\"UNIT = 1\"");
    EXPECT_TRUE(view.knows("OIL") && view.knows("OIL_STATE") && view.knows("UNIT"));
    EXPECT_FALSE(view.knows("OTHER") || view.knows("OI") || view.knows(""));
    EXPECT_FALSE(view.load("/no/such/file.v"));
    EXPECT_EQ(view.width(), 9.0); // as before
    view.loadText("view size=9,5");
    EXPECT_FALSE(view.knows("OIL"));
}

TEST(ViewGeometry, NumbersBecomePositionsAndTexts)
{
    ViewScale scale;
    scale.from = 200.0;
    scale.to = 1100.0;
    ViewGauge gauge; // -135 to 135 degrees
    EXPECT_DOUBLE_EQ(angleOf(gauge, scale, 650.0), 0.0);
    EXPECT_DOUBLE_EQ(angleOf(gauge, scale, 1e9), 135.0);
    EXPECT_DOUBLE_EQ(angleOf(gauge, scale, -1e9), -135.0);
    EXPECT_TRUE(std::isnan(angleOf(gauge, scale, NAN)));
    const QPointF right = onCircle({10.0, 10.0}, 5.0, 90.0);
    EXPECT_NEAR(right.x(), 15.0, 1e-9);
    EXPECT_NEAR(right.y(), 10.0, 1e-9);

    scale.from = -10.0;
    scale.to = 10.0;
    scale.step = 10.0;
    scale.minor = 2;
    std::string ticks;
    for (const ViewTick& tick : ticksOf(scale)) {
        ticks += (tick.isLong ? "[" : "(") + tickText(scale, tick.at).toStdString() + " ";
    }
    EXPECT_EQ(ticks, "[-10 (-5 [0 (5 [10 ");

    scale.decimals = 1;
    const std::pair<double, const char*> texts[] = {
        {-0.04, "0.0"}, {12.25, "12.3"}, {NAN, "- -"}, {HUGE_VAL, "- -"}, {1e300, "- -"}};
    for (const auto& [value, text] : texts) {
        EXPECT_EQ(numberText(scale, value).toStdString(), text);
    }
    scale.round = 10.0;
    EXPECT_EQ(numberText(scale, 5187.0).toStdString(), "5190.0");
}

TEST(ViewPlacement, FollowsTheMatricesOfOpenGl)
{
    // A projection to pixels of a viewport of 200 x 100 at 10, 20, y running downwards; and a view
    // moved by 50, 30 and enlarged by 2.
    const double projection[16] = {2.0 / 200, 0, 0,  0, 0,  -2.0 / 100, 0, 0,
                                   0,         0, -1, 0, -1, 1,          0, 1};
    const double modelView[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1, 0, 50, 30, 0, 1};
    const int viewport[4] = {10, 20, 200, 100};
    const ViewPlacement placement = ViewPlacement::of(modelView, projection, viewport);
    EXPECT_TRUE(placement.isUpright());
    EXPECT_NEAR(placement.scale(), 2.0, 1e-9);
    EXPECT_EQ(placement.surface, QSize(210, 120));
    EXPECT_EQ(placement.toPixels.map(QPointF(0.0, 0.0)), QPointF(60.0, 30.0));
    EXPECT_EQ(placement.toPixels.map(QPointF(10.0, 5.0)), QPointF(80.0, 40.0));

    const double turned[16] = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    EXPECT_FALSE(ViewPlacement::of(turned, projection, viewport).isUpright());
}

} // namespace
} // namespace Vista2D
