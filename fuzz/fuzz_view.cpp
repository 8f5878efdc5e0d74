// A damaged view description: read, and painted at two scales with values at the edges.

#include "fuzz/FuzzFolder.h"
#include "platform/viewlib/ViewCanvas.h"
#include "platform/viewlib/ViewReader.h"
#include "platform/viewlib/ViewVariables.h"

#include <QGuiApplication>

#include <limits>

namespace {

using namespace Vista2D;
using VELIX::Fuzz::require;

constexpr double kEdges[] = {0.0,
                             1.0,
                             2.0,
                             -1e300,
                             std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()};

/// Fonts need an application, if no display. It is never destroyed, since what the platform leaves
/// behind then would count as a leak.
void provideApplication()
{
    static int count = 1;
    static char name[] = "fuzz_view";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* const application = new QGuiApplication(count, arguments);
    require(application != nullptr, "no application");
}

void paint(const ViewModel& model, ViewVariables& variables)
{
    ViewCanvas canvas;
    for (const double edge : kEdges) {
        for (const int slot : model.slotsUsed) {
            variables.set(slot, edge);
        }
        // At most some hundred pixels wide, or large views would take all the time.
        const double longest = std::max(model.size.width(), model.size.height());
        for (const double pixels : {40.0, 200.0}) {
            const double scale = ViewCanvas::usableScale(model, pixels / longest);
            const QImage& picture = canvas.picture(model, variables, scale, true);
            require(!picture.isNull() && picture.width() <= 201 && picture.height() <= 201,
                    "the picture has not the size that was asked for");
            require(!canvas.isOutdated(variables), "a picture is outdated at once");
        }
    }
}

} // namespace

/// What the system's fonts keep for ever is no leak of the code under test.
extern "C" const char* __lsan_default_suppressions() // NOLINT: the sanitizer prescribes the name
{
    return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    provideApplication();
    ViewVariables variables;
    constexpr ViewReader::Layout kLayouts[] = {ViewReader::Layout::Wide, ViewReader::Layout::Tall,
                                               ViewReader::Layout::Low};
    ViewReader reader(variables, kLayouts[size % 3]); // any of them, the same for the same input
    const QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    reader.read(text);
    for (const ViewError& error : reader.errors()) {
        require(error.line >= 0 && error.line <= text.count('\n') + 1 && !error.message.empty(),
                "an error is nowhere in the file");
    }
    const ViewModel& model = reader.model();
    require(model.elements.size() <= ViewReader::kMostElements, "too many elements");
    require(model.elements.empty() || !model.size.isEmpty(), "elements without a view");
    if (!model.size.isEmpty() && model.elements.size() < 200) {
        paint(model, variables);
    }
    return 0;
}
