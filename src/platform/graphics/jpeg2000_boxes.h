// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "file_labels.h"

#include <QByteArray>
#include <QIODevice>

namespace brenvaldo::platform {

/// The file with these labels in its header box; unchanged where the file has no such box.
[[nodiscard]] QByteArray withLabels(const QByteArray& file, const FileLabels& labels);

/// The labels of the file that begins with `head`.
[[nodiscard]] FileLabels readLabels(const QByteArray& head);

/// True when the code stream of the open file reaches its end; false for a file that was cut off.
[[nodiscard]] bool holdsWholeCodeStream(QIODevice& file);

} // namespace brenvaldo::platform
