// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform::storage {

/// An empty file of a folder's file system to write into by its path.
///
/// It has no name in the folder where the file system knows such files: nothing of it stays even
/// when the process is killed. Elsewhere it is a hidden file, and what stays of it is found by
/// `removeAbandonedFiles`. It goes away with this object.
class TemporaryFile
{
public:
    enum class Form { Nameless, Hidden };

    /// A nameless file is asked for where it can be had; `Hidden` asks for the other form.
    explicit TemporaryFile(const QString& folder, Form form = Form::Nameless);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile(TemporaryFile&&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    ~TemporaryFile();

    /// False when no file can be made in the folder.
    [[nodiscard]] bool isValid() const { return m_descriptor >= 0; }

    /// Opens the file while this object lives.
    [[nodiscard]] const QString& path() const { return m_path; }

    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// What becomes of a file that has the name already.
    enum class Existing { Replaced, Kept };

    /// Gives the file the name `target` of the same file system. No other process ever finds
    /// `target` missing or unfinished. On success this object is done.
    [[nodiscard]] bool moveTo(const QString& target, Existing existing = Existing::Replaced);

private:
    [[nodiscard]] bool makeNameless(const QString& folder);
    void makeHidden(const QString& folder);
    [[nodiscard]] bool takeFreeName(const QString& target) const;
    [[nodiscard]] bool takeName(const QString& target) const;
    void close();

    int m_descriptor = -1;
    QString m_path;
    bool m_isHidden = false;
};

} // namespace brenvaldo::platform::storage
