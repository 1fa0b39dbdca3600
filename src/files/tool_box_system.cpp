// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_copy.h"
#include "tool_box.h"
#include "url_text.h"

#include <platform/drawing/fonts.h>
#include <platform/foundation/literals.h>

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace brenvaldo::files {

namespace {

QStringList compressionTitles() { return u"1 2 3 4 5 6 7 8 9"_s.split(u' '); }

} // namespace

cToolBox::cToolBox(const ToolBoxSurroundings& surroundings)
    : pubFileType(
        u"pubFileType"_s, photoCopyTypes(), static_cast<int>(photoCopyTypes().indexOf(u"jpeg"_s))
    )
    , pubJPEGcompression(
          u"pubJPEGcompression"_s,
          compressionTitles(),
          static_cast<int>(compressionTitles().size()) - 1
      )
    , avProjectFileName(u"avProjectFileName"_s)
    , m_surroundings(surroundings)
    , m_tagNames(u"tagNames"_s)
    , m_typeChosen(pubFileType.changed.connect([this] { hChooseFileType(); }))
    , m_compressionChosen(pubJPEGcompression.changed.connect([this] { hChooseCompType(); }))
{
}

QList<QUrl> cToolBox::hGetFilesInDir(const QString& folder)
{
    QList<QUrl> files;
    for (const platform::storage::FolderEntry& entry : platform::storage::folderEntries(folder))
        files += QUrl::fromLocalFile(entry.path);
    return files;
}

void cToolBox::hShowURL(const QString& path) const
{
    QUrl url;
    url.setScheme(u"file"_s);
    url.setPath(withEncodedQuerySigns(path), QUrl::TolerantMode);
    m_surroundings.desktop.openUrl(url);
}

void cToolBox::hShowURL2(const QString& path) const { hShowURL(path); }

std::optional<QUrl> cToolBox::hNSStrToUrl(const QString& text)
{
    return urlFromText(withEncodedQuerySigns(text));
}

QString cToolBox::hGetMacOSVersion() { return u"109+"_s; }

bool cToolBox::isDarkMode()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness()
        > palette.color(QPalette::Window).lightness();
}

bool cToolBox::icmIsDarkMode() { return isDarkMode(); }

QStringList visibleFontNames(const QStringList& names)
{
    QStringList visible;
    std::copy_if(names.begin(), names.end(), std::back_inserter(visible), [](const QString& name) {
        return !name.startsWith(u'.');
    });
    return visible;
}

QStringList cToolBox::hGetAllInstalledFonts()
{
    return visibleFontNames(platform::drawing::installedFontNames());
}

} // namespace brenvaldo::files
