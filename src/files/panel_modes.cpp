// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel_modes.h"

#include <platform/foundation/paths.h>
#include <platform/storage/file_system.h>

#include <QHash>

namespace brenvaldo::files {

namespace {

enum class KnownTo { Both, Plain, OC };

struct ModeOfForms
{
    KnownTo knownTo = KnownTo::Both;
    PanelMode mode;
};

QStringList words(const QString& text) { return text.split(u' '); }

QStringList documentTypes(PanelForm form)
{
    const QStringList types
        = words(QStringLiteral("pdf png jpg jpeg gif tif tiff tga targa psd HEIC"));
    constexpr qsizetype typesOfOC = 7;
    return form == PanelForm::OC ? types.first(typesOfOC) : types;
}

/// The modes in the order of their table; the first list of types is the longer one in plain form.
QHash<QString, ModeOfForms> modesOf(PanelForm form)
{
    const QStringList any;
    const QStringList documents = documentTypes(form);
    const QStringList images = words(QStringLiteral("png jpg jpeg tif tiff HEIC"));
    const QStringList taggedImages = words(QStringLiteral("jpg jpeg tif tiff"));
    const QStringList watermarks
        = words(QStringLiteral("jpg jpeg tif tiff png JPG JPEG TIF TIFF PNG"));
    const QStringList scannedTagged = words(QStringLiteral("jpg jpeg tif tiff JPG JPEG TIF TIFF"));
    const QStringList scannedDocuments
        = scannedTagged + words(QStringLiteral("pdf png gif PDF PNG GIF"));
    const auto files = [](KnownTo knownTo, const QStringList& types) {
        return ModeOfForms{
            .knownTo = knownTo,
            .mode = {.chooses = PanelMode::Chooses::Files, .allowedTypes = types}};
    };
    const auto folder = [](KnownTo knownTo, const QStringList& types, const QStringList& scanned) {
        return ModeOfForms{
            .knownTo = knownTo,
            .mode
            = {.chooses = PanelMode::Chooses::Folder,
               .allowedTypes = types,
               .scannedExtensions = scanned}};
    };
    QHash<QString, ModeOfForms> modes = {
        {QStringLiteral("EMM"), files(KnownTo::Both, taggedImages)},
        {QStringLiteral("EMMDir"), folder(KnownTo::OC, documents, scannedTagged)},
        {QStringLiteral("batchSort"), files(KnownTo::Plain, documents)},
        {QStringLiteral("sort"), files(KnownTo::Both, documents)},
        {QStringLiteral("watermark"), files(KnownTo::Plain, images)},
        {QStringLiteral("rescale"), files(KnownTo::Both, documents)},
        {QStringLiteral("rename"), files(KnownTo::Both, any)},
        {QStringLiteral("renameDir"), folder(KnownTo::Both, any, any)},
        {QStringLiteral("batchSortImages"), folder(KnownTo::OC, any, scannedDocuments)},
        {QStringLiteral("sortDir"), folder(KnownTo::Both, documents, scannedDocuments)},
        {QStringLiteral("WatermarkDir"), folder(KnownTo::Plain, documents, watermarks)},
        {QStringLiteral("WatermarkFiles"), files(KnownTo::Plain, watermarks)},
    };
    modes[QStringLiteral("batchSortImages")].mode.message = QStringLiteral("Choose source folder");
    return modes;
}

bool isKnown(KnownTo knownTo, PanelForm form)
{
    return knownTo == KnownTo::Both || (knownTo == KnownTo::OC) == (form == PanelForm::OC);
}

} // namespace

std::optional<PanelMode> panelMode(const QString& name, PanelForm form)
{
    const QHash<QString, ModeOfForms> modes = modesOf(form);
    const auto found = modes.find(name);
    if (found == modes.end() || !isKnown(found->knownTo, form))
        return std::nullopt;
    return found->mode;
}

QStringList scannedFiles(const QString& folder, const QStringList& extensions)
{
    QStringList paths;
    for (const platform::FolderEntry& entry : platform::folderTree(folder)) {
        const bool passes
            = extensions.isEmpty() || extensions.contains(platform::pathExtension(entry.name));
        if (!entry.isFolder && passes)
            paths += entry.path;
    }
    return paths;
}

} // namespace brenvaldo::files
