// SPDX-License-Identifier: GPL-3.0-or-later
#include "info_sheet.h"

#include "common_rows.h"

namespace brenvaldo::panels {

InfoSheet::InfoSheet()
    : PanelView(u"wwInfoWindow"_s)
{
    tfInfoTitle.setEnabled(false);
    tfInfoDescription.setEnabled(false);
    setLayout({
        {textRow(u"About"_s, tfInfoTitle)},
        {Row{.fields = {{.control = &tfInfoDescription, .accessibleName = u"Help"_s}}}},
        {Row{.fields = {{.control = &btnCloseInfo}}}},
    });
}

ApplicationVersionSheet::ApplicationVersionSheet()
    : PanelView(u"wwApplicationVersionWindow"_s)
{
    tfNewApplicationVersion.setEnabled(false);
    tvWhatsNew.setEnabled(false);
    setLayout({
        {textRow(u"New version"_s, tfNewApplicationVersion)},
        {Row{.fields = {{.control = &tvWhatsNew, .accessibleName = u"What is new"_s}}}},
        {Row{.fields = {{.control = &btnCloseVersion}}}},
    });
}

} // namespace brenvaldo::panels
