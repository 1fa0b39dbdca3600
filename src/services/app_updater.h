// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <panels/panels.h>
#include <platform/services/web_fetcher.h>

#include <QUrl>

namespace brenvaldo::services {

/// Looks whether the maker has a newer version, and tells of it in a sheet.
class cAppUpdater
{
public:
    /// All must outlive this object.
    struct Links
    {
        panels::Panels& panels;
        platform::services::WebFetcher& web;
        std::function<QUrl()> versionFile; ///< its address
    };

    explicit cAppUpdater(Links links);

    void registerActions(controls::ActionRegistry& actions);

    /// Asks for the version file; the sheet opens later, when the file's build number is above
    /// `currentBuild`. What goes wrong stands in the log.
    void getAppVersion(std::int32_t currentBuild);

    void closeApplicationVersionSheetObjC();

    /// The same sheet for a version that is known; the text is added to those of before.
    void hCallApplicationUpdate(const QString& name, const QString& version, const QString& text);

    /// The last version file that was read.
    [[nodiscard]] const QString& html() const { return m_html; }

private:
    void read(const std::optional<QByteArray>& contents, std::int32_t currentBuild);
    void compare(std::int32_t currentBuild);

    Links m_links;
    QString m_html;
};

/// What the version file is compared with: 902 for version 9.0.2.
[[nodiscard]] std::int32_t buildNumberOf(const QString& version);

} // namespace brenvaldo::services
