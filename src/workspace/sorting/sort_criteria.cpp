// SPDX-License-Identifier: GPL-3.0-or-later
#include "sort_criteria.h"

#include <files/file_property.h>
#include <files/ns_string_handling.h>
#include <metadata/mmeta.h>
#include <platform/foundation/literals.h>

#include <optional>

namespace brenvaldo::workspace {

namespace {

using files::cNSStringHandling;
using files::DVFileProperty;
using metadata::mMeta;

constexpr int containsIt = 0;
constexpr int beginsWithIt = 1;
constexpr int endsWithIt = 2;
constexpr int isIt = 3;

bool matches(const QString& subject, const SortCriteria::Comparison& comparison)
{
    switch (comparison.selector) {
    case containsIt:
        return cNSStringHandling::hStringContainsString(subject, comparison.value);
    case beginsWithIt:
        return cNSStringHandling::hStringBeginsWith(subject, comparison.value);
    case endsWithIt:
        return cNSStringHandling::hStringEndWith(subject, comparison.value);
    default:
        return subject == comparison.value;
    }
}

std::optional<QString> pictureValue(const QString& path, int subject)
{
    switch (subject) {
    case 0:
        return mMeta::hGetExifUc(path, u"EXIF User Comment"_s);
    case 1:
    case 2:
        return mMeta::hGetPixelFormat(path).value(subject - 1);
    case 3:
        return mMeta::hGetColorProfile(path);
    default:
        return std::nullopt;
    }
}

bool meetsPicture(const SortCriteria::Comparison& picture, const QString& path)
{
    const auto subject = pictureValue(path, picture.subject);
    return subject && matches(*subject, picture);
}

bool meetsName(const SortCriteria::Comparison& name, const QString& path)
{
    const QStringList parts = DVFileProperty::hGetFileNameProps(path);
    return matches(name.subject == 0 ? parts.value(2) : parts.value(1), name);
}

bool meetsLabel(const SortCriteria& criteria, const QString& path)
{
    const bool isLabel = DVFileProperty::dvGetFileLabel(path) == QString::number(criteria.label);
    return isLabel != criteria.isNotLabel;
}

/// A selector that names no comparison makes no test of the name.
bool testsName(const SortCriteria::Comparison& name)
{
    return name.isChosen && name.selector >= containsIt && name.selector <= isIt;
}

} // namespace

SortCriteria readSettings(const panels::BatchSortControls& panel)
{
    return {
        .picture
        = {.isChosen = panel.cbImagePropChoice.isOn(),
           .subject = panel.pubImageProp.indexOfSelectedItem(),
           .selector = panel.pubImagePropSelector.indexOfSelectedItem(),
           .value = panel.tfImagePropVar.stringValue()},
        .name
        = {.isChosen = panel.cbFileNameChoice.isOn(),
           .subject = panel.pubFileName.indexOfSelectedItem(),
           .selector = panel.pubFileNameSelector.indexOfSelectedItem(),
           .value = panel.tfFileNameVar.stringValue()},
        .choosesLabel = panel.cbFileTagChoice.isOn(),
        .isNotLabel = panel.pubFileTagIsNot.indexOfSelectedItem() != 0,
        .label = panel.pubFileTag.indexOfSelectedItem()};
}

bool meets(const SortCriteria& criteria, const QString& path)
{
    if (criteria.picture.isChosen && !meetsPicture(criteria.picture, path))
        return false;
    if (testsName(criteria.name) && !meetsName(criteria.name, path))
        return false;
    if (criteria.choosesLabel)
        return meetsLabel(criteria, path);
    return criteria.picture.isChosen || testsName(criteria.name);
}

} // namespace brenvaldo::workspace
