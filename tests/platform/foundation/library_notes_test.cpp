// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/library_notes.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <gtest/gtest.h>

#include <cstdio>

using namespace brenvaldo;

namespace {

class LibraryNotes : public testing::Test
{
protected:
    ~LibraryNotes() override
    {
        std::fclose(stderr);
        stderr = m_before;
    }

private:
    std::FILE* m_before = stderr;
};

} // namespace

TEST_F(LibraryNotes, StayAwayFromStandardError)
{
    platform::keepLibraryNotesAway();

    testing::internal::CaptureStderr();
    std::fprintf(stderr, "./lib/jxl/decode.cc:%d: frame processing failed\n", 1182);
    std::fputs("Fontconfig warning: \"fonts.conf\", line 5: ", stderr);
    std::fputs("unknown element \"its:rules\"\n", stderr);
    std::fputs("Fontconfig error: Cannot load default config file\nkept\n", stderr);

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "kept\n");
}

TEST_F(LibraryNotes, LeaveTheLogAlone)
{
    platform::keepLibraryNotesAway();

    testing::internal::CaptureStderr();
    platform::log(u"Failed to read image ./lib/jxl/a.jxl: Fontconfig\nsecond line"_s);

    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "Failed to read image ./lib/jxl/a.jxl: Fontconfig\nsecond line\n"
    );
}
