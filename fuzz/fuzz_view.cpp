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

/// Makes an application, which fonts need although they need no display. It is never destroyed,
/// since what the platform then leaves behind would count as a leak.
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
        // At most some hundred pixels wide, or large views would take too long.
        const double longest = std::max(model.size.width(), model.size.height());
        for (const double pixels : {40.0, 200.0}) {
            const double scale = ViewCanvas::usableScale(model, pixels / longest);
            const QImage& frame = canvas.frame(model, variables, scale, true);
            require(!frame.isNull() && frame.width() <= 201 && frame.height() <= 201,
                    "the frame does not have the requested size");
            require(!canvas.isOutdated(variables), "a frame is outdated at once");
        }
    }
}

} // namespace

/// Memory that the system's fonts keep is no leak of the code under test.
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
