// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <imaging/result_word.h>
#include <platform/graphics/image.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace brenvaldo::workspace {

/// Edits of a photo's own file: its path, and its folder, ending in "/", as the place to write to.
/// They answer the result word.
struct QuickEdits
{
    using Edit = std::function<imaging::ResultWord(const QString& path, const QString& folder)>;

    /// Also takes degrees, counter-clockwise.
    std::function<imaging::ResultWord(const QString& path, const QString& folder, float angle)>
        hRotatePicture = {};
    Edit hFlipHorizontalPicture = {};
    Edit hFlipVerticalPicture = {};
};

/// What the workspace asks of other parts of the program, besides the operations of the functions;
/// an empty entry is still to come and does nothing.
struct Neighbours
{
    QuickEdits quickEdits = {};
    /// Shows what is known about the photo at a path.
    std::function<void(const QString& path)> hiDoNothing = {};
    /// Shows that no photo is selected.
    std::function<void()> forgetPhoto = {};
    /// The new name of a photo: its path, its name, and the rows of the chain of actions.
    std::function<QString(const QString&, const QString&, const QList<QStringList>&)> hRenameTWMFile
        = {};
    /// Puts the values of a gallery template into its controls.
    std::function<void(int index)> hLoadTemplatePreset = {};
    /// Prints the photo at a path.
    std::function<void(const QString& path)> printService = {};
    /// A picture of the program's resources by its name.
    std::function<std::optional<platform::graphics::Image>(const QString& name)> imageNamed = {};
    /// How many photos of a run may be in the making; 0: as many as there are cores.
    std::function<int()> photosAtATime = {};
    int cores = 0; ///< to share out; 0: those of the machine
};

} // namespace brenvaldo::workspace
