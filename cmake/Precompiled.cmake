# SPDX-License-Identifier: GPL-3.0-or-later
# Headers of the standard library, Qt and GoogleTest that nearly every file reads, read once for each kind of
# target. Every file still includes what it uses: the header checks compile without them.

set(brenvaldo_precompiled_core
    <algorithm>
    <array>
    <cmath>
    <cstdint>
    <functional>
    <memory>
    <optional>
    <vector>
    <QByteArray>
    <QDateTime>
    <QDir>
    <QFile>
    <QHash>
    <QList>
    <QString>
    <QStringList>
    <QUrl>
    <QVariant>
)
set(brenvaldo_precompiled_widgets ${brenvaldo_precompiled_core} <QApplication> <QPainter> <QtWidgets>)
set(brenvaldo_precompiled_tests ${brenvaldo_precompiled_core} <gmock/gmock.h> <gtest/gtest.h>)

# brenvaldo_precompile(<target> <core|widgets|tests>): the first target of a kind makes the file, the others use it.
function(brenvaldo_precompile target kind)
  get_property(maker GLOBAL PROPERTY brenvaldo_precompiled_${kind})
  if(maker)
    target_precompile_headers(${target} REUSE_FROM ${maker})
  else()
    target_precompile_headers(${target} PRIVATE ${brenvaldo_precompiled_${kind}})
    set_property(GLOBAL PROPERTY brenvaldo_precompiled_${kind} ${target})
  endif()
endfunction()
