#include "views/panel/DialogDataView.h"

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "gui/look/Resources.h"
#include "platform/viewlib/VistaView.h"
#include "profile/Profile.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/ViewTexts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTest>

#include <array>
#include <cmath>
#include <memory>

namespace VELIX {
namespace {

using Test::CardFolder;
using Test::hintOf;
using Test::ProfileBuilder;
using Test::RecordBuilder;

constexpr int kOil = 500;

// The oil's value as the width of a bar of 100 units, its state as the bar's colour; below, a
// square whose colour says the unit system and one that says the variant.
constexpr const char* kView = R"(view size=100,50
colors normal=#ffffff warning=#ffff00 limit=#ff0000
bar var=OIL at=0,0 size=100,10 ticks=none {
    scale from=0 to=100
}
rectangle at=0,20 size=10,10 fill=#00ff00 if="UNIT = 1"
rectangle at=20,20 size=10,10 fill=#0000ff if="VARIANT = 7"
)";

TEST(ViewFit, KeepsProportionsAndTheMiddle)
{
    const auto fit = [](double width, double height, double viewWidth, double viewHeight) {
        const ViewFit fitted = ViewFit::of(width, height, viewWidth, viewHeight);
        return std::array{fitted.scale, fitted.offsetX, fitted.offsetY};
    };
    EXPECT_EQ(fit(1000, 300, 500, 500), (std::array{0.6, 350.0, 0.0}));
    EXPECT_EQ(fit(300, 1000, 500, 500), (std::array{0.6, 0.0, 350.0}));
    EXPECT_EQ(fit(1400, 1000, 700, 500), (std::array{2.0, 0.0, 0.0}));
    EXPECT_EQ(fit(0, 0, 700, 500), (std::array{0.0, 0.0, 0.0}));
    EXPECT_EQ(fit(1000, 300, 0, 0), (std::array{0.0, 0.0, 0.0}));
}

struct DialogDataViewTest : ::testing::Test
{
    void SetUp() override
    {
        initResources();
        const QDir home(folder.path());
        ASSERT_TRUE(home.mkpath(QStringLiteral("resources/views")) &&
                    home.mkdir(QStringLiteral("bin")));
        paths.init(nullptr, folder.path().toStdString() + "/bin");
        folder.add("resources/views/instruments.v", QByteArray(kView));
        loadProfile("OIL");
        card.add("1.CAN", RecordBuilder().id(kOil).floatValues(
                              {{1.0, 20}, {2.0, 60}, {3.0, NAN}, {4.0, 90}, {5.0, 30}}));
        ASSERT_TRUE(container.readContainer(card.path()));
        ASSERT_EQ(container.loadFiles({QStringLiteral("1.CAN")}), 1);
    }
    void loadProfile(const char* viewId, const QString& variant = {})
    {
        ProfileBuilder builder;
        builder.variant("Tow").set("id", "7");
        builder.variant("Odd").set("id", "first");
        builder.conversion("C", "F", 2.0, 0.0);
        builder.threshold("Hot", {{50, "yellow", "WARNING"}, {80, "red", "LIMIT"}});
        builder.device("EMU").parameter(parameterId, QStringLiteral("Oil"), "FLOAT");
        builder.set("viewId", viewId).set("thresholdId", "Hot");
        builder.set("unitMetric", "C").set("unitImperial", "F");
        const QString path = folder.file("Profile.xml");
        ASSERT_TRUE(builder.write(path));
        ASSERT_NE(profile.loadProfile(path), 0);
        ASSERT_NE(profile.setCurrentVariant(variant), 0);
    }
    void show()
    {
        view = std::make_unique<DialogDataView>(profile, container, paths);
        view->resize(200, 140); // the view at scale 2, 20 pixels above and below
        view->updateRecord(&container.recordData());
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        frame();
    }
    QImage frame()
    {
        QApplication::processEvents();
        return view->grabFramebuffer();
    }
    /// Where the bar ends, in view units, and its colour.
    std::string bar()
    {
        const QImage image = frame();
        const QRgb color = image.pixel(4, 30);
        int x = 4;
        while (x < image.width() && image.pixel(x, 30) == color) {
            ++x;
        }
        return std::to_string((x + 1) / 2 / 10 * 10) + " " + QColor(color).name().toStdString();
    }

    int parameterId = kOil; ///< of the only parameter
    CardFolder folder;
    CardFolder card;
    DataHandler paths;
    Profile profile;
    CardContainer container{profile};
    std::unique_ptr<DialogDataView> view;
};

TEST_F(DialogDataViewTest, FollowsTheCursorAndKeepsTheLastNumber)
{
    show();
    EXPECT_DOUBLE_EQ(view->fit().scale, 2.0);
    const std::pair<double, const char*> rows[] = {
        {1.5, "20 #ffffff"}, {2.5, "60 #ffff00"}, {3.5, "60 #ffff00"}, // not a number
        {4.5, "90 #ff0000"}, {9.0, "30 #ffffff"},                      // after the last entry
    };
    for (const auto& [time, shown] : rows) {
        view->setTime(time);
        EXPECT_EQ(bar(), shown) << time;
    }
    view->setTime(3.5);
    // A record that is taken again has no last number.
    view->updateRecord(&container.recordData());
    EXPECT_EQ(bar(), "100 #1d252e");                                // the empty track
    EXPECT_EQ(frame().pixelColor(4, 10), QColor(0x0b, 0x0f, 0x14)); // beside the view
    view->resize(200, 240);
    EXPECT_EQ(frame().height(), 240);
    EXPECT_DOUBLE_EQ(view->fit().offsetY, 70.0);
}

TEST_F(DialogDataViewTest, ParametersWithoutEntryShowNoValue)
{
    parameterId = kOil + 1;
    folder.add("resources/views/instruments.v", // 0 is a full bar
               QByteArray(kView).replace("from=0 to=100", "from=100 to=0"));
    for (const char* viewId : {"OIL", "OWN"}) { // in the panel of the file, in the generated one
        loadProfile(viewId);
        show();
        const QImage lacking = frame();
        view->setTime(2.5);
        EXPECT_EQ(frame(), lacking) << viewId;
        view->updateRecord(nullptr);
        EXPECT_EQ(frame(), lacking) << viewId; // as without a value
    }
}

TEST_F(DialogDataViewTest, ThePanelKnowsUnitAndVariant)
{
    show();
    const auto isLit = [this](int x) {
        return frame().pixelColor(x, 70) != QColor(0x0b, 0x0f, 0x14);
    };
    EXPECT_FALSE(isLit(10) || isLit(50));
    loadProfile("OIL", QStringLiteral("Tow"));
    profile.setCurrentUnit(eUnitImperial);
    view->updateProfile();
    view->setTime(1.5);
    EXPECT_TRUE(isLit(10) && isLit(50));
    EXPECT_EQ(bar(), "40 #ffffff"); // converted
    loadProfile("OIL", QStringLiteral("Odd"));
    view->updateProfile();
    EXPECT_TRUE(isLit(10) && !isLit(50));
}

TEST_F(DialogDataViewTest, UnknownParametersGetAPanelOfTheirOwn)
{
    for (const char* viewId : {"strange \"name\\", "SOMETHING", ""}) {
        loadProfile(viewId);
        const auto parameters = viewParameters(profile);
        EXPECT_EQ(parameters.size(), *viewId == '\0' ? 0U : 1U);
        Vista2D::VistaView panel;
        panel.loadText(generatedPanel(profile, parameters));
        EXPECT_TRUE(panel.errors().empty()) << panel.errors().front().message;
        EXPECT_TRUE(panel.knows(*viewId == '\0' ? "VARIANT" : viewId)) << viewId;
    }
    loadProfile("SOMETHING");
    show();
    view->setTime(2.5);
    const QImage warning = frame();
    view->setTime(1.5);
    EXPECT_NE(frame(), warning); // it is drawn, and follows
}

TEST_F(DialogDataViewTest, ManyParametersWithLongTextsGetAPanelAllTheSame)
{
    const std::string label(500, '"');
    constexpr int kLabels = 300;
    std::vector<std::pair<int, const char*>> labels;
    labels.reserve(kLabels);
    for (int value = 0; value < kLabels; ++value) {
        labels.emplace_back(value, label.c_str());
    }
    ProfileBuilder builder;
    builder.enumeration("E", labels);
    builder.device("D").parameter(1, QStringLiteral("P"), "UCHAR").set("enumId", "E");
    ASSERT_TRUE(builder.load(profile));
    const ProfileParameter known = profile.data().devices.front().parameters.begin()->second;
    std::vector<ViewParameter> parameters(6000);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const QString id = i == 0 ? QString(5000, QLatin1Char('x')) : QStringLiteral("P%1").arg(i);
        parameters[i].viewId = id.toStdString();
        ProfileParameter& p = parameters[i].parameter;
        p.viewId = id;
        p.fullName = QString(5000, QLatin1Char('"'));
        p.unitMetric = p.fullName;
        p.enumId = known.enumId;
    }
    Vista2D::VistaView panel;
    const std::string text = generatedPanel(profile, parameters);
    panel.loadText(text);
    EXPECT_TRUE(panel.errors().empty()) << panel.errors().front().message;
    EXPECT_TRUE(panel.knows("P1") && panel.knows("P150"));
    EXPECT_FALSE(panel.knows(parameters[0].viewId) || panel.knows("P151"));
    EXPECT_NE(text.find("\"5850 more ...\""), std::string::npos);
    parameters.resize(2);
    EXPECT_NE(generatedPanel(profile, parameters).find("\"1 more ...\""), std::string::npos);
}

TEST_F(DialogDataViewTest, ABrokenOrMissingFileGivesAGeneratedPanel)
{
    folder.add("resources/views/instruments.v", QByteArray("view size=1,\n}}{\0\xff bar", 20));
    show();
    EXPECT_GT(view->fit().scale, 0.0);
    QFile::remove(folder.file("resources/views/instruments.v"));
    show();
    EXPECT_GT(view->fit().scale, 0.0);
}

TEST_F(DialogDataViewTest, SaysWhatIsMissing)
{
    show();
    EXPECT_EQ(hintOf(*view), QString());
    view->updateRecord(nullptr);
    EXPECT_TRUE(hintOf(*view).contains(QStringLiteral("No record")));
    profile.clear();
    view->updateProfile();
    EXPECT_TRUE(hintOf(*view).contains(QStringLiteral("profile")));
}

TEST_F(DialogDataViewTest, KnowsWhichModifiersAreHeld)
{
    show();
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Alt, Qt::Key_A}) {
        QTest::keyPress(view.get(), key);
    }
    EXPECT_EQ(view->heldKeys(), Qt::ShiftModifier | Qt::AltModifier);
    QTest::keyRelease(view.get(), Qt::Key_Shift);
    QTest::keyPress(view.get(), Qt::Key_Control);
    EXPECT_EQ(view->heldKeys(), Qt::ControlModifier | Qt::AltModifier);
}

} // namespace
} // namespace VELIX
