// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/signal.h>

#include <QString>

#include <optional>

namespace brenvaldo::workspace {

/// What the user is doing: the id of the selected function, for the whole process.
class cSelectedFunction
{
public:
    cSelectedFunction(const cSelectedFunction&) = delete;
    cSelectedFunction& operator=(const cSelectedFunction&) = delete;
    cSelectedFunction(cSelectedFunction&&) = delete;
    cSelectedFunction& operator=(cSelectedFunction&&) = delete;

    [[nodiscard]] static cSelectedFunction& sharedModel();

    /// Stores the id and tells it.
    void select(const QString& function);

    std::optional<QString> myString; ///< not set before the first selection

    platform::Signal<> changed;

private:
    cSelectedFunction() = default;
    ~cSelectedFunction() = default;
};

} // namespace brenvaldo::workspace
