// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <imaging/result_word.h>

#include <ostream>

namespace brenvaldo::imaging {

// Found by GoogleTest when an assertion prints a result word.
inline void PrintTo(ResultWord word, std::ostream* out) { *out << text(word).toStdString(); }

} // namespace brenvaldo::imaging
