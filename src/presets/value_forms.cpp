// SPDX-License-Identifier: GPL-3.0-or-later
#include "value_forms.h"

#include "bookmarks.h"

#include <platform/archives/color_archive.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <QFileInfo>

#include <algorithm>

namespace brenvaldo::presets {

namespace {

platform::archives::ColorComponents componentsOf(const controls::ColorWell& well)
{
    const platform::graphics::Color& color = well.color();
    return {
        static_cast<float>(color.red),
        static_cast<float>(color.green),
        static_cast<float>(color.blue)};
}

void restoreColor(controls::ColorWell& well, const QString& archive)
{
    const auto components = platform::archives::colorFromArchive(archive);
    if (!components)
        return;
    const auto level
        = [](float component) { return std::clamp(static_cast<double>(component), 0.0, 1.0); };
    const auto& [red, green, blue] = *components;
    well.setColor({.red = level(red), .green = level(green), .blue = level(blue)});
}

std::optional<QString> bookmarkOf(const QString& path)
{
    if (path.isEmpty())
        return u""_s;
    const QUrl url = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    const auto bookmark = DVbookmarks().bookmarkForURL(url);
    if (!bookmark)
        return std::nullopt;
    return QString::fromLatin1(bookmark->toBase64());
}

std::optional<QString> pathOf(const QString& bookmark)
{
    const auto url = DVbookmarks().urlForBookmark(QByteArray::fromBase64(bookmark.toLatin1()));
    if (!url)
        return std::nullopt;
    return url->toLocalFile();
}

/// Nothing when the file is no image or a damaged one.
std::optional<platform::graphics::Image> imageAt(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    const auto image = source ? source->uprightImage() : std::nullopt;
    return image ? image->copiedToMemory() : std::nullopt;
}

struct Store
{
    using Result = std::optional<QString>;

    Result operator()(const TextForm& form) const { return form.control->stringValue(); }
    Result operator()(const StateForm& form) const
    {
        return QString::number(form.control->state());
    }
    Result operator()(const IndexForm& form) const
    {
        return QString::number(form.control->selectedIndex());
    }
    Result operator()(const ItemForm& form) const
    {
        if (form.control->indexOfSelectedItem() < 0)
            return std::nullopt;
        return form.control->objectValueOfSelectedItem();
    }
    Result operator()(const ColorForm& form) const
    {
        return platform::archives::colorArchive(componentsOf(*form.control));
    }
    Result operator()(const GalleryColorForm& form) const
    {
        return platform::archives::galleryColorArchive(componentsOf(*form.control));
    }
    Result operator()(const FolderForm& form) const
    {
        return bookmarkOf(form.control->stringValue());
    }
    Result operator()(const ImageFileForm& form) const
    {
        return bookmarkOf(form.control->stringValue());
    }
    Result operator()(const OtherForm& form) const { return form.stored(); }
};

struct Restore
{
    const QString& text;

    void operator()(const TextForm& form) const { form.control->setStringValue(text); }
    void operator()(const StateForm& form) const
    {
        form.control->setState(platform::intValue(text));
    }
    void operator()(const IndexForm& form) const
    {
        form.control->selectIndex(platform::intValue(text));
    }
    void operator()(const ItemForm& form) const { form.control->selectItemWithObjectValue(text); }
    void operator()(const ColorForm& form) const { restoreColor(*form.control, text); }
    void operator()(const GalleryColorForm& form) const { restoreColor(*form.control, text); }
    void operator()(const FolderForm& form) const
    {
        const std::optional<QString> path = pathOf(text);
        if (!path)
            return;
        form.control->setStringValue(*path + QLatin1Char('/'));
        form.control->setToolTip(form.control->stringValue());
    }
    void operator()(const ImageFileForm& form) const
    {
        form.control->setStringValue(text);
        const std::optional<QString> path = pathOf(text);
        if (!path)
            return;
        form.control->setStringValue(*path);
        form.view->setImage(imageAt(*path));
    }
    void operator()(const OtherForm& form) const { form.restore(text); }
};

} // namespace

std::optional<QString> storedValue(const ValueForm& form) { return std::visit(Store(), form); }

void restoreValue(const ValueForm& form, const QString& text) { std::visit(Restore{text}, form); }

} // namespace brenvaldo::presets
