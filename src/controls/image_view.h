// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

#include <platform/graphics/image.h>

#include <QString>

#include <optional>

namespace brenvaldo::controls {

/// Shows one picture, or nothing. One that has actions takes files that are dropped on it.
class ImageView : public Control
{
public:
    using Control::Control;

    [[nodiscard]] const std::optional<platform::graphics::Image>& image() const { return m_image; }
    void setImage(std::optional<platform::graphics::Image> image);
    void clear() { setImage(std::nullopt); }

    [[nodiscard]] bool takesFiles() const { return !actions().isEmpty(); }
    /// Path of the file that was dropped last.
    [[nodiscard]] const QString& droppedFile() const { return m_droppedFile; }
    void setDroppedFile(const QString& path) { m_droppedFile = path; }

private:
    std::optional<platform::graphics::Image> m_image;
    QString m_droppedFile;
};

} // namespace brenvaldo::controls
