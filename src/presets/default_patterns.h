// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace brenvaldo::presets {

/// A tile that can be laid side by side without a seam; grey on nothing.
struct DefaultPattern
{
    QString name; ///< of its file, without extension
    QImage tile;
};

/// The patterns that a new library starts with.
[[nodiscard]] std::vector<DefaultPattern> defaultPatterns();

/// Makes `folder` with one PNG file a pattern; a folder that exists is left alone.
void makeDefaultPatterns(const QString& folder);

} // namespace brenvaldo::presets
