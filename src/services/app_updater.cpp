// SPDX-License-Identifier: GPL-3.0-or-later
#include "app_updater.h"

#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/numbers.h>

#include <QCoreApplication>

#include <utility>

namespace brenvaldo::services {

namespace {

QString fieldAt(const QStringList& fields, int index)
{
    if (index >= fields.size())
        throw platform::RangeError(
            u"index %1 beyond bounds [0 .. %2]"_s.arg(index).arg(fields.size() - 1)
        );
    return fields.at(index);
}

} // namespace

cAppUpdater::cAppUpdater(Links links)
    : m_links(std::move(links))
{
}

void cAppUpdater::registerActions(controls::ActionRegistry& actions)
{
    actions.add(u"cAppUpdater"_s, u"getAppVersion"_s, [this](const auto&) {
        getAppVersion(buildNumberOf(QCoreApplication::applicationVersion()));
    });
    actions.add(u"cAppUpdater"_s, u"closeApplicationVersionSheetObjC"_s, [this](const auto&) {
        closeApplicationVersionSheetObjC();
    });
}

void cAppUpdater::getAppVersion(std::int32_t currentBuild)
{
    constexpr std::chrono::seconds patience(20);
    m_links.web.fetch(m_links.versionFile(), patience, [this, currentBuild](const auto& contents) {
        read(contents, currentBuild);
    });
}

void cAppUpdater::closeApplicationVersionSheetObjC()
{
    m_links.panels.wwApplicationVersionWindow.sheet.close();
}

void cAppUpdater::hCallApplicationUpdate(
    const QString& name, const QString& version, const QString& text
)
{
    auto& sheet = m_links.panels.wwApplicationVersionWindow;
    sheet.sheet.open();
    sheet.tfNewApplicationVersion.setStringValue(name + u' ' + version);
    sheet.tvWhatsNew.setStringValue(sheet.tvWhatsNew.stringValue() + text);
}

void cAppUpdater::read(const std::optional<QByteArray>& contents, std::int32_t currentBuild)
{
    if (!contents || contents->isEmpty())
        return platform::log(u"failed to read"_s);
    m_html = QString::fromUtf8(*contents);
    try {
        compare(currentBuild);
    } catch (const platform::Exception& exception) {
        platform::log(u"Mgr throws an exception: "_s + exception.reason());
    }
}

void cAppUpdater::compare(std::int32_t currentBuild)
{
    const QStringList fields = m_html.split(u';');
    if (platform::intValue(fieldAt(fields, 1)) <= currentBuild)
        return;
    const QString text = fieldAt(fields, 0) + u' ' + fieldAt(fields, 2);
    auto& sheet = m_links.panels.wwApplicationVersionWindow;
    sheet.sheet.open();
    sheet.tfNewApplicationVersion.setStringValue(text);
}

std::int32_t buildNumberOf(const QString& version)
{
    return platform::intValue(QString(version).remove(u'.'));
}

} // namespace brenvaldo::services
