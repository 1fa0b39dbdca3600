// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::graphics {

/// Starts the pixel engine for the life of the process; one object stands first in each `main`.
///
/// The operation cache is off, unsafe decoders are blocked, and the engine's messages go to the
/// log.
class Engine
{
public:
    Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    Engine(Engine&&) = delete;
    Engine& operator=(Engine&&) = delete;
    ~Engine();
};

/// Number of times that this thread was told of something made up: pixels that a file has lost, or
/// a size in the place of one that the engine can't take.
[[nodiscard]] int madeUpParts();

/// Number of threads that one picture is evaluated with.
[[nodiscard]] int engineThreads();

} // namespace brenvaldo::platform::graphics
