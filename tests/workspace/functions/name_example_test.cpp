// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/functions/name_example.h>

#include <files/keep_number.h>
#include <platform/foundation/literals.h>

#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using workspace::nameExample;

namespace {

class NameExample : public testing::Test
{
protected:
    void add(const QString& path, int tick = 1)
    {
        workspace::cCollectionViewItem entry;
        entry.myPhotoDescription = path;
        entry.myPhotoSelect = tick;
        photos.append(entry);
    }

    panels::RenamePanel panel;
    workspace::PhotoList photos;
};

} // namespace

TEST_F(NameExample, AsksForFiles)
{
    EXPECT_EQ(nameExample(panel, photos), u"Add files to see an example of their new names."_s);
    add(u"/in/a.jpg"_s, 0);
    EXPECT_EQ(nameExample(panel, photos), u"Add files to see an example of their new names."_s);
}

TEST_F(NameExample, ShowsTheFirstTickedFile)
{
    add(u"/in/a.jpg"_s, 0);
    add(u"/in/b.jpg"_s);
    add(u"/in/c.jpg"_s);
    panel.tbvFileRenaming.selectIndex(2);
    panel.tfPrefixToAdd.setStringValue(u"x-"_s);

    EXPECT_EQ(nameExample(panel, photos), u"b.jpg\n\u2192 x-b.jpg"_s);
}

TEST_F(NameExample, NumbersAsTheFirstOfARunAndLeavesTheNumberAsItWas)
{
    QString& number = files::cKeepNumber::sharedNumber().myNumberString;
    number = u"41"_s;
    add(u"/in/a.jpg"_s);
    panel.tbvFileRenaming.selectIndex(4);
    panel.tfNumberingDigits.setStringValue(u"3"_s);

    EXPECT_EQ(nameExample(panel, photos), u"a.jpg\n\u2192 a001.jpg"_s);
    EXPECT_EQ(nameExample(panel, photos), u"a.jpg\n\u2192 a001.jpg"_s);
    EXPECT_EQ(number, u"41"_s);
}

TEST_F(NameExample, TellsWhyThereIsNoNewName)
{
    add(u"/in/abcdefghij.jpg"_s);
    EXPECT_EQ(nameExample(panel, photos), u"abcdefghij.jpg\nkeeps its name."_s);

    panel.tfStripCharStart.setStringValue(u"8"_s);
    panel.tfStripCharStop.setStringValue(u"9"_s);
    EXPECT_EQ(
        nameExample(panel, photos),
        u"abcdefghij.jpg\nThe range reaches beyond the end of this name: the run would end here."_s
    );

    panel.tfStripCharStart.setStringValue(QString());
    panel.btStripPreserveExtension.setState(0);
    panel.tfStripChar.setStringValue(u"abcdefghij.jpg"_s);
    EXPECT_EQ(
        nameExample(panel, photos),
        u"abcdefghij.jpg\nNo name would be left: this file would be passed over."_s
    );
}

TEST_F(NameExample, KeepsTheLogQuiet)
{
    const test::LogLines log;
    add(u"/in/a-b.jpg"_s);
    panel.tfStripTextFrag.setStringValue(u"-"_s);

    EXPECT_EQ(nameExample(panel, photos), u"a-b.jpg\n\u2192 -b.jpg"_s);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(NameExample, CutsLongNamesAndLineBreaks)
{
    add(u"/in/two\nlines.jpg"_s);
    EXPECT_EQ(nameExample(panel, photos), u"two lines.jpg\nkeeps its name."_s);

    photos.clear();
    add(u"/in/"_s + QString(40, u'a') + u".jpg"_s);
    panel.tbvFileRenaming.selectIndex(2);
    panel.tfPrefixToAdd.setStringValue(u"b"_s);
    EXPECT_EQ(
        nameExample(panel, photos),
        QString(40, u'a') + u".jpg\n\u2192 b"_s + QString(27, u'a') + u'\u2026' + QString(12, u'a')
            + u".jpg"_s
    );
}
