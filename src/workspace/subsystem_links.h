// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "batch_operations.h"

#include <platform/graphics/image.h>

#include <functional>
#include <optional>

namespace brenvaldo::workspace {

/// The picture that a function would make of the photo at a path, for the overlay; nothing when it
/// fails. An empty entry is a function that shows no effect yet.
using PreviewTwin = std::function<std::optional<platform::Image>(const QString& path)>;

struct PreviewTwins
{
    PreviewTwin setWatermarkTextPreview = {};
    PreviewTwin setWatermarkImagePreview = {};
    PreviewTwin addTintToImage2Preview = {};
    PreviewTwin hAddFramePreview = {};
    PreviewTwin hAddRoundingsPreview = {};
    PreviewTwin convertColorSpaceToPreview = {};
    PreviewTwin hRotatePicturesPreview = {};
    PreviewTwin hAddFilterPreview = {};
    PreviewTwin hCropPhotosPreview = {};
};

/// Edits of a photo's own file: its path, and its folder, ending in "/", as the place to write to.
/// They answer the result word.
struct QuickEdits
{
    using Edit = std::function<QString(const QString& path, const QString& folder)>;

    /// Also takes degrees, counter-clockwise.
    std::function<QString(const QString& path, const QString& folder, float angle)> hRotatePicture
        = {};
    Edit hFlipHorizontalPicture = {};
    Edit hFlipVerticalPicture = {};
};

/// What the workspace asks of the other subsystems; an empty entry is still to come and does
/// nothing.
struct SubsystemLinks
{
    BatchOperations operations = {};
    PreviewTwins twins = {};
    QuickEdits quickEdits = {};

    /// Fills `pubInstalledICCProfiles`.
    std::function<void()> hGetColorProfiles = {};
    /// Puts the values of a gallery template into its controls.
    std::function<void(int index)> hLoadTemplatePreset = {};
    /// Shows what is known about the photo at a path.
    std::function<void(const QString& path)> hiDoNothing = {};
    /// Shows that no photo is selected.
    std::function<void()> forgetPhoto = {};
    /// Prints the photo at a path.
    std::function<void(const QString& path)> printService = {};
    /// A picture of the program's resources by its name.
    std::function<std::optional<platform::Image>(const QString& name)> imageNamed = {};
};

} // namespace brenvaldo::workspace
