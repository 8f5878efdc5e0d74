#pragma once

#include <QApplication>

#include <benchmark/benchmark.h>

namespace VELIX {

/// Does what main() of a benchmark of widgets has to.
inline int runWidgetBenchmarks(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

/// Does the same for widgets that need no OpenGL, without a display, so that no other process
/// paints.
inline int runOffscreenBenchmarks(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return runWidgetBenchmarks(argc, argv);
}

} // namespace VELIX
