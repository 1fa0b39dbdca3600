// SPDX-License-Identifier: GPL-3.0-or-later
#include "library_notes.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include <unistd.h>

namespace brenvaldo::platform {

namespace {

bool isLibraryNote(std::string_view line)
{
    constexpr std::array<std::string_view, 2> beginnings = {"./lib/jxl/", "Fontconfig "};
    return std::ranges::any_of(beginnings, [line](std::string_view beginning) {
        return line.starts_with(beginning);
    });
}

void writeAll(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = ::write(STDERR_FILENO, text.data(), text.size());
        if (count <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

ssize_t writeLines(void* /*cookie*/, const char* bytes, std::size_t size)
{
    std::string_view text(bytes, size);
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n')); // without its end
        const std::size_t taken = std::min(line.size() + 1, text.size());
        if (!isLibraryNote(line))
            writeAll(text.substr(0, taken));
        text.remove_prefix(taken);
    }
    return static_cast<ssize_t>(size);
}

} // namespace

void keepLibraryNotesAway()
{
    cookie_io_functions_t functions = {};
    functions.write = writeLines;
    std::FILE* lines = ::fopencookie(nullptr, "w", functions);
    if (!lines)
        return;
    std::setvbuf(lines, nullptr, _IOLBF, BUFSIZ);
    stderr = lines; // the libraries print to whatever stands there
}

} // namespace brenvaldo::platform
