// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::panels {

/// The looks of a text watermark, in the order of the pop-up.
enum class TextEffect {
    Plain,
    Relief1,
    Relief2,
    Relief3,
    Relief4,
    Relief5,
    ColoredRelief,
    Photo,
    NoirPhoto,
    Relief8
};

} // namespace brenvaldo::panels
