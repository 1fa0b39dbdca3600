// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_builder.h"

#include <QList>
#include <QPoint>

namespace brenvaldo::test {

/// Where a face is drawn; from brow to chin it is about as high as its size.
struct DrawnFace
{
    QPoint middle;
    int size = 200;
};

/// A photo with drawn faces that a face detector takes for real ones, on a plain ground.
[[nodiscard]] PhotoBuilder photoOfFaces(QSize size, const QList<DrawnFace>& faces);

} // namespace brenvaldo::test
