// SPDX-License-Identifier: GPL-3.0-or-later
#include "function_title.h"

#include <workspace/functions/functions.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace brenvaldo::views {

namespace {

/// A change of a photo's own file, by the action that made it.
struct Edit
{
    QLatin1String action;
    const char* title;
};

constexpr std::array edits{
    Edit{QLatin1String("hRotateRight"), QT_TRANSLATE_NOOP("FunctionTitle", "Rotate right")},
    Edit{QLatin1String("hRotateLeft"), QT_TRANSLATE_NOOP("FunctionTitle", "Rotate left")},
    Edit{QLatin1String("hFlipHorizontal"), QT_TRANSLATE_NOOP("FunctionTitle", "Flip")},
    Edit{QLatin1String("hFlipVertical"), QT_TRANSLATE_NOOP("FunctionTitle", "Flip")},
};

/// The plain title of a function or an action; null for what has none.
const char* plainTitle(const QString& name)
{
    static const workspace::Functions functions(workspace::functions());
    if (const workspace::Function* row = functions.withId(name))
        return row->title;
    const auto edit = std::find_if(edits.begin(), edits.end(), [&](const Edit& candidate) {
        return name == candidate.action;
    });
    return edit == edits.end() ? nullptr : edit->title;
}

} // namespace

QString functionTitle(const QString& function)
{
    const char* title = plainTitle(function);
    return title ? QCoreApplication::translate("FunctionTitle", title) : function;
}

} // namespace brenvaldo::views
