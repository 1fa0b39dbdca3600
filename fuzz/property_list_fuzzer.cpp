// SPDX-License-Identifier: GPL-3.0-or-later
#include "input_file.h"

#include <platform/storage/property_list.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const brenvaldo::fuzz::InputFile file(data, size);
    static_cast<void>(brenvaldo::platform::storage::readPropertyList(file.path()));
    return 0;
}
