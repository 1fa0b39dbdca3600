// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/foundation/toolkit_notes.h>

#include <support/environment.h>
#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QLoggingCategory>

using namespace brenvaldo;

namespace {

class ToolkitNotes : public testing::Test
{
protected:
    ~ToolkitNotes() override { qInstallMessageHandler(nullptr); }

    static void note()
    {
        qDebug("a font is loaded");
        qInfo("a plugin is found");
        qWarning("OpenType support missing for \"Some Face\", script 11");
        static const QLoggingCategory window("qt.qpa.window");
        qCWarning(window) << "This plugin does not propagate hints";
    }
};

} // namespace

TEST_F(ToolkitNotes, StayAway)
{
    platform::keepToolkitNotesAway();
    const test::LogLines log;

    testing::internal::CaptureStderr();
    note();

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(ToolkitNotes, TellWhatIsSevere)
{
    platform::keepToolkitNotesAway();
    const test::LogLines log;

    qCritical("no display can be reached");

    EXPECT_EQ(log.lines(), QStringList{u"no display can be reached"_s});
}

TEST_F(ToolkitNotes, ComeThroughWhereTheyAreAskedFor)
{
    const test::Environment rules("QT_LOGGING_RULES", "qt.*=true");
    platform::keepToolkitNotesAway();

    testing::internal::CaptureStderr();
    qWarning("a note");

    EXPECT_NE(testing::internal::GetCapturedStderr().find("a note"), std::string::npos);
}
