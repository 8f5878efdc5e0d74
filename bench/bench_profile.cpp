// Reading a large profile, and listing it for the user to select from. Needs a display.

#include "gui/look/Resources.h"
#include "gui/profile/DialogProfile.h"
#include "profile/Profile.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamWriter>

using namespace VELIX;

namespace {

constexpr int kDevices = 20;
constexpr int kParametersPerDevice = 100;

void writeParameter(QXmlStreamWriter& xml, int number)
{
    xml.writeStartElement(QStringLiteral("Parameter"));
    const auto set = [&xml](const char* name, const QString& value) {
        xml.writeAttribute(QLatin1String(name), value);
    };
    set("id", QString::number(100 + number));
    set("name", QStringLiteral("Oil Temperature Sensor %1").arg(number));
    set("dataType", QStringLiteral("FLOAT"));
    set("startByte", QStringLiteral("4"));
    set("unitMetric", QStringLiteral("C"));
    set("unitImperial", QStringLiteral("F"));
    set("precision", QStringLiteral("1"));
    set("thresholdId", QStringLiteral("Hot"));
    set("viewId", QStringLiteral("engine.oil.%1").arg(number));
    if (number % 2 != 0) {
        set("variant", QStringLiteral("Tow,!Solo"));
    }
    xml.writeEndElement();
}

bool writeProfile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QXmlStreamWriter xml(&file);
    xml.writeStartElement(QStringLiteral("CanAerospaceProfile"));
    int number = 0;
    for (int device = 0; device < kDevices; ++device) {
        xml.writeStartElement(QStringLiteral("Device"));
        xml.writeAttribute(QStringLiteral("name"), QStringLiteral("Lane %1").arg(device));
        for (int i = 0; i < kParametersPerDevice; ++i) {
            writeParameter(xml, number++);
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    return !xml.hasError();
}

struct Fixture
{
    Fixture() : ready(writeProfile(path)) {}

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("Profile.xml"));
    bool ready;
    Profile profile;
};

/// What start-up and every change of the variant do.
void readProfile(benchmark::State& state)
{
    Fixture fixture;
    for (auto _ : state) {
        const bool read = fixture.ready && fixture.profile.loadProfile(fixture.path) != 0 &&
                          fixture.profile.setCurrentVariant({}) != 0;
        if (!read) {
            state.SkipWithError("the profile could not be read");
            return;
        }
    }
}

void fillTree(benchmark::State& state)
{
    Fixture fixture;
    if (fixture.profile.loadProfile(fixture.path, {}) == 0) {
        state.SkipWithError("the profile could not be read");
        return;
    }
    DialogProfile dialog(fixture.profile);
    dialog.resize(320, 500);
    dialog.show();
    for (auto _ : state) {
        dialog.updateList();
        QApplication::processEvents(); // laid out and painted
    }
}

} // namespace

BENCHMARK(readProfile)->Unit(benchmark::kMillisecond);
BENCHMARK(fillTree)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    initResources();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
