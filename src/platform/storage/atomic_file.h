// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace brenvaldo::platform {

/// A file that appears whole at its place, or not at all.
///
/// The contents are written at `temporaryPath()`, a hidden file in the target's folder; `commit`
/// puts it in place. Without a commit the temporary file is removed.
class AtomicFile
{
public:
    explicit AtomicFile(const QString& target);
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    AtomicFile(AtomicFile&&) = delete;
    AtomicFile& operator=(AtomicFile&&) = delete;
    ~AtomicFile();

    /// False when no file can be made in the target's folder.
    [[nodiscard]] bool isValid() const { return !m_temporaryPath.isEmpty(); }
    [[nodiscard]] const QString& temporaryPath() const { return m_temporaryPath; }

    /// Flushes the file to the disk and renames it over the target; mode and owner of an existing
    /// target stay.
    [[nodiscard]] bool commit();

private:
    QString m_target;
    QString m_temporaryPath;
};

/// Writes `contents` as a whole file at `path`, or leaves what stands there.
[[nodiscard]] bool writeFileAtomically(const QString& path, const QByteArray& contents);

} // namespace brenvaldo::platform
