#include "views/panel/DialogDataView.h"

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "gui/look/Resources.h"
#include "gui/look/WidgetHint.h"
#include "platform/viewlib/VistaView.h"
#include "profile/Profile.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTest>

#include <cmath>
#include <memory>

namespace VELIX {
namespace {

using Test::CardFolder;
using Test::ProfileBuilder;
using Test::RecordBuilder;

constexpr int kOil = 500;

// The oil's value as the width of a bar of 100 units, its state as the bar's colour; below, a
// square whose colour tells the unit system and one that tells the variant.
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
    const struct
    {
        double width, height, viewWidth, viewHeight;
        ViewFit fit;
    } rows[] = {{1000, 300, 500, 500, {0.6, 350.0, 0.0}},
                {300, 1000, 500, 500, {0.6, 0.0, 350.0}},
                {1400, 1000, 700, 500, {2.0, 0.0, 0.0}},
                {0, 0, 700, 500, {0.0, 0.0, 0.0}},
                {1000, 300, 0, 0, {0.0, 0.0, 0.0}}};
    for (const auto& row : rows) {
        const ViewFit fit = ViewFit::of(row.width, row.height, row.viewWidth, row.viewHeight);
        EXPECT_DOUBLE_EQ(fit.scale, row.fit.scale);
        EXPECT_DOUBLE_EQ(fit.offsetX, row.fit.offsetX);
        EXPECT_DOUBLE_EQ(fit.offsetY, row.fit.offsetY);
    }
}

struct DialogDataViewTest : ::testing::Test
{
    void SetUp() override
    {
        initResources();
        const QDir place(folder.path());
        ASSERT_TRUE(place.mkpath(QStringLiteral("resources/views")) &&
                    place.mkdir(QStringLiteral("bin")));
        paths.init(nullptr, folder.path().toStdString() + "/bin");
        folder.add("resources/views/instruments.v", QByteArray(kView));
        loadProfile("OIL");
        record.id(kOil).at(1.0).floatValue(20.0F).at(2.0).floatValue(60.0F).at(3.0).floatValue(NAN);
        record.at(4.0).floatValue(90.0F).at(5.0).floatValue(30.0F);
        card.add("1.CAN", record);
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
        picture();
    }
    QImage picture()
    {
        QApplication::processEvents();
        return view->grabFramebuffer();
    }
    /// Where the bar ends, in view units, and its colour.
    std::string bar()
    {
        const QImage image = picture();
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
    RecordBuilder record;
    CardContainer container{profile};
    std::unique_ptr<DialogDataView> view;
};

TEST_F(DialogDataViewTest, FollowsTheCursorAndKeepsTheLastNumber)
{
    show();
    EXPECT_DOUBLE_EQ(view->fit().scale, 2.0);
    EXPECT_DOUBLE_EQ(view->fit().offsetY, 20.0);
    const struct
    {
        double time;
        const char* bar;
    } rows[] = {{1.5, "20 #ffffff"}, {2.5, "60 #ffff00"}, {3.5, "60 #ffff00"}, // not a number
                {4.5, "90 #ff0000"}, {9.0, "30 #ffffff"}, // behind the last entry
                {1.5, "20 #ffffff"}};
    for (const auto& row : rows) {
        view->setTime(row.time);
        EXPECT_EQ(bar(), row.bar) << row.time;
    }
    view->setTime(2.5);
    view->setTime(3.5);
    EXPECT_EQ(bar(), "60 #ffff00");
    // A record that is taken anew has no last number.
    view->updateRecord(&container.recordData());
    EXPECT_EQ(bar(), "100 #1d252e");                                  // the empty track
    EXPECT_EQ(picture().pixelColor(4, 10), QColor(0x0b, 0x0f, 0x14)); // beside the view
    view->resize(200, 240);
    EXPECT_EQ(picture().height(), 240);
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
        const QImage lacking = picture();
        view->setTime(2.5);
        EXPECT_EQ(picture(), lacking) << viewId;
        view->updateRecord(nullptr);
        EXPECT_EQ(picture(), lacking) << viewId; // as without a value
    }
}

TEST_F(DialogDataViewTest, TellsThePanelUnitAndVariant)
{
    show();
    const auto squares = [this] {
        const QImage image = picture();
        return std::string(image.pixelColor(10, 70) == QColor(0, 255, 0) ? "imperial "
                                                                         : "metric ") +
               (image.pixelColor(50, 70) == QColor(0, 0, 255) ? "7" : "other");
    };
    EXPECT_EQ(squares(), "metric other");
    loadProfile("OIL", QStringLiteral("Tow"));
    profile.setCurrentUnit(eUnitImperial);
    view->updateProfile();
    view->setTime(1.5);
    EXPECT_EQ(squares(), "imperial 7");
    EXPECT_EQ(bar(), "40 #ffffff"); // converted
    loadProfile("OIL", QStringLiteral("Odd"));
    view->updateProfile();
    EXPECT_EQ(squares(), "imperial other");
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
    const QImage warning = picture();
    view->setTime(1.5);
    EXPECT_NE(picture(), warning); // it is drawn, and follows
}

TEST_F(DialogDataViewTest, ManyParametersWithLongTextsGetAPanelAllTheSame)
{
    const std::string label(500, '"');
    ProfileBuilder builder;
    builder.enumeration("E", {{0, label.c_str()}});
    builder.device("D").parameter(1, QStringLiteral("P"), "UCHAR").set("enumId", "E");
    QString xml = builder.xml();
    const QString value = xml.mid(xml.indexOf(QLatin1String("<Value")));
    const QString line = value.left(value.indexOf(QLatin1String("/>")) + 2);
    for (int number = 1; number < 300; ++number) {
        const QString next = QStringLiteral("val=\"%1\"").arg(number);
        xml.insert(xml.indexOf(line), QString(line).replace(QLatin1String("val=\"0\""), next));
    }
    ASSERT_TRUE(ProfileBuilder::loadText(profile, xml));
    const ProfileParameter known = profile.data().devices.front().parameters.begin()->second;
    ASSERT_EQ(profile.enumeration(known)->values.size(), 300U);
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

TEST_F(DialogDataViewTest, ABrokenOrMissingFileCostsThePictureOnly)
{
    for (const QByteArray& text : {QByteArray("view size=1,\n}}{\0\xff bar", 20), QByteArray()}) {
        folder.add("resources/views/instruments.v", text);
        show();
        EXPECT_GT(view->fit().scale, 0.0);
    }
    QFile::remove(folder.file("resources/views/instruments.v"));
    show();
    EXPECT_GT(view->fit().scale, 0.0);
}

TEST_F(DialogDataViewTest, SaysWhatIsMissing)
{
    show();
    auto* hint = view->findChild<WidgetHint*>();
    EXPECT_FALSE(hint->isVisible());
    view->updateRecord(nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->hint().contains(QStringLiteral("No record")));
    profile.clear();
    view->updateProfile();
    EXPECT_TRUE(hint->hint().contains(QStringLiteral("profile")));
}

TEST_F(DialogDataViewTest, KnowsWhichModifiersAreHeld)
{
    show();
    QTest::keyPress(view.get(), Qt::Key_Shift);
    QTest::keyPress(view.get(), Qt::Key_Alt);
    QTest::keyPress(view.get(), Qt::Key_A);
    EXPECT_EQ(view->heldKeys(), Qt::ShiftModifier | Qt::AltModifier);
    QTest::keyRelease(view.get(), Qt::Key_Shift);
    QTest::keyPress(view.get(), Qt::Key_Control);
    EXPECT_EQ(view->heldKeys(), Qt::ControlModifier | Qt::AltModifier);
}

} // namespace
} // namespace VELIX
