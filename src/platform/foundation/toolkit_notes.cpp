// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit_notes.h"

#include "log.h"

#include <QtGlobal>

namespace brenvaldo::platform {

namespace {

void tellWhatIsSevere(QtMsgType type, const QMessageLogContext&, const QString& note)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        log(note);
}

} // namespace

void keepToolkitNotesAway()
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qInstallMessageHandler(tellWhatIsSevere);
}

} // namespace brenvaldo::platform
