// SPDX-License-Identifier: GPL-3.0-or-later
#include "help_sheets.h"

#include "messenger.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::services {

namespace {

struct HelpAction
{
    QString name;
    QString titleKey;
    QString textKey;
};

QList<HelpAction> helpActions()
{
    return {
        {u"hCallExportHTMLHelp"_s, u"exportHTML"_s, u"exportHTMLMessage"_s},
        {u"hCallPreviewHelp"_s, u"callPreviewTitle"_s, u"callPreviewMessage"_s},
        {u"hCallCActionsHelp"_s, u"callCActionsTitle"_s, u"callCActionsMessage"_s},
        {u"hCallAppLibraryHelp"_s, u"Application Support Libraries"_s, u"fromLibMessage"_s},
        {u"myExifInfo"_s, u"Metadata"_s, u"MetaDataHowTo"_s},
        {u"myNumberingInfo"_s, u"NumberingStart"_s, u"NumberingHowTo"_s},
        {u"myXportToOstrovelInfo"_s, u"isSave"_s, u"exportActionOstrovel"_s},
    };
}

const QString sheetControlClass = u"cSheetControl"_s;

} // namespace

HelpSheets::HelpSheets(panels::Panels& panels)
    : m_sheet(panels.wwInfoWindow)
{
}

void HelpSheets::registerActions(controls::ActionRegistry& actions)
{
    for (const HelpAction& help : helpActions()) {
        actions.add(sheetControlClass, help.name, [this, help](const auto&) {
            show(help.titleKey, help.textKey);
        });
    }
    actions.add(sheetControlClass, u"hCallForHelp"_s, [this](const controls::Sender& sender) {
        hCallForHelp(sender.tag);
    });
    actions.add(sheetControlClass, u"closeInfoSheetObjC"_s, [this](const auto&) {
        closeInfoSheetObjC();
    });
}

void HelpSheets::hCallForHelp(int tag)
{
    switch (tag) {
    case 1:
        return show(u"isManSort"_s, u"isManSortMessage"_s);
    case 2:
        return show(u"isBatchSort"_s, u"isBatchSortMessage"_s);
    case 3:
        return show(u"isBatchExif"_s, u"isBatchExifMessage"_s);
    default:
        return;
    }
}

void HelpSheets::closeInfoSheetObjC() { m_sheet.sheet.close(); }

void HelpSheets::show(const QString& titleKey, const QString& textKey)
{
    m_sheet.sheet.open();
    m_sheet.tfInfoTitle.setStringValue(Messenger::formatted(titleKey));
    m_sheet.tfInfoDescription.setStringValue(Messenger::formatted(textKey));
}

} // namespace brenvaldo::services
