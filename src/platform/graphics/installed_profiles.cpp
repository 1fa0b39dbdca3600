// SPDX-License-Identifier: GPL-3.0-or-later
#include "installed_profiles.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <iterator>

namespace brenvaldo::platform::graphics {

namespace {

QStringList filesBelow(const QString& folder)
{
    QDirIterator files(
        folder,
        {u"*.icc"_s, u"*.icm"_s},
        QDir::Files,
        QDirIterator::Subdirectories | QDirIterator::FollowSymlinks
    );
    QStringList paths;
    while (files.hasNext())
        paths.append(files.next());
    paths.sort();
    return paths;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return openRegularFile(file) ? file.readAll() : QByteArray();
}

std::vector<ColorSpace> spacesOf(const QStringList& folders)
{
    std::vector<ColorSpace> spaces;
    QSet<QByteArray> known;
    for (const QString& folder : folders) {
        for (const QString& path : filesBelow(folder)) {
            const QByteArray profile = bytesOf(path);
            auto space = known.contains(profile) ? std::nullopt : colorSpaceOf(profile);
            if (!space)
                continue;
            known.insert(profile);
            if (space->name.isEmpty())
                space->name = QFileInfo(path).completeBaseName();
            spaces.push_back(*std::move(space));
        }
    }
    return spaces;
}

} // namespace

QStringList profileFolders()
{
    QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    QStringList folders{data.takeFirst() + u"/icc"_s, QDir::homePath() + u"/.color/icc"_s};
    for (const QString& folder : data)
        folders.append(folder + u"/color/icc"_s);
    folders.append(u"/var/lib/colord/icc"_s);
    return folders;
}

std::vector<ColorSpace> installedColorSpaces(const QStringList& folders)
{
    const std::vector<ColorSpace> found = spacesOf(folders);
    std::vector<ColorSpace> spaces;
    using enum ColorModel;
    for (const ColorModel model : {Cmyk, Rgb, Lab, Gray}) {
        const auto before = spaces.size();
        std::copy_if(
            found.begin(),
            found.end(),
            std::back_inserter(spaces),
            [model](const auto& space) { return space.model == model; }
        );
        if (model == Rgb && spaces.size() == before)
            spaces.push_back(standardColorSpace());
    }
    return spaces;
}

} // namespace brenvaldo::platform::graphics
