// SPDX-License-Identifier: GPL-3.0-or-later
#include "script_program.h"

#include <platform/foundation/library_notes.h>
#include <platform/foundation/toolkit_notes.h>
#include <platform/graphics/engine.h>

#include <QFile>
#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    brenvaldo::platform::keepToolkitNotesAway();
    brenvaldo::platform::keepLibraryNotesAway();
    const brenvaldo::platform::graphics::Engine engine;
    // Every argument is the name of a script, none an option of the toolkit.
    int applicationArguments = 1;
    const QGuiApplication application(applicationArguments, argv);

    QStringList files;
    for (int index = 1; index < argc; ++index)
        files.append(QFile::decodeName(argv[index]));
    return brenvaldo::script::runScripts(
        files, {.in = std::cin, .out = std::cout, .errors = std::cerr}
    );
}
