// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/help_sheets.h>
#include <services/messenger.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QLocale>

using namespace Qt::StringLiterals;
using namespace brenvaldo;
using services::Messenger;

namespace {

/// Speaks a language for as long as it lives.
class Speaking
{
public:
    explicit Speaking(const QString& language) { QLocale::setDefault(QLocale(language)); }
    Speaking(const Speaking&) = delete;
    Speaking& operator=(const Speaking&) = delete;
    Speaking(Speaking&&) = delete;
    Speaking& operator=(Speaking&&) = delete;
    ~Speaking() { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

class Help : public testing::Test
{
protected:
    Help() { sheets.registerActions(actions); }

    /// The title and the beginning of the text.
    QString shownBy(const QString& action, int tag = 0)
    {
        panels.wwInfoWindow.sheet.close();
        actions.send(action, {.tag = tag});
        if (!panels.wwInfoWindow.sheet.isOpen())
            return u"closed"_s;
        return panels.wwInfoWindow.tfInfoTitle.stringValue() + u": "_s
            + panels.wwInfoWindow.tfInfoDescription.stringValue().section(u' ', 0, 3);
    }

    Speaking english{u"en_GB"_s};
    panels::Panels panels;
    controls::ActionRegistry actions;
    services::HelpSheets sheets{panels};
};

} // namespace

TEST_F(Help, IsShownByTheActionOfItsSubject)
{
    EXPECT_EQ(shownBy(u"hCallExportHTMLHelp"_s), u"Web gallery: A web gallery is"_s);
    EXPECT_EQ(shownBy(u"hCallPreviewHelp"_s), u"Preview: With \"Show preview\" ticked,"_s);
    EXPECT_EQ(shownBy(u"hCallCActionsHelp"_s), u"File-name actions: A file-name action is"_s);
    EXPECT_EQ(
        shownBy(u"hCallAppLibraryHelp"_s), u"Support folder: Patterns, watermarks and chains"_s
    );
    EXPECT_EQ(shownBy(u"myExifInfo"_s), u"Metadata: Here you write a"_s);
    EXPECT_EQ(shownBy(u"myNumberingInfo"_s), u"Numbering: The files of a"_s);
    EXPECT_EQ(shownBy(u"myXportToOstrovelInfo"_s), u"Export a chain: The chain of file-name"_s);
}

TEST_F(Help, OfSortingAndCommentsFollowsTheTag)
{
    EXPECT_EQ(shownBy(u"hCallForHelp"_s, 1), u"Sort by hand: Choose up to six"_s);
    EXPECT_EQ(shownBy(u"hCallForHelp"_s, 2), u"Sort in batch mode: Photos and files are"_s);
    EXPECT_EQ(shownBy(u"hCallForHelp"_s, 3), u"EXIF and IPTC for many photos: The texts of this"_s);
    EXPECT_EQ(shownBy(u"hCallForHelp"_s, 4), u"closed"_s);
    EXPECT_EQ(shownBy(u"hCallForHelp"_s, 0), u"closed"_s);
}

TEST_F(Help, IsClosedByItsButton)
{
    (void)shownBy(u"myExifInfo"_s);
    actions.send(panels.wwInfoWindow.btnCloseInfo.actions().first());
    EXPECT_FALSE(panels.wwInfoWindow.sheet.isOpen());
}

TEST(LongTexts, AreInTheLanguageOfTheUser)
{
    const auto preview = [](const QString& language) {
        const Speaking speaking(language);
        return Messenger::getLangStr(u"callPreviewTitle"_s, {}, {});
    };
    EXPECT_EQ(preview(u"en_US"_s), u"Preview"_s);
    EXPECT_EQ(preview(u"nl_BE"_s), u"Voorbeeld"_s);
    EXPECT_EQ(preview(u"fr_FR"_s), u"Aperçu"_s);
    EXPECT_EQ(preview(u"de_AT"_s), u"Vorschau"_s);
    EXPECT_EQ(preview(u"fi_FI"_s), u"Preview"_s);
}

TEST(LongTexts, AreAllThereInEveryLanguage)
{
    for (const QString& language : {u"en"_s, u"nl"_s, u"fr"_s, u"de"_s}) {
        const Speaking speaking(language);
        for (const QString& key :
             {u"exportHTML"_s,
              u"exportHTMLMessage"_s,
              u"callPreviewTitle"_s,
              u"callPreviewMessage"_s,
              u"callCActionsTitle"_s,
              u"callCActionsMessage"_s,
              u"Application Support Libraries"_s,
              u"fromLibMessage"_s,
              u"MetaDataHowTo"_s,
              u"NumberingStart"_s,
              u"NumberingHowTo"_s,
              u"isSave"_s,
              u"exportActionOstrovel"_s,
              u"isManSort"_s,
              u"isManSortMessage"_s,
              u"isBatchSort"_s,
              u"isBatchSortMessage"_s,
              u"isBatchExif"_s,
              u"isBatchExifMessage"_s})
            EXPECT_NE(Messenger::getLangStr(key, {}, {}), key) << language.toStdString();
    }
}

TEST(LongTexts, AreTheDefaultOrTheKeyWhereThereIsNone)
{
    EXPECT_EQ(Messenger::getLangStr(u"gone"_s, u"default"_s, {}), u"default"_s);
    EXPECT_EQ(Messenger::getLangStr(u"gone"_s, {}, {}), u"gone"_s);
    EXPECT_EQ(Messenger::formatted(u"100%% gone"_s), u"100% gone"_s);
}
