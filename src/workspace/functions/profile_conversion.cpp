// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <imaging/dv_color_conversions.h>
#include <imaging/profile_settings.h>
#include <panels/panels.h>
#include <platform/graphics/screen_scaling.h>
#include <presets/image_records.h>
#include <workspace/preview/photo_preview.h>

#include <memory>

namespace brenvaldo::workspace {

namespace {

/// The list of profiles that a run selects from is the one that was shown last.
using Conversions = std::shared_ptr<imaging::DVColorConversions>;

PhotoRun::Start runWith(const Conversions& conversions)
{
    return [conversions](const RunContext& run) {
        return [conversions, &run](const PhotoOutput& output) {
            return conversions->convertColorSpace(
                output.photo,
                imaging::readSettings(run.subsystems.panels.vwProfileConversion),
                output.tail
            );
        };
    };
}

using platform::graphics::Image;

/// A look at the converted photo on a screen takes the photo at that size first. `conversions` is a
/// copy: the look is made while the list may be filled anew.
std::optional<Image> previewOf(
    const imaging::DVColorConversions& conversions,
    const std::optional<Image>& photo,
    const imaging::ProfileSettings& settings
)
{
    const auto converted = conversions.convertColorSpaceToPreview(photo, settings);
    if (!converted)
        return std::nullopt;
    return drawnSmallerBy(
        *converted,
        [conversions, photo = *photo, settings](platform::graphics::PixelSize size) {
            const Image small = scaledForScreen(photo, size);
            return conversions.convertColorSpaceToPreview(small, settings).value_or(small);
        }
    );
}

Function::Preview previewWith(const Conversions& conversions)
{
    return [conversions](const Subsystems& subsystems, const QString& path) {
        return previewOf(
            *conversions,
            subsystems.previewPhotos.photo(path),
            imaging::readSettings(subsystems.panels.vwProfileConversion)
        );
    };
}

} // namespace

/// Leaves type and destination as the function before had them.
Function profileConversion()
{
    using enum HolderChange;
    const auto conversions = std::make_shared<imaging::DVColorConversions>();
    return {
        .id = QLatin1String("profileConversion"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Colour profile"),
        .choice = {.section = Section::EditPhoto, .index = 4},
        .holders = {QLatin1String("vwProfileConversion"), Fill, Fill, LeaveAsItWas, LeaveAsItWas},
        .whenShown = [conversions](const Subsystems& subsystems
                     ) { conversions->hGetColorProfiles(subsystems.panels.vwProfileConversion); },
        .run = PhotoRun{.start = runWith(conversions)},
        .preview = previewWith(conversions),
        .presets = {{.make = presets::profileRecord}},
    };
}

} // namespace brenvaldo::workspace
