// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "header_facts.h"

#include <QByteArray>
#include <QByteArrayView>

namespace brenvaldo::platform::codecs {

/// The file with these facts in its header box; unchanged where the file has no such box.
[[nodiscard]] QByteArray withHeaderFacts(const QByteArray& file, const HeaderFacts& facts);

/// The facts in the header box of the file.
[[nodiscard]] HeaderFacts readJpeg2000HeaderFacts(QByteArrayView file);

/// True when the code stream of the file reaches its end; false for a file that was cut off.
[[nodiscard]] bool holdsWholeCodeStream(QByteArrayView file);

} // namespace brenvaldo::platform::codecs
