// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel_modes.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/file_system.h>

#include <algorithm>
#include <array>

namespace brenvaldo::files {

namespace {

using Chooses = PanelMode::Chooses;

enum class KnownTo { Both, Plain, OC };

enum class Extensions {
    Any,
    Documents,
    Images,
    Tagged, ///< images whose metadata can be edited
    Watermarks,
    ScannedTagged,
    ScannedDocuments
};

struct ModeRow
{
    const char* name;
    KnownTo knownTo;
    Chooses chooses;
    Extensions allowed;
    Extensions scanned;
};

using enum Extensions;

// clang-format off
constexpr std::array<ModeRow, 12> modeRows = {{
    {"EMM",             KnownTo::Both,  Chooses::Files,  Tagged,     Any},
    {"EMMDir",          KnownTo::OC,    Chooses::Folder, Documents,  ScannedTagged},
    {"batchSort",       KnownTo::Plain, Chooses::Files,  Documents,  Any},
    {"sort",            KnownTo::Both,  Chooses::Files,  Documents,  Any},
    {"watermark",       KnownTo::Plain, Chooses::Files,  Images,     Any},
    {"rescale",         KnownTo::Both,  Chooses::Files,  Documents,  Any},
    {"rename",          KnownTo::Both,  Chooses::Files,  Any,        Any},
    {"renameDir",       KnownTo::Both,  Chooses::Folder, Any,        Any},
    {"batchSortImages", KnownTo::OC,    Chooses::Folder, Any,        ScannedDocuments},
    {"sortDir",         KnownTo::Both,  Chooses::Folder, Documents,  ScannedDocuments},
    {"WatermarkDir",    KnownTo::Plain, Chooses::Folder, Documents,  Watermarks},
    {"WatermarkFiles",  KnownTo::Plain, Chooses::Files,  Watermarks, Any},
}};
// clang-format on

QStringList words(const QString& text) { return text.split(u' '); }

QStringList documentExtensions(PanelForm form)
{
    const QString shared = u"pdf png jpg jpeg gif tif tiff"_s;
    if (form == PanelForm::OC)
        return words(shared);
    return words(shared + u" tga targa psd HEIC"_s);
}

QStringList extensionsOf(Extensions extensions, PanelForm form)
{
    const QString scannedTagged = u"jpg jpeg tif tiff JPG JPEG TIF TIFF"_s;
    switch (extensions) {
    case Extensions::Any:
        return {};
    case Extensions::Documents:
        return documentExtensions(form);
    case Extensions::Images:
        return words(u"png jpg jpeg tif tiff HEIC"_s);
    case Extensions::Tagged:
        return words(u"jpg jpeg tif tiff"_s);
    case Extensions::Watermarks:
        return words(u"jpg jpeg tif tiff png JPG JPEG TIF TIFF PNG"_s);
    case Extensions::ScannedTagged:
        return words(scannedTagged);
    case Extensions::ScannedDocuments:
        return words(scannedTagged + u" pdf png gif PDF PNG GIF"_s);
    }
    return {};
}

bool isKnown(KnownTo knownTo, PanelForm form)
{
    return knownTo == KnownTo::Both || (knownTo == KnownTo::OC) == (form == PanelForm::OC);
}

} // namespace

std::optional<PanelMode> panelMode(const QString& name, PanelForm form)
{
    const auto* const row
        = std::find_if(modeRows.begin(), modeRows.end(), [&](const ModeRow& candidate) {
              return name == QLatin1String(candidate.name);
          });
    if (row == modeRows.end() || !isKnown(row->knownTo, form))
        return std::nullopt;
    const bool isBatchSort = name == u"batchSortImages"_s;
    return PanelMode{
        .chooses = row->chooses,
        .allowedTypes = extensionsOf(row->allowed, form),
        .scannedExtensions = extensionsOf(row->scanned, form),
        .message = isBatchSort ? u"Choose source folder"_s : QString()};
}

QStringList scannedFiles(const QString& folder, const QStringList& extensions)
{
    QStringList paths;
    for (const platform::storage::FolderEntry& entry : platform::storage::folderTree(folder)) {
        const bool passes
            = extensions.isEmpty() || extensions.contains(platform::pathExtension(entry.name));
        if (!entry.isFolder && passes)
            paths += entry.path;
    }
    return paths;
}

} // namespace brenvaldo::files
