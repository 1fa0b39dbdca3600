// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_replacement.h"

#include "atomic_file.h"
#include "extended_attributes.h"
#include "file_descriptor.h"

#include <platform/foundation/output_file.h>

#include <cerrno>

namespace brenvaldo::platform::storage {

namespace {

bool mayBeWritten(const QString& path)
{
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

void keepAttributes(const QString& path, const QString& replacement)
{
    const FileDescriptor source(path, O_RDONLY);
    const FileDescriptor target(replacement, O_WRONLY);
    if (source.isOpen() && target.isOpen())
        copyExtendedAttributes(source.get(), target.get());
}

} // namespace

QString replaceContents(const QString& path, const QByteArrayList& pieces)
{
    if (!mayBeWritten(path))
        return qt_error_string(errno);
    AtomicFile target(path);
    if (!target.isValid())
        return target.fault();
    OutputFile file(target.temporaryPath());
    for (const QByteArray& piece : pieces)
        file.write(piece);
    if (!file.finish())
        return file.fault();
    keepAttributes(path, target.temporaryPath());
    return target.commit() ? QString() : target.fault();
}

} // namespace brenvaldo::platform::storage
