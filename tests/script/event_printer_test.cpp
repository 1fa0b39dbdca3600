// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <script/event_printer.h>
#include <script/scripted_desktop.h>
#include <script/scripted_file_chooser.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <sstream>

using namespace brenvaldo;
using namespace brenvaldo::script;

TEST(EventPrinter, SeparatesFieldsByTabs)
{
    std::ostringstream out;

    EventPrinter(out).print(u"value"_s, {u"tfSize"_s, QString(), u"12 px"_s});

    EXPECT_EQ(out.str(), "value\ttfSize\t\t12 px\n");
}

TEST(EventPrinter, EscapesWhatWouldBreakALine)
{
    std::ostringstream out;

    EventPrinter(out).print(u"alert"_s, {u"a\tb"_s, u"c\nd\re\\n"_s});

    EXPECT_EQ(out.str(), "alert\ta\\tb\tc\\nd\\re\\\\n\n");
}

TEST(EventPrinter, WritesUtf8)
{
    std::ostringstream out;

    EventPrinter(out).print(u"value"_s, {u"\u00C4"_s});

    EXPECT_EQ(out.str(), "value\t\xC3\x84\n");
}

TEST(ScriptedFileChooser, AnswersPanelsInTheOrderOfTheQueue)
{
    std::ostringstream out;
    const EventPrinter printer(out);
    ScriptedFileChooser chooser(printer);
    chooser.queueAnswer({u"/a.jpg"_s, u"/b.jpg"_s});
    chooser.queueCancel();
    chooser.queueAnswer({u"/c.txt"_s});

    EXPECT_EQ(chooser.open({.message = u"Open"_s}), QStringList({u"/a.jpg"_s, u"/b.jpg"_s}));
    EXPECT_EQ(chooser.open({.message = u"Open"_s}), std::nullopt);
    EXPECT_EQ(chooser.save({.message = u"Save"_s}), u"/c.txt"_s);
    EXPECT_EQ(
        out.str(),
        "panel\topen\tOpen\t/a.jpg /b.jpg\n"
        "panel\topen\tOpen\tcancel\n"
        "panel\tsave\tSave\t/c.txt\n"
    );
}

TEST(ScriptedFileChooser, CancelsAPanelThatHasNoAnswer)
{
    std::ostringstream out;
    const EventPrinter printer(out);
    ScriptedFileChooser chooser(printer);

    EXPECT_EQ(chooser.save({.message = u"Save"_s}), std::nullopt);
    EXPECT_EQ(out.str(), "panel\tsave\tSave\tcancel\n");
}

TEST(ScriptedDesktop, PrintsAddressesAndFiles)
{
    std::ostringstream out;
    const EventPrinter printer(out);
    ScriptedDesktop desktop(printer);

    desktop.openUrl(QUrl(u"https://example.com/a b"_s));
    desktop.reveal(u"/photos/a b"_s);

    EXPECT_EQ(out.str(), "opened\thttps://example.com/a%20b\nopened\tfile:///photos/a%20b\n");
}
