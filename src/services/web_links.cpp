// SPDX-License-Identifier: GPL-3.0-or-later
#include "web_links.h"

#include <files/web_addresses.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::services {

namespace {

struct WebLink
{
    QString action;
    QString addressKey;
};

QList<WebLink> webLinks()
{
    return {
        {u"hGoToSupportPageURL"_s, u"supportPage"_s},
        {u"hGoToFeedbackPageURL"_s, u"feedbackPage"_s},
        {u"hGoToWebPageURL"_s, u"homePage"_s},
        {u"hAskForReviewURL"_s, u"reviewPage"_s},
        {u"goToProductPage"_s, u"productPage"_s},
    };
}

} // namespace

void registerWebLinks(controls::ActionRegistry& actions, platform::storage::Desktop& desktop)
{
    for (const WebLink& link : webLinks()) {
        actions.add(u"cGUIcontrols"_s, link.action, [&desktop, key = link.addressKey](const auto&) {
            desktop.openUrl(QUrl(u"https://"_s + files::webAddress(key)));
        });
    }
}

} // namespace brenvaldo::services
