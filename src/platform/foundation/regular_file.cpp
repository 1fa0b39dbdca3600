// SPDX-License-Identifier: GPL-3.0-or-later
#include "regular_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform {

namespace {

bool isRegular(int descriptor)
{
    struct stat facts = {};
    return ::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode);
}

} // namespace

bool openRegularFile(QFile& file)
{
    const QByteArray path = QFile::encodeName(file.fileName());
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    if (isRegular(descriptor)
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

} // namespace brenvaldo::platform
