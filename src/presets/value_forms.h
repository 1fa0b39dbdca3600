// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/choice_controls.h>
#include <controls/color_well.h>
#include <controls/image_view.h>
#include <controls/text_controls.h>

#include <functional>
#include <optional>
#include <variant>

/// \file
/// How the value of a control is kept as text in a preset. Each form names its control.

namespace brenvaldo::presets {

/// The text as it stands; also the form of long texts.
struct TextForm
{
    controls::TextControl* control;
};

/// "0" or "1".
struct StateForm
{
    controls::CheckBox* control;
};

/// The index of the selected item, segment or row; "-1" when none is.
struct IndexForm
{
    controls::IndexedControl* control;
};

/// The selected item itself; there is no value when none is selected.
struct ItemForm
{
    controls::ComboBox* control;
};

/// A typed stream of red, green and blue; a damaged one leaves the well as it was.
struct ColorForm
{
    controls::ColorWell* control;
};

/// As `ColorForm`, but a keyed archive.
struct GalleryColorForm
{
    controls::ColorWell* control;
};

/// A bookmark of the folder whose path is in the field; it comes back with a "/" at its end. A lost
/// folder leaves the field as it was.
struct FolderForm
{
    controls::TextField* control;
};

/// A bookmark of an image file, which is also shown. A lost file leaves the stored text in the
/// field.
struct ImageFileForm
{
    controls::TextField* control;
    controls::ImageView* view;
};

/// What no single control holds.
struct OtherForm
{
    std::function<QString()> stored;
    std::function<void(const QString&)> restore;
};

using ValueForm = std::variant<
    TextForm,
    StateForm,
    IndexForm,
    ItemForm,
    ColorForm,
    GalleryColorForm,
    FolderForm,
    ImageFileForm,
    OtherForm>;

/// The control's value as text; nothing when it can't be kept.
[[nodiscard]] std::optional<QString> storedValue(const ValueForm& form);

/// Gives the control the value that `text` stands for; an empty or foreign text reads as 0.
void restoreValue(const ValueForm& form, const QString& text);

} // namespace brenvaldo::presets
