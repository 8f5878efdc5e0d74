// One frame of the instrument panel at 1000 x 714, every value changed since the last one; and the
// first frame at a size, for which all that does not move is painted again. Needs a display.

#include "platform/tessel/opengl/Gl.h"
#include "platform/viewlib/VistaView.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

constexpr int kWidth = 1000;
constexpr int kHeight = 714;

struct Range
{
    const char* name;
    double from;
    double to;
};
constexpr Range kValues[] = {
    {"ENGINE_SPEED", 0, 6000}, {"MANIFOLD", 200, 1000},   {"OIL_TEMP", 0, 130},
    {"OIL_PRESSURE", 0, 8},    {"COOLANT_TEMP", 0, 130},  {"FUEL_PRESSURE", 0, 5},
    {"HEAD_1", 0, 180},        {"HEAD_2", 0, 180},        {"HEAD_3", 0, 180},
    {"HEAD_4", 0, 180},        {"EXHAUST_1", 0, 900},     {"EXHAUST_2", 0, 900},
    {"EXHAUST_3", 0, 900},     {"EXHAUST_4", 0, 900},     {"THROTTLE", 0, 100},
    {"FUEL_FLOW_A", 0, 20},    {"FUEL_FLOW_B", 0, 20},    {"FUEL_LEVEL", 0, 90},
    {"BUS_VOLTAGE", 11, 15},   {"BATTERY_CURRENT", 0, 9}, {"RUNNING_TIME", 1e6, 2e6},
    {"OUTSIDE_TEMP", -9, 40},  {"LANE_MODE_A", 2, 2},     {"LANE_MODE_B", 3, 3},
};

struct Panel
{
    Panel()
    {
        surface.create();
        const bool isMade = context.create() && context.makeCurrent(&surface);
        if (!isMade || !view.load(PANEL_FILE)) {
            std::fprintf(stderr, "no OpenGL, or no view in %s\n", PANEL_FILE);
            std::abort();
        }
        target = std::make_unique<QOpenGLFramebufferObject>(
            kWidth, kHeight, QOpenGLFramebufferObject::CombinedDepthStencil);
        target->bind();
        view.startView(1);
        view.setVar("UNIT", 0L);
        view.setVar("VARIANT", 2L);
    }
    void setValues(int frame)
    {
        for (const Range& value : kValues) {
            const double part = frame % 97 / 97.0;
            view.setVar(value.name, value.from + part * (value.to - value.from));
        }
    }
    void draw(double scale)
    {
        glViewport(0, 0, kWidth, kHeight);
        glClear(GL_COLOR_BUFFER_BIT);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0.0, kWidth, kHeight, 0.0, -1.0, 1.0);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glScaled(scale, scale, 1.0);
        view.draw(1);
        glFinish();
    }

    QOffscreenSurface surface;
    QOpenGLContext context;
    std::unique_ptr<QOpenGLFramebufferObject> target;
    Vista2D::VistaView view;
};

void frame(benchmark::State& state)
{
    Panel panel;
    const double scale = kWidth / panel.view.width();
    panel.draw(scale);
    int count = 0;
    for (auto step : state) {
        (void)step;
        panel.setValues(++count);
        panel.draw(scale);
    }
    state.SetLabel("limit 16 ms");
}

void firstFrame(benchmark::State& state)
{
    Panel panel;
    int count = 0;
    for (auto step : state) {
        (void)step;
        panel.setValues(++count);
        panel.draw(kWidth / panel.view.width() * (count % 2 == 0 ? 1.0 : 0.99));
    }
}

} // namespace

BENCHMARK(frame)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(firstFrame)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const QGuiApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
