// The program's instrument panel fits the demo profile: names and thresholds agree.

#include "platform/viewlib/ViewReader.h"
#include "platform/viewlib/ViewVariables.h"
#include "profile/Profile.h"
#include "tests/support/TestFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace VELIX::Demo {
namespace {

using Vista2D::ViewBand;
using Vista2D::ViewBinding;
using Vista2D::ViewReader;
using Vista2D::ViewScale;
using Vista2D::ViewVariables;

std::map<std::string, ProfileParameter> boundParameters(const Profile& profile)
{
    std::map<std::string, ProfileParameter> bound;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            if (!p.viewId.isEmpty()) {
                bound[p.viewId.toStdString()] = p;
            }
        }
    }
    return bound;
}

QByteArray panelText()
{
    return VELIX::Test::readFile(QStringLiteral(DEMO_RESOURCES "/../views/instruments.v"));
}

int stateOf(const QColor& color)
{
    return color == QColor(0xe0, 0x46, 0x3c) ? 2 : color == QColor(0xe5, 0x9a, 0x1c) ? 1 : 0;
}

/// Just inside of its ends, a band must have the colour of the state that the profile gives there.
void compare(const Profile& profile, const ProfileParameter& p, const ViewScale& scale,
             const std::string& where)
{
    for (const ViewBand& band : scale.bands) {
        for (const double part : {0.01, 0.99}) {
            const double shown = band.from + part * (band.to - band.from);
            const bool isImperial = profile.currentUnit() == eUnitImperial;
            const double metric =
                isImperial ? (shown - p.toImperial.offset) / p.toImperial.factor : shown;
            int state = 0;
            QColor color;
            profile.getThreshold(p, metric, state, color);
            EXPECT_EQ(stateOf(band.color), state) << where << " at " << shown;
        }
    }
    EXPECT_EQ(scale.bands.empty(), p.thresholdId == 0) << where;
}

TEST(DemoPanel, BandsRepeatTheThresholdsOfTheProfile)
{
    Profile profile;
    ASSERT_NE(profile.loadProfile(QStringLiteral(DEMO_RESOURCES "/Profile.xml")), 0);
    ViewVariables variables;
    ViewReader reader(variables);
    reader.read(panelText());
    int count = 0;
    for (const ProfileVariant& variant : profile.variants()) {
        ASSERT_NE(profile.setCurrentVariant(variant.name), 0);
        const auto bound = boundParameters(profile);
        for (const EUnit unit : {eUnitMetric, eUnitImperial}) {
            profile.setCurrentUnit(unit);
            variables.set(variables.slot("VARIANT"), variant.id.toInt());
            variables.set(variables.slot("UNIT"), unit);
            for (const Vista2D::ViewElement& element : reader.model().elements) {
                const ViewBinding* binding = Vista2D::bindingOf(element);
                if (binding == nullptr || binding->scales.empty()) {
                    continue; // a lamp, or no instrument
                }
                for (const auto& [name, p] : bound) {
                    if (binding->slot == variables.find(name)) {
                        const ViewScale* scale =
                            binding->scaleOf(reader.model().results(variables));
                        ASSERT_NE(scale, nullptr) << name;
                        compare(profile, p, *scale,
                                name + " " + variant.name.toStdString() + std::to_string(unit));
                        ++count;
                    }
                }
            }
        }
    }
    EXPECT_EQ(count, 3 * 2 * 3 * 22); // variants, unit systems, layouts, instruments with a scale
}

TEST(DemoPanel, HasNoMistakeAndNamesWhatTheProfileBinds)
{
    Profile profile;
    ASSERT_NE(profile.loadProfile(QStringLiteral(DEMO_RESOURCES "/Profile.xml"), QString()), 0);
    for (const auto layout :
         {ViewReader::Layout::Wide, ViewReader::Layout::Tall, ViewReader::Layout::Low}) {
        ViewVariables variables;
        ViewReader reader(variables, layout);
        reader.read(panelText());
        for (const Vista2D::ViewError& error : reader.errors()) {
            ADD_FAILURE() << error.line << " " << error.element << ": " << error.message;
        }
        std::set<int> known;
        for (const char* own : {"UNIT", "VARIANT", "TALL", "LOW"}) {
            known.insert(variables.slot(own));
        }
        for (const auto& [name, p] : boundParameters(profile)) {
            known.insert({variables.slot(name), variables.slot(name + "_STATE"),
                          variables.slot(name + "_MISSING")});
        }
        for (const int slot : reader.model().slotsUsed) {
            EXPECT_EQ(known.count(slot), 1U) << "slot " << slot;
        }
    }
}

/// Size of the smallest text that is shown, in view units.
double smallestText(const Vista2D::ViewModel& model, const ViewVariables& variables)
{
    double least = 1e9;
    const Vista2D::ConditionResults results = model.results(variables);
    for (const Vista2D::ViewElement& element : model.elements) {
        if (!Vista2D::hold(element.conditions, results)) {
            continue;
        }
        if (const auto* label = std::get_if<Vista2D::ViewLabel>(&element.shape)) {
            least = std::min(least, label->style.size);
        } else if (const auto* lamp = std::get_if<Vista2D::ViewLamp>(&element.shape)) {
            least = std::min(least, lamp->textSize);
        } else if (const ViewBinding* binding = Vista2D::bindingOf(element); binding != nullptr) {
            for (const Vista2D::ViewCaption& caption : binding->captions) {
                least = std::min(least, caption.style.size);
            }
        }
    }
    return least;
}

TEST(DemoPanel, CanBeReadInAWindowOf1000By800)
{
    const QSizeF rooms[] = {{274, 520}, {665, 256}, {665, 520}}; // beside, above, without the map
    for (const QSizeF& room : rooms) {
        double largest = 0.0;
        double text = 0.0; // pixels
        for (const auto layout :
             {ViewReader::Layout::Wide, ViewReader::Layout::Tall, ViewReader::Layout::Low}) {
            ViewVariables variables;
            variables.set(variables.slot("TALL"), layout == ViewReader::Layout::Tall ? 1.0 : 0.0);
            variables.set(variables.slot("LOW"), layout == ViewReader::Layout::Low ? 1.0 : 0.0);
            ViewReader reader(variables, layout);
            reader.read(panelText());
            const QSizeF size = reader.model().size;
            const double scale =
                std::min(room.width() / size.width(), room.height() / size.height());
            if (scale > largest) {
                largest = scale;
                text = scale * smallestText(reader.model(), variables);
            }
        }
        EXPECT_GE(text, 9.0) << room.width();
    }
}

} // namespace
} // namespace VELIX::Demo
