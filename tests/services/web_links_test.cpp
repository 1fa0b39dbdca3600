// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/web_links.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo;

namespace {

class LastAddress : public platform::storage::Desktop
{
public:
    void openUrl(const QUrl& url) override { address = url.toString(); }
    void reveal(const QString&) override { }

    QString address;
};

} // namespace

TEST(WebLinks, OpenThePagesOfTheMaker)
{
    LastAddress desktop;
    controls::ActionRegistry actions;
    services::registerWebLinks(actions, desktop);
    const auto openedBy = [&](const QString& action) {
        actions.send(action);
        return desktop.address;
    };
    EXPECT_EQ(
        openedBy(u"hGoToSupportPageURL"_s), u"https://www.brenvaldo.example/docs/Brenvaldo.html"_s
    );
    EXPECT_EQ(
        openedBy(u"hGoToFeedbackPageURL"_s), u"https://www.brenvaldo.example/DVsupport.php"_s
    );
    EXPECT_EQ(openedBy(u"hGoToWebPageURL"_s), u"https://www.brenvaldo.example"_s);
    EXPECT_EQ(
        openedBy(u"hAskForReviewURL"_s),
        u"https://store.brenvaldo.example/brenvaldo?ls=1&mt=12&action=write-review"_s
    );
    EXPECT_EQ(
        openedBy(u"goToProductPage"_s), u"https://www.brenvaldo.example/products/brenvaldo.html"_s
    );
}
