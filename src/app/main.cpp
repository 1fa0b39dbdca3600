// SPDX-License-Identifier: GPL-3.0-or-later
#include "application.h"
#include "dialog_printer.h"
#include "sharing_menu.h"
#include "single_instance.h"

#include <platform/foundation/library_notes.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/toolkit_notes.h>
#include <platform/foundation/user_defaults.h>
#include <platform/graphics/engine.h>
#include <views/look/desktop_scheme.h>
#include <views/look/theme.h>
#include <views/window/main_window.h>
#include <views/window/qt_desktop.h>
#include <views/window/qt_file_chooser.h>
#include <workspace/workspace.h>

#include <QFileInfo>
#include <QIcon>
#include <QScreen>
#include <QTimer>

using namespace brenvaldo;

namespace {

QStringList filesOfCommandLine()
{
    QStringList files;
    const QStringList arguments = QApplication::arguments();
    for (qsizetype index = 1; index < arguments.size(); ++index)
        files.append(QFileInfo(arguments.at(index)).absoluteFilePath());
    return files;
}

void nameProgram()
{
    QApplication::setApplicationName(u"Brenvaldo"_s);
    QApplication::setApplicationVersion(QString::fromUtf8(BRENVALDO_VERSION));
    QGuiApplication::setDesktopFileName(u"example.dravoth.Brenvaldo"_s);
    QApplication::setWindowIcon(QIcon(u":/application/brenvaldo.svg"_s));
}

} // namespace

int main(int argc, char** argv)
{
    platform::keepToolkitNotesAway();
    platform::keepLibraryNotesAway();
    const platform::graphics::Engine engine;
    app::Application application(argc, argv);
    nameProgram();
    const QStringList files = filesOfCommandLine();
    app::SingleInstance instance(app::instanceSocketPath());
    if (instance.handOver(files))
        return 0;
    instance.listen();

    views::applyTheme();
    platform::UserDefaults defaults;
    views::QtFileChooser chooser;
    views::QtDesktop desktop;
    app::DialogPrinter printer;
    app::SharingMenu sharing(desktop);
    workspace::Workspace workspace(
        {.chooser = chooser,
         .desktop = desktop,
         .defaults = defaults,
         .printer = &printer,
         .sharing = &sharing}
    );
    workspace.start();
    views::MainWindow window(workspace, chooser);
    const auto laterFiles = instance.filesArrived.connect([&window](const QStringList& later) {
        window.openFiles(later);
    });
    QObject::connect(&window, &views::MainWindow::closed, [&instance] {
        instance.stopListening();
    });
    window.openInto(window.screen()->availableSize());
    views::DesktopScheme scheme;
    QTimer::singleShot(0, &scheme, &views::DesktopScheme::follow);
    if (!files.isEmpty())
        QMetaObject::invokeMethod(
            &window, [&window, files] { window.openFiles(files); }, Qt::QueuedConnection
        );
    return app::Application::exec();
}
