// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>

#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <glib.h>

using namespace brenvaldo;

TEST(Engine, KeepsTheNotesOfItsLibrariesAway)
{
    const test::LogLines log;
    testing::internal::CaptureStderr();

    g_log("GLib-GObject", G_LOG_LEVEL_WARNING, "value \"0\" is out of range");
    g_log("GLib", G_LOG_LEVEL_MESSAGE, "a file is read");

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(log.lines(), QStringList());
}

TEST(Engine, TellsOfItsOwnWarningsAndOfWhatIsSevere)
{
    const test::LogLines log;

    g_log("VIPS", G_LOG_LEVEL_WARNING, "PLTE: CRC error");
    g_log("GLib-GObject", G_LOG_LEVEL_CRITICAL, "not an object");

    EXPECT_EQ(
        log.lines(), (QStringList{u"VIPS: PLTE: CRC error"_s, u"GLib-GObject: not an object"_s})
    );
}
