// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>
#include <optional>

namespace brenvaldo::workspace {

/// How the body of the main window answers a drag: it takes every drop and does nothing with it.
class mainAppWindow
{
public:
    using Output = std::function<void(const QString& text)>;

    /// Names of the operations of a drag; all of them.
    static constexpr int allOperations = -1;

    /// `output` gets what the window writes to standard output.
    explicit mainAppWindow(Output output);

    void awakeFromNib();
    [[nodiscard]] int draggingEntered() const;
    [[nodiscard]] bool prepareForDragOperation() const;
    /// `fileNames` are those on the pasteboard; not set when it holds none.
    [[nodiscard]] bool performDragOperation(const std::optional<QStringList>& fileNames) const;

private:
    Output m_output;
};

} // namespace brenvaldo::workspace
