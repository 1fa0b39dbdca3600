// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "temporary_file.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace brenvaldo::platform::storage {

/// A file that appears whole at its place, or not at all.
///
/// The contents are written at `temporaryPath()`; `commit` puts them in place. Without a commit
/// nothing stays. A link that leads to a file is kept: that file is the target.
class AtomicFile
{
public:
    explicit AtomicFile(const QString& target);

    using Existing = TemporaryFile::Existing;

    /// False when no file can be made in the target's folder, or something else than a plain file
    /// has the target's name.
    [[nodiscard]] bool isValid() const { return m_file && m_file->isValid(); }
    [[nodiscard]] const QString& temporaryPath() const { return m_file->path(); }

    /// The folder that the file comes to stand in.
    [[nodiscard]] QString folder() const;

    /// Flushes the file to the disk and, when it is this thread's turn, puts it in the place of the
    /// target; mode and owner of an existing target stay.
    [[nodiscard]] bool commit(Existing existing = Existing::Replaced);

    /// Why the file is not valid or could not be committed, as a text for the log.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    QString m_target;
    QString m_fault;
    std::optional<TemporaryFile> m_file;
};

/// Writes `contents` as a whole file at `path`, or leaves what stands there.
[[nodiscard]] bool writeFileAtomically(const QString& path, const QByteArray& contents);

} // namespace brenvaldo::platform::storage
