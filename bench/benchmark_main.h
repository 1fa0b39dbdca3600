// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/engine.h>

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace brenvaldo::bench {

/// Runs the benchmarks of a program with the engine and without a display.
inline int run(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const platform::graphics::Engine engine;
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

} // namespace brenvaldo::bench
