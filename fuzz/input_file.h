// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

namespace brenvaldo::fuzz {

/// An input as a file in memory, for readers that take a path.
class InputFile
{
public:
    InputFile(const std::uint8_t* data, std::size_t size)
        : m_descriptor(::memfd_create("input", 0))
    {
        if (m_descriptor < 0 || ::write(m_descriptor, data, size) != static_cast<ssize_t>(size))
            std::abort();
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    InputFile(InputFile&&) = delete;
    InputFile& operator=(InputFile&&) = delete;
    ~InputFile() { ::close(m_descriptor); }

    [[nodiscard]] QString path() const { return u"/proc/self/fd/%1"_s.arg(m_descriptor); }

private:
    int m_descriptor;
};

} // namespace brenvaldo::fuzz
