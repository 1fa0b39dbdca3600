// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

namespace {

/// A field with the number of letters that IPTC allows.
Row lengthRow(const QString& label, controls::TextField& field, int longest)
{
    return textRow(label, field, QString::number(longest));
}

} // namespace

ExifPanel::ExifPanel()
    : PanelView(u"vwFileManagementEXIF"_s)
{
    cbClearBeforeAdd.addAlias(u"cbClearCurrentEUC"_s);
    setLayout({
        {Heading{u"EXIF"_s}},
        {textRow(u"Comment"_s, tfExifUserComment)},
        {Row{.fields = {{.control = &cbClearBeforeAdd}}}},
        {Heading{u"IPTC"_s}},
        {lengthRow(u"Title"_s, tfIPTCTitle, 64)},
        {Row{
            .label = u"Keywords"_s,
            .fields = {{.control = &tfIPTCKeyWords, .unit = u"64 each"_s}},
            .hint = u"Parted by semicolons. An empty field clears them, all others leave what "
                    "stands in the photo."_s}},
        {lengthRow(u"Caption"_s, tfIPTCCaption, 2000)},
        {lengthRow(u"Headline"_s, tfIPTCHeadline, 256)},
        {lengthRow(u"Copyright"_s, tfIPTCCopyRight, 128)},
        {textRow(u"Usage terms"_s, tfIPTCCopyRightTerms)},
        {lengthRow(u"Creator"_s, tfIPTCCreator, 32)},
        {lengthRow(u"Creator's title"_s, tfIPTCCreatorTitle, 32)},
        {lengthRow(u"Source"_s, tfIPTCSourceOwner, 32)},
        {Note{u"The numbers tell how many letters the standard allows. Longer texts are written "
              "whole, but some programs cut them."_s}},
        {Heading{u"Only shown"_s}},
        {textRow(u"Contact"_s, tfIPTCImageContactInfo)},
        {textRow(u"Caption writer"_s, tfIPTCEditorContactInfo)},
        {textRow(u"Creator's contact"_s, tfIPTCCreatorContactInfo)},
        {Heading{u"Write"_s}},
        {Row{
            .fields = {{.control = &btnApplyExifUserComment}},
            .hint = u"The photo's own file is changed; its picture stays as it is."_s}},
        {Table{
            .table = &themMetaLogTable,
            .columns
            = {{.key = u"LogDate"_s, .title = u"Date"_s},
               {.key = u"LogStatus"_s, .title = u"Status"_s},
               {.key = u"LogI"_s, .title = u"Photo"_s}},
            .accessibleName = u"Photos written one by one"_s,
            .emptyText = u"Nothing written yet. The button above writes into the selected photo "
                         "and notes it here."_s}},
    });
}

} // namespace brenvaldo::panels
