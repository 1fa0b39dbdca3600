// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_title.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace brenvaldo::views {

namespace {

/// Letter of the orientations by the index of `pubPhotoOrientation`; the first takes all.
constexpr std::array<char16_t, 4> orientations{u'\0', u'L', u'P', u'S'};

QString wantedOrientation(const panels::Panels& panels)
{
    const int index = panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem();
    if (!panels.isShown(panels.vwApplyOn) || index <= 0)
        return {};
    return QString(QChar(orientations.at(static_cast<std::size_t>(std::min(index, 3)))));
}

} // namespace

int photosOfRun(const panels::Panels& panels, const workspace::PhotoList& photos)
{
    const bool takesFiles = panels.isShown(panels.vwFileManagementRename)
        || panels.isShown(panels.vwFileManagementConvert);
    const QString orientation = wantedOrientation(panels);
    const auto& entries = photos.entries();
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), [&](const auto& entry) {
        return entry.myPhotoSelect > 0 && (takesFiles || entry.myRenameSelect == 0)
            && (orientation.isEmpty() || entry.myPhotoOrientation == orientation);
    }));
}

QString runTitle(int photos)
{
    if (photos == 0)
        return QCoreApplication::translate("RunTitle", "Process");
    if (photos == 1)
        return QCoreApplication::translate("RunTitle", "Process 1 photo");
    return QCoreApplication::translate("RunTitle", "Process %1 photos").arg(photos);
}

} // namespace brenvaldo::views
